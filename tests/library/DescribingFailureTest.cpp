#include "HvmTest.hpp"
#include "library/publishClass.hpp"

#include "orbis/factory/describeFunctions.hpp"

#include "orbis/COSClass.hpp"
#include "orbis/COSMethodInfo.hpp"
#include "orbis/COSPropInfo.hpp"

#include <stdexcept>

using namespace orbis;
using namespace orbis::factory;

namespace {

struct Derived {
    explicit Derived(int) {}
    virtual ~Derived() = default;
    int weight = 1;
    int doubled() const { return 2 * weight; }
    std::string const& name() const { return name_; }
    void setName(std::string name) { name_ = std::move(name); }
    static int sum(int a, int b) { return a + b; }

private:
    std::string name_;
};

} // namespace

PUBLISHED_IN_TESTS(Derived)

namespace {

ClassDescriber<Derived>& describeMembers(ClassDescriber<Derived>& derived)
{
    return derived.constructor<int>("weight")
        .method("doubled", &Derived::doubled)
        .staticMethod("sum", &Derived::sum, "a, b")
        .property("name", &Derived::name, &Derived::setName)
        .property("own", &Derived::weight)
        .writeOnlyProperty("renamed", &Derived::setName);
}

constexpr char const* members[] = {"tests.Derived.Derived", "tests.Derived.doubled", "tests.Derived.sum",
                                   "tests.Derived.name",    "tests.Derived.own",     "tests.Derived.renamed"};

struct DescribingFailureTest : HvmTest {
    DescribingFailureTest()
    {
        publishClass<Derived>([](auto& c) { describeMembers(c); });
        constexpr host_extensions::Message text{"member_not_published", "{0} cannot be published: {1}"};
        host_extensions::addMessages("orbis_factory:orbis_factory", {&text, 1});
    }
};

/// A host that refuses the n-th thing it is given.
class RefusingClass final : public COSClass {
public:
    explicit RefusingClass(int accepted) : left_(accepted) {}
    virtual ~RefusingClass() = default;

    char const* getName() const override { return "Derived"; }
    void addMethod(COSMethodInfo* method) override { take(std::unique_ptr<COSMethodInfo>(method)); }
    void addProperty(COSPropInfo* property) override { take(std::unique_ptr<COSPropInfo>(property)); }
    COSInterfacePtr newInstance() override { return {}; }
    void initializeInstance(COSInterfacePtr) override {}

    bool isSilent = false; ///< what it throws says nothing

private:
    template <class Descriptor>
    void take(std::unique_ptr<Descriptor>)
    {
        if (left_-- != 0)
            return;
        if (isSilent)
            throw 1;
        throw std::runtime_error("refused");
    }

    int left_;
};

TEST_F(DescribingFailureTest, TheNthMemberIsNamed)
{
    auto description = describe<Derived>();
    describeMembers(description);
    RefusingClass taking(-1); // the first description registers data types
    publish(&taking, description);
    velmara::LiveCounts const before = velmara::liveCounts();
    for (int n = 0; n < 6; ++n) {
        RefusingClass cls(n);
        cls.isSilent = n % 2 == 1;
        try {
            publish(&cls, description);
            ADD_FAILURE() << members[n];
        } catch (foundation::core::except::IMsgIDException const& error) {
            EXPECT_EQ(error.getErrorID(), "orbis_factory:orbis_factory:member_not_published");
            EXPECT_EQ(error.getArguments(),
                      (std::vector<std::string>{members[n], cls.isSilent ? "something that is no exception was thrown"
                                                                         : "refused"}));
        }
        EXPECT_EQ(velmara::liveCounts(), before) << members[n];
    }
}

TEST_F(DescribingFailureTest, AStaticPropertyNeedsNoObject)
{
    constexpr auto get = [] { return 1; };
    constexpr auto isStatic = PropertyAttributes::Static;
    auto const refused = [](auto const& describer) {
        RefusingClass cls(-1);
        return messageIdOf([&] { publish(&cls, describer); }) == "orbis_factory:orbis_factory:member_not_published";
    };
    EXPECT_FALSE(refused(describe<Derived>().property("x", get, isStatic())));
    EXPECT_TRUE(refused(describe<Derived>().property("x", &Derived::doubled, isStatic())));
    EXPECT_TRUE(refused(describe<Derived>().property("x", get, &Derived::weight, isStatic())));
    EXPECT_TRUE(refused(describe<Derived>().property("x", releasedBy<[](Derived*) {}>(get), isStatic())));
    EXPECT_TRUE(refused(describe<Derived>().writeOnlyProperty("x", &Derived::setName, isStatic())));
}

TEST_F(DescribingFailureTest, PackageFunctionsAreNamedToo)
{
    registerOrbisPackage("twice", [](COSPackage* package) {
        publish(package, describeFunctions().function("sum", &Derived::sum).function("sum", &Derived::sum));
    });
    expectMessage([&] { hvm().describePackage("twice"); }, {"sum cannot be published"});
}

} // namespace
