#pragma once

#include "orbis/factory/detail/PropertyValue.hpp"
#include "orbis/factory/impl/Setter.hpp"

namespace orbis::factory::impl {

/// Writes static data of the type `A`; the object is ignored.
template <class A>
class DataSetter final : public Setter {
public:
    static constexpr bool needsObject = false;

    explicit DataSetter(A* data) : data_(data) {}

    void setValue(COSInterface*, COSValue value) const override
    {
        detail::Argument<A> argument(value);
        *data_ = argument.get();
    }

    char const* dataTypeName() const override { return detail::dataTypeText<A>(); }

private:
    A* data_;
};

} // namespace orbis::factory::impl
