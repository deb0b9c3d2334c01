#pragma once

#include "orbis/factory/descriptors/Setter.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"

#include <utility>

namespace orbis::factory::impl {

/// Writes a static property through a function `F` that takes a value of type `A`.
template <class A, class F>
class ClasslessSetter final : public Setter {
public:
    static constexpr bool needsObject = false;

    explicit ClasslessSetter(F function) : function_(std::move(function)) {}

    void setValue(COSInterface*, COSValue value) const override
    {
        detail::Argument<A> argument(value);
        function_(argument.get());
    }

    char const* dataTypeName() const override { return detail::dataTypeText<A>(); }

private:
    F function_;
};

} // namespace orbis::factory::impl
