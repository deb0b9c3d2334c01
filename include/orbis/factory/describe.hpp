#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/descriptors/releasedBy.hpp"
#include "orbis/factory/detail/members/areSuperclasses.hpp"
#include "orbis/factory/detail/members/makePropertyRecord.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"
#include "orbis/factory/detail/members/memberChecks.hpp"
#include "orbis/factory/detail/members/propertyChecks.hpp"
#include "orbis/factory/overload.hpp"
#include "orbis/factory/types/standardPolicies.hpp"

namespace orbis::factory {

/// Defined in withDefaults.hpp.
template <class... D>
class Defaults;

/// Describes the class `T`, one line per member:
///
///     publish(cls, describe<Adder>()
///                      .constructor<int>("start")
///                      .method("getSum", &Adder::getSum, "a, b", "Adds both to the total", MethodAttributes::Sealed())
///                      .staticMethod("zero", &Adder::zero)
///                      .property("total", &Adder::total, &Adder::setTotal, PropertyAttributes::Transient()));
///
/// Each line gives the host name, the native function or data, the names of its parameters, a text for users, and its
/// attributes; the last three may be omitted. Texts are literals: they are not copied. What cannot be published stops
/// compilation with a sentence that says why.
template <class T>
class ClassDescriber : public ClassDescription {
    template <class F>
    using Traits = detail::CallableTraits<std::decay_t<F>>;

    template <class F>
    using Names = ParameterNames<Traits<F>::arity>;

    using Refusal = detail::Refusal;

public:
    ClassDescriber() : ClassDescription(nativeClassRecord<T>()) {}

    /// Names the direct superclasses: published base classes, whose members objects of this class inherit.
    template <class... B>
    ClassDescriber& inherits()
    {
        constexpr Refusal refusal = detail::firstRefusal(detail::superclassRefusal<T, B>()...);
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, B...>();
        else
            (addSuperclass<B>(), ...);
        return *this;
    }

    /// Adds a constructor that takes values of the types `A`.
    template <class... A>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names = {}, MethodText const& text = {},
                                MethodAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::constructorRefusal<T, A...>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, A...>();
        else
            add(detail::constructorRecord<T, A...>(names.text(), text + attributes));
        return *this;
    }

    template <class... A>
    ClassDescriber& constructor(MethodAttributes attributes)
    {
        return constructor<A...>({}, attributes);
    }

    template <class... A, class... D>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names, Defaults<D...> const& defaults,
                                MethodText const& text = {}, MethodAttributes attributes = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::constructorRefusal<T, A...>(),
                                 detail::defaultsRefusal<sizeof...(A), D...>(detail::TypeList<A...>{}));
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, A..., D...>();
            return *this;
        } else {
            constructor<A...>(names, text, attributes);
            return addAll(defaults.template shortenConstructor<T, A...>(members().back()));
        }
    }

    /// Adds a method: a member function of `T` or of a public base, or a free function, lambda or functor that takes a
    /// `T*` first. The latter becomes a forced member, which throws when it is called without an object; its
    /// parameter names begin with the object's.
    template <class F>
    ClassDescriber& method(char const* name, F function, Names<F> names = {}, MethodText const& text = {},
                           MethodAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::methodRefusal<T, std::decay_t<F>>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, F>();
        else if constexpr (Traits<F>::kind == detail::CallableKind::Member)
            addMember(name, function, names.text(), text + attributes);
        else
            addFree(name, function, names.text(), text + attributes + MethodAttributes::ForceMembership());
        return *this;
    }

    template <class F>
    ClassDescriber& method(char const* name, F function, MethodAttributes attributes)
    {
        return method(name, function, {}, attributes);
    }

    template <class F, class... D>
    ClassDescriber& method(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                           MethodText const& text = {}, MethodAttributes attributes = {})
    {
        constexpr std::size_t objects = Traits<F>::kind == detail::CallableKind::Member ? 0 : 1;
        constexpr Refusal refusal = detail::firstRefusal(detail::methodRefusal<T, std::decay_t<F>>(),
                                                         detail::defaultsRefusalOf<std::decay_t<F>, objects, D...>());
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, F, D...>();
            return *this;
        } else {
            method(name, function, names, text, attributes);
            return addAll(defaults.template shorten<T, objects>(members().back(), function));
        }
    }

    /// Chosen for what is no method.
    template <class None = void>
    auto& method(char const*, ...)
    {
        static_assert(detail::isNothing<None>(), "This describes no method: of several overloads pick one with "
                                                 "overload<...>() or constOverload<...>().");
        return *this;
    }

    /// Adds a static method: a free function, static member function, lambda or functor, called without an object.
    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names = {}, MethodText const& text = {},
                                 MethodAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::staticMethodRefusal<std::decay_t<F>>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, F>();
        else
            addFree(name, function, names.text(), text + attributes);
        return *this;
    }

    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, MethodAttributes attributes)
    {
        return staticMethod(name, function, {}, attributes);
    }

    template <class F, class... D>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                                 MethodText const& text = {}, MethodAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::firstRefusal(detail::staticMethodRefusal<std::decay_t<F>>(),
                                                         detail::defaultsRefusalOf<std::decay_t<F>, 0, D...>());
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, F, D...>();
            return *this;
        } else {
            staticMethod(name, function, names, text, attributes);
            return addAll(defaults.template shorten<T, 0>(members().back(), function));
        }
    }

    /// Chosen for what is no static method.
    template <class None = void>
    auto& staticMethod(char const*, ...)
    {
        static_assert(detail::isNothing<None>(), "This describes no static method: of several overloads pick one with "
                                                 "overload<...>() or constOverload<...>().");
        return *this;
    }

    /// Adds a property that is read through `getter`: a data member, a member function without parameters, or a free
    /// function, lambda or functor that takes the object or nothing. What a lambda captures is copied. Non-const data
    /// can be written as well, unless `PropertyAttributes::NoAccessSetter()` is given.
    template <class G>
    ClassDescriber& property(char const* name, G getter, PropertyText const& text = {},
                             PropertyAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::propertyRefusal<T, G>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G>();
        else if constexpr (detail::isWritableData<T, G>)
            add(detail::propertyRecord<T>(name, getter, getter, text + attributes));
        else
            add(detail::propertyRecord<T>(name, getter, detail::NoAccess(), text + attributes));
        return *this;
    }

    /// Adds a property that is read and written. The setter is a data member, a member function that takes the value,
    /// or a free function, lambda or functor that takes the value, preceded by the object if it needs it.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& property(char const* name, G getter, S setter, PropertyText const& text = {},
                             PropertyAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::propertyRefusal<T, G, S>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G, S>();
        else
            add(detail::propertyRecord<T>(name, getter, setter, text + attributes));
        return *this;
    }

    /// Chosen for what is no property.
    template <class None = void>
    auto& property(char const*, ...)
    {
        static_assert(detail::isNothing<None>(), "This describes no property: of several overloads pick one with "
                                                 "overload<...>() or constOverload<...>().");
        return *this;
    }

    /// Adds a write-only property. The setter is as above.
    template <class S>
    ClassDescriber& writeOnlyProperty(char const* name, S setter, PropertyText const& text = {},
                                      PropertyAttributes attributes = {})
    {
        constexpr Refusal refusal = detail::setterRefusal<T, S>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, S>();
        else
            add(detail::propertyRecord<T>(name, detail::NoAccess(), setter, text + attributes));
        return *this;
    }

    /// Adds a read-only property of the class itself: static data, a constant, or a function without parameters.
    template <class G>
    ClassDescriber& staticProperty(char const* name, G getter, PropertyText const& text = {},
                                   PropertyAttributes attributes = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::staticRefusal<detail::GetterTraits<T, G>>(), detail::propertyRefusal<T, G>());
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G>();
        else
            property(name, getter, text, attributes + PropertyAttributes::Static());
        return *this;
    }

    /// The same, read and written.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& staticProperty(char const* name, G getter, S setter, PropertyText const& text = {},
                                   PropertyAttributes attributes = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::staticRefusal<detail::GetterTraits<T, G>, detail::SetterTraits<T, S>>(),
                                 detail::propertyRefusal<T, G, S>());
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G, S>();
        else
            property(name, getter, setter, text, attributes + PropertyAttributes::Static());
        return *this;
    }

private:
    using ClassDescription::add;

    template <class B>
    void addSuperclass()
    {
        add(nativeClassRecord<B>());
        if constexpr (NamedType<T>)
            detail::setBase(detail::namedClassOf<T>(), detail::namedClassOf<B>(), detail::upcast<T, B>,
                            detail::downcast<B, T>);
    }

    ClassDescriber& addAll(std::vector<MemberRecord> records)
    {
        for (MemberRecord& record : records)
            add(std::move(record));
        return *this;
    }

    template <class F>
    void addMember(char const* name, F function, char const* names, MethodText const& text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::template PointerIn<T>;
        add(detail::memberFunctionRecord<T, Pointer, Result, Parameters>(name, function, names, text));
    }

    template <class F>
    void addFree(char const* name, F function, char const* names, MethodText const& text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::Pointer;
        add(detail::freeFunctionRecord<Pointer, Result, Parameters>(name, function, names, text));
    }
};

/// Begins the description of a class, which must have a host name.
template <class T>
ClassDescriber<T> describe()
{
    static_assert(PublishedClass<T>, "The class has no host name: publish it with Module::publish, or specialise "
                                     "orbis::factory::HostClass for it, beside the class.");
    return {};
}

} // namespace orbis::factory
