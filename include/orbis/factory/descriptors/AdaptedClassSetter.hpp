#pragma once

#include "orbis/factory/descriptors/Setter.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"

#include <utility>

namespace orbis::factory::impl {

/// Writes through a free function `F` that takes a `T*` and a value of type `A`.
template <class A, class T, class F>
class AdaptedClassSetter final : public Setter {
public:
    static constexpr bool needsObject = true;

    explicit AdaptedClassSetter(F function) : function_(std::move(function)) {}

    void setValue(COSInterface* object, COSValue value) const override
    {
        T& self = detail::nativeSelf<T>(object);
        detail::Argument<A> argument(value);
        function_(&self, argument.get());
    }

    char const* dataTypeName() const override { return detail::dataTypeText<A>(); }

private:
    F function_;
};

} // namespace orbis::factory::impl
