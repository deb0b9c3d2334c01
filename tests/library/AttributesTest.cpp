#include "orbis/factory/base/String.hpp"
#include "orbis/factory/descriptors/MethodAttributes.hpp"
#include "orbis/factory/descriptors/MethodImpl.hpp"
#include "orbis/factory/descriptors/PropertyAttributes.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace orbis::factory;
using M = MethodAttributes;
using P = PropertyAttributes;

namespace {

/// Every predicate's answer as one letter, upper-case for true, then the access.
std::string answers(M const& a)
{
    auto const letter = [](char c, bool set) { return set ? static_cast<char>(c - 'a' + 'A') : c; };
    return {letter('l', a.isLocked()),
            letter('v', a.isVisible()),
            letter('s', a.isSealed()),
            letter('t', a.isStatic()),
            letter('a', a.isAbstract()),
            letter('d', a.isDestructible()),
            letter('o', a.doesMethodOverrideAllSignatures()),
            letter('f', a.forceMemberMethod()),
            static_cast<char>('0' + static_cast<int>(a.getMemberAccess()))};
}

TEST(MethodAttributes, AnswersFollowTheFlags)
{
    using Case = std::pair<M, char const*>;
    for (auto const& [attributes, expected] :
         {Case{M(), "LVstadof0"}, Case{M::Unlocked(), "lVstadof0"}, Case{M::Hidden(), "Lvstadof0"},
          Case{M::Indestructable(), "LVstaDof0"}, Case{M::OverridesAll(), "LVstadOf0"},
          Case{M::ForceMembership(), "LVstadoF0"}, Case{(M::Static() + M::Sealed()) - M::Static(), "LVStadof0"},
          Case{M::Static() - M::Static(), "LVstadof0"}, Case{M::Abstract() - M::Sealed(), "LVstAdof0"},
          Case{M::Abstract() | M::Static(), "LVsTAdof0"}, Case{M::Private() + M::Protected(), "LVstadof1"},
          Case{M::NoAccess() + M::Private(), "LVstadof2"}, Case{M::NoAccess(), "LVstadof5"},
          Case{M::NoAccess() + M::Protected(), "LVstadof1"}})
        EXPECT_EQ(answers(attributes), expected);
    M changed;
    changed += M::Hidden();
    changed |= M::Sealed();
    EXPECT_EQ(answers(changed), "LvStadof0");
    changed -= M::Hidden();
    EXPECT_EQ(answers(changed), "LVStadof0");
    EXPECT_EQ(M::FORCE, 0x1000u);
}

TEST(MethodAttributes, DescriptorsPassThemOn)
{
    impl::MethodImpl const hidden("f", M::Hidden() + M::Indestructable() + M::Static(), "");
    EXPECT_FALSE(hidden.isVisible());
    EXPECT_TRUE(hidden.isDestructible());
    EXPECT_TRUE(hidden.isStatic());
    EXPECT_TRUE(hidden.isLocked());
}

TEST(PropertyAttributes, EachFlagSetsItsOwnAnswer)
{
    std::pair<P, bool (P::*)() const> const cases[] = {{P::AbortSet(), &P::isAbortSet},
                                                       {P::Abstract(), &P::isAbstract},
                                                       {P::CopyAllowed(), &P::isCopyAllowed},
                                                       {P::DefaultAllowed(), &P::isDefaultAllowed},
                                                       {P::Dependent(), &P::isDependent},
                                                       {P::Destructible(), &P::isDestructible},
                                                       {P::ForceMembership(), &P::forceMemberProperty},
                                                       {P::Grandfathered(), &P::isGrandfathered},
                                                       {P::InitAllowed(), &P::isInitAllowed},
                                                       {P::InspectAllowed(), &P::isInspectAllowed},
                                                       {P::ListenerGetAllowed(), &P::isListenerGetAllowed},
                                                       {P::ListenerSetAllowed(), &P::isListenerSetAllowed},
                                                       {P::ResetAllowed(), &P::isResetAllowed},
                                                       {P::Sealed(), &P::isSealed},
                                                       {P::Static(), &P::isStatic},
                                                       {P::Transient(), &P::isTransient}};
    for (auto const& [set, answer] : cases) {
        for (auto const& [other, predicate] : cases)
            EXPECT_EQ((set.*predicate)(), answer == predicate);
        EXPECT_FALSE((P().*answer)());
        EXPECT_TRUE(set.isVisible());
    }
    P changed;
    changed += P::Sealed();
    changed |= P::Static();
    changed -= P::Static();
    EXPECT_TRUE(changed.isSealed() && !changed.isStatic());
    EXPECT_TRUE(P::CanContainInterfaces().canContainInterfaces());
    EXPECT_FALSE(P::Hidden().isVisible());
    EXPECT_EQ(P::DESTRUCTIBLE, 0x10000u);
    EXPECT_EQ(P::NOACCESS_GET, 0x100000u);
}

TEST(PropertyAttributes, AccessOfTheTwoSidesIsIndependent)
{
    using Case = std::tuple<P, int, int>;
    for (auto const& [attributes, get, set] :
         {Case{P(), 0, 0}, Case{P::PrivateSetter(), 0, 2}, Case{P::NoAccessGetter() + P::ProtectedSetter(), 5, 1},
          Case{P::PrivateGetter() + P::ProtectedGetter(), 1, 0}, Case{P::NoAccessSetter() + P::PrivateSetter(), 0, 2},
          Case{(P::NoAccessGetter() | P::PrivateGetter()) - P::PrivateGetter(), 5, 0}}) {
        EXPECT_EQ(static_cast<int>(attributes.getMemberGetAccess()), get);
        EXPECT_EQ(static_cast<int>(attributes.getMemberSetAccess()), set);
    }
}

TEST(String, OwnsItsText)
{
    String text(std::string("abc"));
    String const& same = text;
    text = same;
    String const copy(text);
    text = String("");
    EXPECT_STREQ(text, "");
    EXPECT_STREQ(copy, "abc");
}

} // namespace
