#pragma once

#include "library/publishClass.hpp"

#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"
#include "orbis/factory/classes/StdShareableHandleClassInfo.hpp"
#include "orbis/factory/types/SharedPointerPolicy.hpp"

#include <memory>
#include <set>
#include <tuple>

namespace lifetimes {

inline std::set<int> living; ///< native objects, by their numbers
inline int made = 0;

struct Rooted {
    virtual ~Rooted() = default;
};
struct Padded : Rooted {
    int padding = 0;
};
struct Wrapped : Padded, orbis::factory::full::Wrappable {};

/// What native classes of each kind derive from. Host objects delete those of the kinds 1 and 3.
using Bases =
    std::tuple<Rooted, Rooted, Wrapped, Wrapped, orbis::factory::full::Shareable, orbis::factory::full::StdShareable>;
constexpr int kinds = std::tuple_size_v<Bases>;
constexpr char const* name = "m.Thing";

template <int K>
constexpr bool isOwned = K == 1 || K == 3;
template <int K>
constexpr bool isWrapped = K >= 2;
template <int K>
constexpr bool isShared = K >= 4;

template <int K>
struct Thing;
template <int K, class T>
using Info = std::conditional_t<K == 4, orbis::factory::ShareableHandleClassInfo<T>,
                                std::conditional_t<K == 5, orbis::factory::StdShareableHandleClassInfo<T>,
                                                   orbis::factory::HandleClassInfo<T, isOwned<K>>>>;
template <int K>
using Pointer = std::conditional_t<K == 4, boost::shared_ptr<Thing<K>>,
                                   std::conditional_t<K == 5, std::shared_ptr<Thing<K>>, Thing<K>*>>;

} // namespace lifetimes

template <int K>
struct orbis::factory::HostClass<lifetimes::Thing<K>> {
    static constexpr char const* name = lifetimes::name;
};

/// A native object: it has a number, may refer to another of its class, and tells when it goes.
template <int K>
struct lifetimes::Thing : std::tuple_element_t<K, Bases> {
    Thing()
    {
        living.insert(number);
        newest = this;
    }
    Thing(Thing const&) = delete;
    Thing& operator=(Thing const&) = delete;
    ~Thing() override { living.erase(number); }

    static void publish()
    {
        orbis::factory::registerOrbisPackage("m", [](orbis::COSPackage* package) {
            package->addClass(new Described<Thing, Info<K, Thing>>([](auto& c) {
                c.constructor()
                    .staticMethod("give", &Thing::give)
                    .staticMethod("giveRaw", &Thing::giveRaw)
                    .staticMethod("take", &Thing::take);
            }));
        });
    }
    static Pointer<K> give() { return given; }
    static Thing* giveRaw() { return std::to_address(given); }
    static int take(Pointer<K> thing) { return thing ? thing->number : 0; }

    int const number = ++made;
    orbis::factory::ObjectHandle<Thing> next;
    inline static Thing* newest = nullptr;
    inline static Pointer<K> given = nullptr;
};
