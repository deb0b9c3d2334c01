#pragma once

#include "orbis/factory/descriptors/Setter.hpp"
#include "orbis/factory/marshaling/ObjectTransfer.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <type_traits>

namespace orbis::factory::impl {

/// Writes through a member `F` of `T`: a function that takes an `A`, or data of type `A`.
template <class A, class T, class F>
class ClassSetter final : public Setter {
public:
    static constexpr bool needsObject = true;

    explicit ClassSetter(F member) : member_(member) {}

    void setValue(COSInterface* object, COSValue value) const override
    {
        T& self = detail::nativeSelf<T>(object);
        detail::Argument<A> argument(value);
        detail::Transfer<A> transfer(detail::WholeOfProperty<T>{object}, &value);
        [[maybe_unused]] auto const completion = transfer.completion();
        if constexpr (std::is_member_object_pointer_v<F>)
            self.*member_ = argument.get();
        else
            (self.*member_)(argument.get());
    }

    char const* dataTypeName() const override { return detail::dataTypeText<A>(); }

private:
    F member_;
};

} // namespace orbis::factory::impl
