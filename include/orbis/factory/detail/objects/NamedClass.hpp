#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/base/typeName.hpp"
#include "orbis/factory/classes/NativeClassRecord.hpp"
#include "orbis/factory/detail/objects/values.hpp"
#include "orbis/factory/ownership/Wrappable.hpp"

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <typeinfo>

namespace orbis::factory {

/// Satisfied by classes that have no `HostClass`: a `Module` gives them their names when it publishes them. Classes of
/// the standard library and of Boost have policies of their own.
template <class T>
concept NamedType = std::is_class_v<T> && !PublishedClass<T> && !detail::isOfStandardLibrary<T>;

namespace detail {

/// What is known of a named class without its type, one record for each class and module. Where the module does not
/// publish the class, the record of the one that does is used. Its last five members are
/// set once, by the first `Module` that publishes the class, and stay as long as the module's code: they are the same
/// in every virtual machine.
struct NamedClass {
    std::type_info const* type;
    std::size_t size;                                                   ///< of an object
    std::type_info const& (*dynamicType)(void const* object) = nullptr; ///< null unless the class is polymorphic
    bool (*isInstance)(void const* bound) = nullptr;                    ///< likewise
    void (*destroy)(void* object) = nullptr;                            ///< null when there is no public destructor
    bool (*areEqual)(void const* a, void const* b) = nullptr;           ///< null when the class has no `==`
    bool hasVirtualDestructor = false;
    void* (*toBase)(void* object) = nullptr;   ///< null for a class that is bound as itself
    void* (*fromBase)(void* object) = nullptr; ///< gives null for an object of another class
    NamedClass const* base = nullptr;          ///< to which `toBase` converts; null when that is bound as it is
    bool isBase = false;                       ///< whether a subclass is published
    bool isOwnedByHost = true;                 ///< the objects that scripts construct
    char const* name = nullptr;                ///< full dotted name; null until the class is published; see `className`
};

/// Returns the host name, also of a class that another module publishes. Throws `std::invalid_argument` when the class
/// is not published.
ORBIS_FACTORY_API char const* className(NamedClass const& named);

/// Converts a pointer to the class into the address under which the object is bound; null to null.
ORBIS_FACTORY_API void* toBound(NamedClass const& named, void* object);

/// Converts back; null for null and for an object of another class.
ORBIS_FACTORY_API void* fromBound(NamedClass const& named, void* bound);

/// Makes `base`, which is published, a base of `named`; the first one is that as which objects are bound. Throws an
/// `Exception` when objects cannot be found as both. Threading: on any thread.
ORBIS_FACTORY_API void setBase(NamedClass& named, NamedClass& base, void* (*toBase)(void*), void* (*fromBase)(void*));

template <NamedType T>
NamedClass& namedClassOf();

template <class From, class To>
void* upcast(void* object)
{
    return static_cast<To*>(static_cast<From*>(object));
}

template <class From, class To>
void* downcast(void* object)
{
    if constexpr (std::is_polymorphic_v<From>)
        return dynamic_cast<To*>(static_cast<From*>(object));
    else
        return static_cast<To*>(static_cast<From*>(object));
}

template <class T>
struct NamedClassRecord : NamedClass {
    static_assert(
        requires { sizeof(T); }, "This class is only declared here: include the header that defines it.");

    constexpr NamedClassRecord() : NamedClass{&typeid(T), sizeof(T)}
    {
        if constexpr (std::is_polymorphic_v<T>) {
            dynamicType = [](void const* object) -> std::type_info const& {
                return typeid(*static_cast<T const*>(object));
            };
            isInstance = [](void const* bound) {
                return fromBound(namedClassOf<T>(), const_cast<void*>(bound)) != nullptr;
            };
        }
        hasVirtualDestructor = std::has_virtual_destructor_v<T>;
        if constexpr (std::is_destructible_v<T>)
            destroy = [](void* object) { delete static_cast<T*>(object); };
        if constexpr (hasEquality<T>)
            areEqual = [](void const* a, void const* b) -> bool {
                return *static_cast<T const*>(a) == *static_cast<T const*>(b);
            };
        if constexpr (std::derived_from<T, full::Wrappable>) {
            toBase = &upcast<T, full::Wrappable>;
            fromBase = &downcast<full::Wrappable, T>;
        }
    }
};

template <NamedType T>
NamedClass& namedClassOf()
{
    static constinit NamedClassRecord<T> record;
    return record;
}

/// Returns the name of a published class.
template <class T>
char const* hostName()
{
    if constexpr (PublishedClass<T>)
        return HostClass<T>::name;
    else
        return className(namedClassOf<T>());
}

} // namespace detail

template <NamedType T>
NativeClassRecord nativeClassRecord()
{
    detail::NamedClass const& named = detail::namedClassOf<T>();
    return {detail::className(named), named.type, named.isInstance};
}

} // namespace orbis::factory
