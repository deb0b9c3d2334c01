#pragma once

#include "orbis/factory/descriptors/CallableSetter.hpp"

namespace orbis::factory::impl {

/// Writes static data of type `A`; ignores the object.
template <class A>
class DataSetter final : public CallableSetter<detail::DataWriter<A>> {
public:
    using CallableSetter<detail::DataWriter<A>>::CallableSetter;
};

} // namespace orbis::factory::impl
