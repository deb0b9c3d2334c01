#pragma once

#include "orbis/factory/descriptors/CallableGetter.hpp"

namespace orbis::factory::impl {

/// Reads static data or a constant of type `V`; ignores the object.
template <class V>
class DataGetter final : public CallableGetter<DataGetter<V>, V const&, V> {
public:
    static constexpr bool needsObject = false;

    explicit DataGetter(V const* data, ReleaseRoutine release = nullptr)
        : CallableGetter<DataGetter, V const&, V>(release),
          data_(data)
    {
    }

    V const& read(COSInterface*) const { return *data_; }
    static auto wholeOf(COSInterface*) { return detail::NoWhole(); }

private:
    V const* data_;
};

} // namespace orbis::factory::impl
