#pragma once

#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/descriptors/MemberText.hpp"
#include "orbis/factory/descriptors/releasedBy.hpp"
#include "orbis/factory/detail/members/areSuperclasses.hpp"
#include "orbis/factory/detail/members/makePropertyRecord.hpp"
#include "orbis/factory/detail/members/makeRecord.hpp"
#include "orbis/factory/detail/members/propertyChecks.hpp"
#include "orbis/factory/overload.hpp"
#include "orbis/factory/types/standardPolicies.hpp"

namespace orbis::factory {

/// Defined in withDefaults.hpp.
template <class... D>
class Defaults;

/// Defined in Implemented.hpp.
template <class T>
class Implemented;

namespace detail {

template <class T, class S, class... A>
MemberRecord implementationRecord(char const* names, MethodText const& text);

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
        constexpr bool canCopy = NamedType<T> && detail::CopyConstructible<T>;
        static_assert(canCopy, "Objects of this class cannot be copied: it has no public copy constructor, or no "
                               "public destructor, or a HostClass.");
        if constexpr (canCopy)
            setCopying(detail::copyingOf<T>);
        return *this;
    }

    /// Names the direct superclasses: published base classes, whose members objects of this class inherit.
    template <class... B>
    ClassDescriber& inherits()
    {
        if constexpr (detail::areSuperclasses<T, B...>())
            (addSuperclass<B>(), ...);
        return *this;
    }

    /// Adds a constructor that takes values of the types `A`.
    template <class... A>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names = {}, MethodText const& text = {},
                                MethodAttributes attributes = {})
    {
        constexpr bool exists = std::is_constructible_v<T, detail::NativeParameter<A>...>;
        static_assert(exists, "The class has no public constructor that takes these parameter types: name the types "
                              "of an existing one in constructor<...>().");
        if constexpr (exists && detail::signatureCanCross<void>(detail::TypeList<A...>{}))
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
        constructor<A...>(names, text, attributes);
        return addAll(defaults.template shortenConstructor<T, A...>(members().back()));
    }

    /// Lets scripts implement the class, which has virtual functions, by a table of functions: adds a constructor that
    /// takes one, and then values of the types `A`, with which it constructs an `S`. See `Implemented`.
    template <class S, class... A>
    ClassDescriber& implementedBy(ParameterNames<sizeof...(A)> names = {}, MethodText const& text = {})
    {
        constexpr bool isImplementation = std::is_base_of_v<Implemented<T>, S> && NamedType<T>;
        static_assert(isImplementation, "A class that scripts implement is published by a Module; what implements it "
                                        "derives from orbis::factory::Implemented of it.");
        if constexpr (isImplementation) {
            constexpr bool exists = std::is_constructible_v<S, detail::NativeParameter<A>...>;
            static_assert(exists, "The implementation has no public constructor that takes these parameter types: say "
                                  "`using Implemented::Implemented;` in it, and override all abstract functions.");
            if constexpr (exists && detail::signatureCanCross<void>(detail::TypeList<A...>{}))
                add(detail::implementationRecord<T, S, A...>(names.text(), text));
        }
        return *this;
    }

    /// Adds a method: a member function of `T` or of a public base, or a free function, lambda or functor that takes a
    /// `T*` first. The latter becomes a forced member, which throws when it is called without an object; its
    /// parameter names begin with the object's.
    template <class F>
    ClassDescriber& method(char const* name, F function, Names<F> names = {}, MethodText const& text = {},
                           MethodAttributes attributes = {})
    {
        using detail::CallableKind;
        checkCallable<F>();
        if constexpr (Traits<F>::kind == CallableKind::Member)
            addMember(name, function, names.text(), text + attributes);
        else if constexpr (Traits<F>::kind == CallableKind::Free) {
            constexpr bool takesObject = Traits<F>::template takesObject<T>;
            static_assert(takesObject, "A free function published as a method takes a pointer to the class first: "
                                       "add that parameter, or publish it with staticMethod.");
            if constexpr (takesObject)
                addFree(name, function, names.text(), text + attributes + MethodAttributes::ForceMembership());
        }
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
        method(name, function, names, text, attributes);
        return addAll(defaults.template shorten<T, objects>(members().back(), function));
    }

    /// Adds a static method: a free function, static member function, lambda or functor, called without an object.
    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names = {}, MethodText const& text = {},
                                 MethodAttributes attributes = {})
    {
        using detail::CallableKind;
        checkCallable<F>();
        static_assert(Traits<F>::kind != CallableKind::Member, "A static method has no object: publish a member "
                                                               "function with method.");
        if constexpr (Traits<F>::kind == CallableKind::Free)
            if constexpr (detail::keepsNothing(typename Traits<F>::Parameters{}))
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
        staticMethod(name, function, names, text, attributes);
        return addAll(defaults.template shorten<T, 0>(members().back(), function));
    }

    /// Adds a property that is read through `getter`: a data member, a member function without parameters, or a free
    /// function or captureless lambda that takes the object or nothing. Non-const data can be written as well, unless
    /// `PropertyAttributes::NoAccessSetter()` is given.
    template <class G>
    ClassDescriber& property(char const* name, G getter, PropertyText const& text = {},
                             PropertyAttributes attributes = {})
    {
        if constexpr (detail::isWritableData<T, G>)
            return property(name, getter, getter, text, attributes);
        else if constexpr (detail::canRead<T, G>()) {
            add(detail::propertyRecord<T>(name, getter, detail::NoAccess(), text + attributes));
        }
        return *this;
    }

    /// Adds a property that is read and written. The setter is a data member, a member function that takes the value,
    /// or a free function or captureless lambda that takes the value, preceded by the object if it needs it.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& property(char const* name, G getter, S setter, PropertyText const& text = {},
                             PropertyAttributes attributes = {})
    {
        if constexpr (detail::canRead<T, G>() && detail::canWrite<T, S>()) {
            if constexpr (detail::areOneType<T, G, S>()) {
                add(detail::propertyRecord<T>(name, getter, setter, text + attributes));
            }
        }
        return *this;
    }

    /// Adds a write-only property. The setter is as above.
    template <class S>
    ClassDescriber& writeOnlyProperty(char const* name, S setter, PropertyText const& text = {},
                                      PropertyAttributes attributes = {})
    {
        if constexpr (detail::canWrite<T, S>()) {
            add(detail::propertyRecord<T>(name, detail::NoAccess(), setter, text + attributes));
        }
        return *this;
    }

    /// Adds a read-only property of the class itself: static data, a constant, or a function without parameters.
    template <class G>
    ClassDescriber& staticProperty(char const* name, G getter, PropertyText const& text = {},
                                   PropertyAttributes attributes = {})
    {
        if constexpr (detail::needsNoObject<detail::GetterTraits<T, G>>())
            property(name, getter, text, attributes + PropertyAttributes::Static());
        return *this;
    }

    /// The same, read and written.
    template <class G, class S>
        requires(!std::convertible_to<S, PropertyText>)
    ClassDescriber& staticProperty(char const* name, G getter, S setter, PropertyText const& text = {},
                                   PropertyAttributes attributes = {})
    {
        if constexpr (detail::needsNoObject<detail::GetterTraits<T, G>>() &&
                      detail::needsNoObject<detail::SetterTraits<T, S>>())
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
    static consteval void checkCallable()
    {
        static_assert(Traits<F>::kind != detail::CallableKind::None,
                      "This cannot be published: give a function, a member function or a lambda that captures nothing, "
                      "and pick one of several overloads with overload<...>().");
    }

    template <class F>
    void addMember(char const* name, F function, char const* names, MethodText const& text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::template PointerIn<T>;
        constexpr bool isMember = std::derived_from<T, typename Traits<F>::Class>;
        static_assert(isMember,
                      "This is no member function of the class or a public base: publish it with the class that has "
                      "it.");
        if constexpr (isMember && detail::signatureCanCross<Result>(Parameters{}))
            add(detail::memberFunctionRecord<T, Pointer, Result, Parameters>(name, function, names, text));
    }

    template <class F>
    void addFree(char const* name, F function, char const* names, MethodText const& text)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::Pointer;
        if constexpr (detail::signatureCanCross<Result>(Parameters{}))
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
