#pragma once

#include "orbis/factory/detail/PropertyValue.hpp"
#include "orbis/factory/impl/Setter.hpp"

namespace orbis::factory::impl {

/// Writes through a member function `F` of `T` that takes an `A`.
template <class A, class T, class F>
class ClassSetter final : public Setter {
public:
    explicit ClassSetter(F function) : function_(function) {}

    void setValue(COSInterface* object, COSValue value) const override
    {
        T& self = detail::nativeSelf<T>(object);
        detail::Argument<A> argument(value);
        (self.*function_)(argument.get());
    }

    char const* dataTypeName() const override { return detail::dataTypeText<A>(); }

private:
    F function_;
};

} // namespace orbis::factory::impl
