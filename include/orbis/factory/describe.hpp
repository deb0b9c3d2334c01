#pragma once

#include "orbis/factory/base/refusals.hpp" // first: see there

#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/descriptors/releasedBy.hpp"
#include "orbis/factory/detail/members/areSuperclasses.hpp"
#include "orbis/factory/detail/members/describedAccess.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"
#include "orbis/factory/detail/members/memberChecks.hpp"
#include "orbis/factory/detail/members/propertyChecks.hpp"
#include "orbis/factory/overload.hpp"
#include "orbis/factory/types/standardPolicies.hpp"

namespace orbis::factory {

// Defined in withDefaults.hpp.
template <class... D>
class Defaults;

// Defined in Implemented.hpp.
template <class T>
class Implemented;

namespace detail {

// Defined in Implemented.hpp, like the record.
template <class T, class S, class... A>
consteval Refusal implementationRefusal();

template <class T, class S, class... A>
MemberRecord implementationRecord(char const* names, MethodText text);

} // namespace detail

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
    ClassDescriber() : ClassDescription(nativeClassRecord<T>())
    {
        if constexpr (NamedType<T>)
            if constexpr (isValue<T>)
                setCopying(detail::copyingOf<T>);
    }

    /// Has scripts copy objects of a class that a `Module` publishes, as they copy those of an `isValue` class unasked:
    /// with a constructor that takes one, if there are others, and with what their language has for it.
    ClassDescriber& copyable()
    {
        if constexpr (NamedType<T> && detail::CopyConstructible<T>)
            setCopying(detail::copyingOf<T>);
        else
            detail::refuse<Refusal::NotCopyable, T>();
        return *this;
    }

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
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names = {}, MethodText text = {})
    {
        constexpr Refusal refusal = detail::constructorRefusal<T, A...>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, A...>();
        else
            add(constructorForm<A...>, nullptr, {}, names.text(), text);
        return *this;
    }

    /// The same, with a text and attributes.
    template <class... A>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names, MethodText text, MethodAttributes attributes)
    {
        return constructor<A...>(names, text + attributes);
    }

    /// The same, with attributes alone.
    template <class... A>
    ClassDescriber& constructor(MethodAttributes attributes)
    {
        return constructor<A...>({}, MethodText(attributes));
    }

    /// The same, with default values of the last parameters: `withDefaults(...)`.
    template <class... A, class... D>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names, Defaults<D...> const& defaults,
                                MethodText text = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::constructorRefusal<T, A...>(),
                                 detail::defaultsRefusal<sizeof...(A), D...>(detail::TypeList<A...>{}));
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, A..., D...>();
        } else {
            constructor<A...>(names, text);
            add(defaults.template shortenConstructor<T, A...>(members().back()));
        }
        return *this;
    }

    /// The same, with attributes too.
    template <class... A, class... D>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names, Defaults<D...> const& defaults, MethodText text,
                                MethodAttributes attributes)
    {
        return constructor<A...>(names, defaults, text + attributes);
    }

    /// Lets scripts implement the class, which has virtual functions, by a table of functions: adds a constructor that
    /// takes one, and then values of the types `A`, with which it constructs an `S`. See `Implemented`.
    template <class S, class... A>
    ClassDescriber& implementedBy(ParameterNames<sizeof...(A)> names = {}, MethodText text = {})
    {
        constexpr Refusal refusal = detail::implementationRefusal<T, S, A...>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, S, A...>();
        else
            add(detail::implementationRecord<T, S, A...>(names.text(), text));
        return *this;
    }

    /// Adds a method: a member function of `T` or of a public base, or a free function, lambda or functor that takes a
    /// `T*` first. The latter becomes a forced member, which throws when it is called without an object; its
    /// parameter names begin with the object's.
    template <class F>
    ClassDescriber& method(char const* name, F function, Names<F> names = {}, MethodText text = {})
    {
        constexpr Refusal refusal = detail::methodRefusal<T, std::decay_t<F>>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, F>();
        else if constexpr (Traits<F>::kind == detail::CallableKind::Member)
            addMember(name, function, names.text(), text);
        else
            addFree(name, function, names.text(), text + MethodAttributes::ForceMembership());
        return *this;
    }

    /// The same, with a text and attributes.
    template <class F>
    ClassDescriber& method(char const* name, F function, Names<F> names, MethodText text, MethodAttributes attributes)
    {
        return method(name, function, names, text + attributes);
    }

    /// The same, with attributes alone.
    template <class F>
    ClassDescriber& method(char const* name, F function, MethodAttributes attributes)
    {
        return method(name, function, {}, MethodText(attributes));
    }

    /// The same, with default values of the last parameters: `withDefaults(...)`.
    template <class F, class... D>
    ClassDescriber& method(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                           MethodText text = {})
    {
        constexpr std::size_t objects = Traits<F>::kind == detail::CallableKind::Member ? 0 : 1;
        constexpr Refusal refusal = detail::firstRefusal(detail::methodRefusal<T, std::decay_t<F>>(),
                                                         detail::defaultsRefusalOf<std::decay_t<F>, objects, D...>());
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, F, D...>();
        } else {
            method(name, function, names, text);
            add(defaults.template shorten<T, objects>(members().back(), function));
        }
        return *this;
    }

    /// The same, with attributes too.
    template <class F, class... D>
    ClassDescriber& method(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                           MethodText text, MethodAttributes attributes)
    {
        return method(name, function, names, defaults, text + attributes);
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
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names = {}, MethodText text = {})
    {
        constexpr Refusal refusal = detail::staticMethodRefusal<std::decay_t<F>>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, F>();
        else
            addFree(name, function, names.text(), text);
        return *this;
    }

    /// The same, with a text and attributes.
    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names, MethodText text,
                                 MethodAttributes attributes)
    {
        return staticMethod(name, function, names, text + attributes);
    }

    /// The same, with attributes alone.
    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, MethodAttributes attributes)
    {
        return staticMethod(name, function, {}, MethodText(attributes));
    }

    /// The same, with default values of the last parameters: `withDefaults(...)`.
    template <class F, class... D>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                                 MethodText text = {})
    {
        constexpr Refusal refusal = detail::firstRefusal(detail::staticMethodRefusal<std::decay_t<F>>(),
                                                         detail::defaultsRefusalOf<std::decay_t<F>, 0, D...>());
        if constexpr (refusal != Refusal::None) {
            detail::refuse<refusal, F, D...>();
        } else {
            staticMethod(name, function, names, text);
            add(defaults.template shorten<T, 0>(members().back(), function));
        }
        return *this;
    }

    /// The same, with attributes too.
    template <class F, class... D>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names, Defaults<D...> const& defaults,
                                 MethodText text, MethodAttributes attributes)
    {
        return staticMethod(name, function, names, defaults, text + attributes);
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
    ClassDescriber& property(char const* name, G getter, PropertyText text = {})
    {
        constexpr Refusal refusal = detail::propertyRefusal<T, G>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G>();
        else if constexpr (detail::isWritableData<T, G>)
            addProperty(name, getter, getter, text);
        else
            addProperty(name, getter, detail::NoAccess(), text);
        return *this;
    }

    /// The same, with attributes.
    template <class G>
    ClassDescriber& property(char const* name, G getter, PropertyText text, PropertyAttributes attributes)
    {
        return property(name, getter, text + attributes);
    }

    /// Adds a property that is read and written. The setter is a data member, a member function that takes the value,
    /// or a free function, lambda or functor that takes the value, preceded by the object if it needs it.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& property(char const* name, G getter, S setter, PropertyText text = {})
    {
        constexpr Refusal refusal = detail::propertyRefusal<T, G, S>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G, S>();
        else
            addProperty(name, getter, setter, text);
        return *this;
    }

    /// The same, with attributes.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& property(char const* name, G getter, S setter, PropertyText text, PropertyAttributes attributes)
    {
        return property(name, getter, setter, text + attributes);
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
    ClassDescriber& writeOnlyProperty(char const* name, S setter, PropertyText text = {})
    {
        constexpr Refusal refusal = detail::setterRefusal<T, S>();
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, S>();
        else
            addProperty(name, detail::NoAccess(), setter, text);
        return *this;
    }

    /// The same, with attributes.
    template <class S>
    ClassDescriber& writeOnlyProperty(char const* name, S setter, PropertyText text, PropertyAttributes attributes)
    {
        return writeOnlyProperty(name, setter, text + attributes);
    }

    /// Adds a read-only property of the class itself: static data, a constant, or a function without parameters.
    template <class G>
    ClassDescriber& staticProperty(char const* name, G getter, PropertyText text = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::staticRefusal<detail::GetterTraits<T, G>>(), detail::propertyRefusal<T, G>());
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G>();
        else
            property(name, getter, text + PropertyAttributes::Static());
        return *this;
    }

    /// The same, with attributes.
    template <class G>
    ClassDescriber& staticProperty(char const* name, G getter, PropertyText text, PropertyAttributes attributes)
    {
        return staticProperty(name, getter, text + attributes);
    }

    /// The same, read and written.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& staticProperty(char const* name, G getter, S setter, PropertyText text = {})
    {
        constexpr Refusal refusal =
            detail::firstRefusal(detail::staticRefusal<detail::GetterTraits<T, G>, detail::SetterTraits<T, S>>(),
                                 detail::propertyRefusal<T, G, S>());
        if constexpr (refusal != Refusal::None)
            detail::refuse<refusal, T, G, S>();
        else
            property(name, getter, setter, text + PropertyAttributes::Static());
        return *this;
    }

    /// The same, with attributes.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& staticProperty(char const* name, G getter, S setter, PropertyText text,
                                   PropertyAttributes attributes)
    {
        return staticProperty(name, getter, setter, text + attributes);
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

    template <class... A>
    static constexpr detail::CallableForm const& constructorForm =
        detail::callableForm<MemberRecord::Kind::Constructor, T*, detail::TypeList<A...>,
                             detail::ConstructorRoutine<T, detail::TypeList<A...>>>;

    template <class Result, class Parameters, class Pointer>
    static constexpr detail::CallableForm const& memberForm =
        detail::callableForm<MemberRecord::Kind::MemberFunction, Result, Parameters,
                             detail::MemberFunctionRoutine<T, Pointer, Result, Parameters>>;

    template <class F>
    void addMember(char const* name, F function, char const* names, MethodText text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::template PointerIn<T>;
        add(memberForm<Result, Parameters, Pointer>, name, static_cast<Pointer>(function), names, text);
    }

    template <class F>
    void addFree(char const* name, F function, char const* names, MethodText text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::Pointer;
        add(detail::freeFunctionRecord<Pointer, Result, Parameters>(name, function, names, text));
    }

    template <class G, class S>
    void addProperty(char const* name, G const& getter, S const& setter, PropertyText text)
    {
        using Getter = detail::DescribedGetter<T, G>;
        using Setter = detail::DescribedSetter<T, S>;
        auto const get = Getter::stored(getter);
        auto const set = Setter::stored(setter);
        add(name, Getter::form, Getter::Stored::target(get), Setter::form, Setter::Stored::target(set), text);
        if constexpr (Getter::Stored::isKept || Setter::Stored::isKept)
            keep(Getter::Stored::kept(get), Setter::Stored::kept(set));
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
