#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

/// Gives a native class its name in a package, and what else its host class says.
#define PUBLISHED_IN(package, Type, ...)                                                                               \
    template <>                                                                                                        \
    struct orbis::factory::HostClass<Type> {                                                                           \
        static constexpr char const* name = package "." #Type;                                                         \
        __VA_ARGS__                                                                                                    \
    };
#define PUBLISHED_IN_TESTS(...) PUBLISHED_IN("tests", __VA_ARGS__)

/// The class info `Base` of the class `T`, described by a function.
template <class T, class Base = orbis::factory::HandleClassInfo<T, 1>>
struct Described final : Base {
    using Describer = void (*)(orbis::factory::ClassDescriber<T>&);

    explicit Described(Describer describer) : Base(orbis::factory::HostClass<T>::name, ""), describer_(describer) {}

    void initializeClass(orbis::COSClass* cls) override
    {
        auto description = orbis::factory::describe<T>();
        describer_(description);
        publish(cls, description);
    }

    Describer describer_;
};

/// Publishes the class `T` in the package "tests".
template <class T, class Base = orbis::factory::HandleClassInfo<T, 1>>
void publishClass(typename Described<T, Base>::Describer describer)
{
    orbis::factory::registerOrbisPackage(
        "tests", [describer](orbis::COSPackage* package) { package->addClass(new Described<T, Base>(describer)); });
}
