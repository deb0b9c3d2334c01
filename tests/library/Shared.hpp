#pragma once

#include "orbis/factory/classes/HostClass.hpp"
#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"
#include "orbis/factory/classes/StdShareableHandleClassInfo.hpp"

#include <memory>

// Shared classes of both kinds for the tests: `Shared<Boost>` and `Shared<Std>`.

struct Boost {
    static constexpr char const* name = "tests.BoostShared";
    static constexpr char const* derivedName = "tests.BoostSharedDerived";
    using Base = orbis::factory::full::Shareable;
    template <class T>
    using Info = orbis::factory::ShareableHandleClassInfo<T>;
    template <class T>
    using Pointer = boost::shared_ptr<T>;
    using BadWeakPointer = boost::bad_weak_ptr;
};

struct Std {
    static constexpr char const* name = "tests.StdShared";
    static constexpr char const* derivedName = "tests.StdSharedDerived";
    using Base = orbis::factory::full::StdShareable;
    template <class T>
    using Info = orbis::factory::StdShareableHandleClassInfo<T>;
    template <class T>
    using Pointer = std::shared_ptr<T>;
    using BadWeakPointer = std::bad_weak_ptr;
};

template <class Kind>
struct Shared : Kind::Base {
    using Pointer = typename Kind::template Pointer<Shared>;

    Shared() { ++alive; }
    Shared(Shared const& other) : Kind::Base(other) { ++alive; }
    ~Shared() override { --alive; }

    orbis::factory::full::SharingType getSharingType() const override { return type; }

    orbis::factory::full::SharingType type = orbis::factory::full::SharingType::Shared;
    inline static int alive = 0;
};

/// Published below `Shared`.
template <class Kind>
struct SharedDerived : Shared<Kind> {};

template <class Kind>
struct orbis::factory::HostClass<Shared<Kind>> {
    static constexpr char const* name = Kind::name;
};
template <class Kind>
struct orbis::factory::HostClass<SharedDerived<Kind>> {
    static constexpr char const* name = Kind::derivedName;
};
