#pragma once

#include "orbis/factory/descriptors/Getter.hpp"
#include "orbis/factory/descriptors/ReleaseRoutine.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/marshaling/ReferredObjects.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <type_traits>

namespace orbis::factory::impl {

/// Common base of the getters. `Derived` provides `read(object)`, which returns the native value of a result `R`, and
/// `wholeOf(object)`, of which it may be a part; `V` is the type as which it is marshaled.
template <class Derived, class R, class V>
class CallableGetter : public Getter {
public:
    explicit CallableGetter(ReleaseRoutine release) : release_(release) {}

    COSValue getValue(COSInterface* object) const override
    {
        using Value = std::conditional_t<std::is_reference_v<R>, V const&, V>;
        auto const read = [&]() -> detail::NativeResult<R> { return derived().read(object); };
        if constexpr (detail::ObjectResult<R>)
            return COSValue(detail::objectResult<R>(derived().wholeOf(object), read));
        else
            return detail::toValue<Value>(read);
    }

    char const* dataTypeName() const override { return detail::dataTypeText<V>(); }

    void releaseValue(COSInterface* object, COSValue value) const override
    {
        if (release_)
            release_(object, value);
    }

    Enumeration<COSInterface*> getInterfaces(COSInterface* object) const override
    {
        if constexpr (detail::ReferredObjects<V>::any)
            return detail::ReferredObjects<V>::of(derived().read(object));
        else
            return {};
    }

    bool canContainInterfaces() const override { return detail::ReferredObjects<V>::any; }

private:
    Derived const& derived() const { return static_cast<Derived const&>(*this); }

    ReleaseRoutine release_;
};

} // namespace orbis::factory::impl
