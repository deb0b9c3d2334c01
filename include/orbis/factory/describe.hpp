#pragma once

#include "orbis/factory/ClassDescription.hpp"
#include "orbis/factory/ParameterNames.hpp"
#include "orbis/factory/detail/makeRecord.hpp"
#include "orbis/factory/overload.hpp"

namespace orbis::factory {

/// Describes the class `T`, one line a member:
///
///     publish(cls, describe<Adder>()
///                      .constructor<int>("start")
///                      .method("getSum", &Adder::getSum, "a, b", MethodAttributes::Sealed())
///                      .staticMethod("zero", &Adder::zero));
///
/// In every line: the host name, the native thing, the names of its parameters, its attributes; the last two may be
/// left out. Texts are literals. What cannot be published stops compilation with a sentence.
template <class T>
class ClassDescriber : public ClassDescription {
    template <class F>
    using Traits = detail::CallableTraits<std::decay_t<F>>;

    template <class F>
    using Names = ParameterNames<Traits<F>::arity>;

public:
    ClassDescriber() : ClassDescription(HostClass<T>::name) {}

    /// A constructor that takes values of the types `A`.
    template <class... A>
    ClassDescriber& constructor(ParameterNames<sizeof...(A)> names = {}, MethodAttributes attributes = {})
    {
        constexpr bool exists = std::is_constructible_v<T, A...>;
        static_assert(exists, "The class has no public constructor that takes these parameter types: name the types "
                              "of an existing one in constructor<...>().");
        if constexpr (exists && detail::signatureCanCross<void>(detail::TypeList<A...>{}))
            add(detail::constructorRecord<T, A...>(names.text(), attributes));
        return *this;
    }

    template <class... A>
    ClassDescriber& constructor(MethodAttributes attributes)
    {
        return constructor<A...>({}, attributes);
    }

    /// A member function of `T` or of a base, or a free function or captureless lambda that takes a `T*` first: a
    /// member by force, which refuses to be called without an object.
    template <class F>
    ClassDescriber& method(char const* name, F function, Names<F> names = {}, MethodAttributes attributes = {})
    {
        using detail::CallableKind;
        checkCallable<F>();
        if constexpr (Traits<F>::kind == CallableKind::Member)
            addMember(name, function, names.text(), attributes);
        else if constexpr (Traits<F>::kind == CallableKind::Free) {
            constexpr bool takesObject = Traits<F>::template takesObject<T>;
            static_assert(takesObject, "A free function published as a method takes a pointer to the class first: "
                                       "add that parameter, or publish it with staticMethod.");
            if constexpr (takesObject)
                addFree(name, function, names.text(), attributes + MethodAttributes::ForceMembership());
        }
        return *this;
    }

    template <class F>
    ClassDescriber& method(char const* name, F function, MethodAttributes attributes)
    {
        return method(name, function, {}, attributes);
    }

    /// A free function, static member function or captureless lambda, called without an object.
    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, Names<F> names = {}, MethodAttributes attributes = {})
    {
        using detail::CallableKind;
        checkCallable<F>();
        static_assert(Traits<F>::kind != CallableKind::Member, "A static method has no object: publish a member "
                                                               "function with method.");
        if constexpr (Traits<F>::kind == CallableKind::Free)
            addFree(name, function, names.text(), attributes);
        return *this;
    }

    template <class F>
    ClassDescriber& staticMethod(char const* name, F function, MethodAttributes attributes)
    {
        return staticMethod(name, function, {}, attributes);
    }

private:
    template <class F>
    static consteval void checkCallable()
    {
        static_assert(Traits<F>::kind != detail::CallableKind::None,
                      "This cannot be published: give a function, a member function or a lambda that captures nothing, "
                      "and pick one of several overloads with overload<...>().");
    }

    template <class F>
    void addMember(char const* name, F function, char const* names, MethodAttributes attributes)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::template PointerIn<T>;
        constexpr bool isMember = std::is_base_of_v<typename Traits<F>::Class, T>;
        static_assert(isMember, "This is a member function of another class: publish it with the class that has it.");
        if constexpr (isMember && detail::signatureCanCross<Result>(Parameters{}))
            add(detail::memberFunctionRecord<T, Pointer, Result, Parameters>(name, function, names, attributes));
    }

    template <class F>
    void addFree(char const* name, F function, char const* names, MethodAttributes attributes)
    {
        using Result = typename Traits<F>::Result;
        using Parameters = typename Traits<F>::Parameters;
        using Pointer = typename Traits<F>::Pointer;
        if constexpr (detail::signatureCanCross<Result>(Parameters{}))
            add(detail::freeFunctionRecord<Pointer, Result, Parameters>(name, function, names, attributes));
    }
};

/// Begins the description of a class that has a host name.
template <class T>
ClassDescriber<T> describe()
{
    static_assert(PublishedClass<T>, "The class has no host name: specialise orbis::factory::HostClass for it, beside "
                                     "the class.");
    return {};
}

} // namespace orbis::factory
