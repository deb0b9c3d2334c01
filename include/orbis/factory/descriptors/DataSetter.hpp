#pragma once

#include "orbis/factory/descriptors/Setter.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"

namespace orbis::factory::impl {

/// Writes static data of type `A`; ignores the object.
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
