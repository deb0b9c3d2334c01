#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"
#include "orbis/factory/classes/StdShareableHandleClassInfo.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "velmara/Hvm.hpp"

#include <cstddef>
#include <cstdint>

namespace bench {

/// A native object whose base determines its owner.
template <class Base>
class Owned : public Base {
    std::int32_t value_ = 1;
};

struct Amount {
    std::int32_t value = 1;
};

inline constexpr char const* ownedName = "bench_ownership.Object";

} // namespace bench

template <class Base>
struct orbis::factory::HostClass<bench::Owned<Base>> {
    static constexpr char const* name = bench::ownedName;
};

template <>
struct orbis::factory::HostClass<bench::Amount> {
    static constexpr char const* name = bench::ownedName;
    using Policy = ValuePolicy;
};

namespace bench {

/// Creates and destroys objects of `T`, published by `Info`, by their class's name.
template <class T, class Info>
class OwnershipScenarios {
public:
    OwnershipScenarios() : scope_(hvm_)
    {
        orbis::factory::registerOrbisPackage("bench_ownership",
                                             [](orbis::COSPackage* package) { package->addClass(new ClassInfo); });
    }

    void create(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            hvm_.construct(ownedName);
    }

private:
    struct ClassInfo final : Info {
        ClassInfo() : Info(ownedName, "") {}
        void initializeClass(orbis::COSClass* cls) override
        {
            publish(cls, orbis::factory::describe<T>().constructor());
        }
    };

    velmara::Hvm hvm_;
    velmara::Hvm::Scope scope_;
};

namespace ownership {

using namespace orbis::factory;

using Values = OwnershipScenarios<Amount, NonHandleClassInfo<Amount>>;
using WrappableObject = Owned<full::Wrappable>;
using Wrappables = OwnershipScenarios<WrappableObject, HandleClassInfo<WrappableObject, 1>>;
using BoostShared = Owned<full::Shareable>;
using BoostShareds = OwnershipScenarios<BoostShared, ShareableHandleClassInfo<BoostShared>>;
using StdShared = Owned<full::StdShareable>;
using StdShareds = OwnershipScenarios<StdShared, StdShareableHandleClassInfo<StdShared>>;

} // namespace ownership

} // namespace bench
