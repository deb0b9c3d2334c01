#pragma once

#include "orbis/factory/descriptors/PropertyImpl.hpp"

#include <type_traits>

namespace orbis::factory::detail {

/// Placeholder for a missing getter or setter.
struct NoAccess {};

template <class Getter, class Setter>
struct Accesses {
    Getter getter;
    Setter setter;
};

/// The descriptor of a described property. It contains its getter and setter, whose types are known, so that the host's
/// virtual call reaches the native member without further indirection.
template <class Getter, class Setter, bool IsReleased>
class DescribedProperty final : private Accesses<Getter, Setter>, public impl::PropertyImpl {
public:
    /// The arguments create the getter and the setter in place.
    template <class MakeGetter, class MakeSetter>
    DescribedProperty(char const* name, MakeGetter makeGetter, MakeSetter makeSetter, PropertyAttributes attributes)
        : Accesses<Getter, Setter>{makeGetter(), makeSetter()},
          PropertyImpl(name, pointer<impl::Getter>(this->getter), pointer<impl::Setter>(this->setter), attributes)
    {
    }
    DescribedProperty(DescribedProperty const&) = delete;
    DescribedProperty& operator=(DescribedProperty const&) = delete;

    COSValue getValue(COSInterface* object) const override
    {
        if constexpr (isRead)
            return this->getter.getValue(object);
        else
            return PropertyImpl::getValue(object);
    }

    void setValue(COSInterface* object, COSValue value) const override
    {
        if constexpr (isWritten)
            this->setter.setValue(object, value);
        else
            PropertyImpl::setValue(object, value);
    }

    void releaseValue(COSInterface* object, COSValue value) const override
    {
        if constexpr (IsReleased || !isRead)
            PropertyImpl::releaseValue(object, value);
    }

private:
    static constexpr bool isRead = !std::is_same_v<Getter, NoAccess>;
    static constexpr bool isWritten = !std::is_same_v<Setter, NoAccess>;

    template <class Access>
    static Access* pointer(Access& access)
    {
        return &access;
    }

    template <class Access>
    static Access* pointer(NoAccess const&)
    {
        return nullptr;
    }
};

} // namespace orbis::factory::detail
