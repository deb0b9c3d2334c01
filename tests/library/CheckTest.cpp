#include "HvmTest.hpp"
#include "library/Plain.hpp"
#include "library/Shared.hpp"

#include "orbis/factory/check.hpp"

#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/detail/bindings/handles.hpp"
#include "orbis/factory/detail/bindings/hostShares.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"

#include <cstdio>
#include <functional>

using namespace orbis;
using namespace orbis::factory;
using basic::BindingRegistry;
using velmara::ArrayPtr;

namespace {

/// Checks the virtual machine after every test of this program.
[[maybe_unused]] bool const isChecked = (HvmTest::check = &orbis::factory::check, true);

/// Two bound native objects with their host objects.
struct Pair {
    Plain first, second;
    ArrayPtr firstArray{BindingRegistry::announce(&first, COSNameID("tests.Plain"))};
    ArrayPtr secondArray{BindingRegistry::announce(&second, COSNameID("tests.Plain"))};

    static COSInterface& hostOf(ArrayPtr const& array)
    {
        COSInterface* const host = omGetArrayElement(array.get(), 0);
        return *host;
    }
    COSInterface& host() const { return hostOf(firstArray); }
    basic::RegistryEntry& entry() { return *basic::registry().at(&first); }
};

/// Leaves the binding of an object that is destroyed as it is.
struct ForgetfulInfo : PlainInfo {
    ForgetfulInfo() : PlainInfo("tests.Forgetful") {}
    bool destroyInstanceData(COSInterface*, void*) override { return false; }
};

class CheckTest : public HvmTest {
protected:
    CheckTest() { publishPlain(); }
};

TEST_F(CheckTest, ReportsEachInconsistency)
{
    struct Case {
        char const* expected; ///< part of the sentence
        std::function<void(Pair&)> breakIt;
        std::function<void(Pair&)> mend;
    };
    COSNameID const name("tests.Plain");
    Plain stranger;
    Case const cases[] = {
        {"under another address", [&](Pair& pair) { pair.entry().object = &stranger; },
         [](Pair& pair) { pair.entry().object = &pair.first; }},
        {"was told of its end", [](Pair& pair) { pair.entry().retracted = true; },
         [](Pair& pair) { pair.entry().retracted = false; }},
        {"has ended, or is invalid",
         [](Pair& pair) {
             BindingRegistry::retract(&pair.second);
             pair.entry().host = &Pair::hostOf(pair.secondArray);
         },
         [](Pair& pair) { pair.entry().host = &pair.host(); }},
        {"to a host object of tests.Plain that stands for another",
         [&](Pair& pair) { pair.host().setNativeObject(name, &stranger); },
         [&](Pair& pair) { pair.host().setNativeObject(name, &pair.first); }},
        {"which is bound to another host object",
         [&](Pair& pair) {
             BindingRegistry::release(&pair.first); // on purpose, but it is bound again
             BindingRegistry::hijack(&pair.first, &pair.first, &pair.host(), name);
             BindingRegistry::release(&pair.second);
             Pair::hostOf(pair.secondArray).setNativeObject(name, &pair.first);
             pair.entry().host = &Pair::hostOf(pair.secondArray);
         },
         [&](Pair& pair) {
             pair.entry().host = &pair.host();
             Pair::hostOf(pair.secondArray).setNativeObject(name, &pair.second);
         }},
        {"has a share in a native object",
         [](Pair& pair) {
             pair.host().setValid(false);
             detail::shareWithHost(pair.firstArray.get(), std::make_shared<int>(1));
         },
         [](Pair& pair) { detail::dropShare(&pair.host()); }},
    };
    for (Case const& broken : cases) {
        Pair pair;
        EXPECT_EQ(orbis::factory::check(), "");
        broken.breakIt(pair);
        EXPECT_NE(orbis::factory::check().find(broken.expected), std::string::npos)
            << broken.expected << ": " << orbis::factory::check();
        broken.mend(pair);
        EXPECT_EQ(orbis::factory::check(), "") << broken.expected;
    }
}

TEST_F(CheckTest, ReleasedBindingsAndValuesAreInOrder)
{
    Pair pair;
    BindingRegistry::release(&pair.first);
    ArrayPtr const again(BindingRegistry::announce(&pair.first, COSNameID("tests.Plain")));
    EXPECT_EQ(orbis::factory::check(), "") << "two host objects represent it";
    BindingRegistry::retract(&pair.second);
    EXPECT_EQ(orbis::factory::check(), "");
    pair.host().addReference();
    detail::enterHandle(&pair.host(), &pair.first, &pair.first, &pair);
    EXPECT_NE(orbis::factory::check().find("by a binding that is gone"), std::string::npos);
    detail::releaseForHandle(&pair);
}

template <class Kind>
void checkOrphaned()
{
    auto const shared = typename Shared<Kind>::Pointer(new Shared<Kind>);
    full::acquireReference(shared);
    EXPECT_EQ(orbis::factory::check(), "") << "who acquired it also releases it";
    shared->type = full::SharingType::HostKept;
    EXPECT_NE(orbis::factory::check().find("is kept for a host object, but has none"), std::string::npos);
    full::releaseReference(shared);
    EXPECT_EQ(orbis::factory::check(), "");
}

TEST_F(CheckTest, OrphanedObjectsAreFound)
{
    checkOrphaned<Boost>();
    checkOrphaned<Std>();
}

TEST(Check, WithoutAVirtualMachineAllIsWell)
{
    EXPECT_NO_THROW(::orbis_factory::orbis_factory::null_self()) << "nor has it texts to add";
    EXPECT_EQ(orbis::factory::check(), "");
    EXPECT_STREQ(PlainInfo().getName(), "tests.Plain") << "a class info that is published later";
}

TEST(LeakReport, NamesWhatIsStillBoundWhereAskedFor)
{
    for (bool const isAskedFor : {true, false}) {
        std::vector<std::string> leaks;
        Plain left, invalid, released, forgotten;
        {
            velmara::Hvm hvm;
            if (isAskedFor)
                hvm.reportLeaks([&](std::string const& leak) {
                    leaks.push_back(leak);
                    throw 1; // is lost
                });
            velmara::Hvm::Scope const scope(hvm);
            publishPlain();
            COSNameID const name("tests.Plain");
            registerOrbisPackage("tests", [](COSPackage* package) { package->addClass(new ForgetfulInfo); });
            ArrayPtr const array(BindingRegistry::announce(&left, COSNameID("tests.Forgetful")));
            ArrayPtr const ended(BindingRegistry::announce(&invalid, name));
            ArrayPtr const third(BindingRegistry::announce(&released, name));
            BindingRegistry::release(&released);
            Pair::hostOf(ended).setValid(false); // which is no leak
            detail::shareWithHost(third.get(), std::make_shared<int>(1));
            {
                ArrayPtr const another(BindingRegistry::announce(&released, name));
                EXPECT_EQ(check(), "") << "two stand for one, which is done on purpose";
            }
            // Of this one neither the host nor the history knows.
            basic::registry().emplace(&forgotten, new basic::RegistryEntry(&forgotten, &Pair::hostOf(third)));
        }
        char address[32];
        std::snprintf(address, sizeof address, "0x%llx",
                      static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(&left)));
        std::vector<std::string> const expected{"the native object " + std::string(address) +
                                                    " is still bound as tests.Forgetful",
                                                "a native object is still bound"};
        EXPECT_EQ(leaks, isAskedFor ? expected : std::vector<std::string>());
    }
    EXPECT_EQ(velmara::liveCounts(), velmara::LiveCounts{});
}

} // namespace
