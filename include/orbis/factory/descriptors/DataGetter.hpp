#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads static data or a constant of type `V`; ignores the object.
template <class V>
class DataGetter final : public CallableGetter<detail::DataReader<V>> {
public:
    using CallableGetter<detail::DataReader<V>>::CallableGetter;
};

} // namespace orbis::factory::impl
