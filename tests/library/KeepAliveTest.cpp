#include "HvmTest.hpp"
#include "library/Shared.hpp"

using namespace orbis::factory::full;

namespace {

template <class Kind>
class KeepAliveTest : public HvmTest {
protected:
    static auto make()
    {
        using Pointer = typename Kind::template Pointer<typename Kind::Base>;
        return Pointer(new Shared<Kind>);
    }
};

using Kinds = ::testing::Types<Boost, Std>;
TYPED_TEST_SUITE(KeepAliveTest, Kinds);

TYPED_TEST(KeepAliveTest, AnObjectIsKeptOnceAndReleasedOnce)
{
    auto owner = this->make();
    auto* const object = owner.get();
    acquireReference(object);
    acquireReference(owner);
    EXPECT_EQ(owner.use_count(), 2);
    releaseReference(owner);
    EXPECT_EQ(owner.use_count(), 1);
    releaseReference(object);
    EXPECT_EQ(owner.use_count(), 1);
    acquireReference(object);
    owner.reset();
    EXPECT_EQ(Shared<TypeParam>::alive, 1);
    releaseReference(object);
    EXPECT_EQ(Shared<TypeParam>::alive, 0);
}

TYPED_TEST(KeepAliveTest, NothingIsNoObject)
{
    using Base = typename TypeParam::Base;
    typename TypeParam::template Pointer<Base> const empty;
    acquireReference(empty);
    acquireReference(static_cast<Base*>(nullptr));
    releaseReference(empty);
    releaseReference(static_cast<Base*>(nullptr));
    EXPECT_TRUE(canAcquireReference(static_cast<Base*>(nullptr)));
    EXPECT_EQ(static_cast<int>(Base().getSharingType()), 1);
}

TYPED_TEST(KeepAliveTest, WhatNoSharedPointerOwnsIsRefused)
{
    Shared<TypeParam> object;
    EXPECT_THROW(acquireReference(&object), typename TypeParam::BadWeakPointer);
    EXPECT_THROW(releaseReference(&object), typename TypeParam::BadWeakPointer);
}

TYPED_TEST(KeepAliveTest, DestroyingTheVirtualMachineReleasesAll)
{
    auto owner = this->make();
    acquireReference(owner);
    acquireReference(this->make());
    this->endHvm();
    EXPECT_EQ(owner.use_count(), 1);
    releaseReference(owner);
    EXPECT_EQ(Shared<TypeParam>::alive, 1);
}

/// Releases another object in its destructor, which may run inside the set.
template <class Kind>
struct Chained : Shared<Kind> {
    ~Chained() override { releaseReference(next); }
    typename Kind::Base* next = nullptr;
};

TYPED_TEST(KeepAliveTest, DestructorsMayReleaseOtherObjects)
{
    auto const first = new Chained<TypeParam>;
    {
        typename TypeParam::template Pointer<Chained<TypeParam>> const owner(first);
        auto const second = this->make();
        first->next = second.get();
        acquireReference(first);
        acquireReference(second);
    }
    releaseReference(static_cast<typename TypeParam::Base*>(first));
    EXPECT_EQ(Shared<TypeParam>::alive, 0);
}

} // namespace
