#include "HvmTest.hpp"
#include "library/Tally.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/descriptors/OrbisConstructor.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"

#include "orbis/COSMethodSignature.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

class InvocationTest : public HvmTest {
protected:
    InvocationTest() { TallyInfo::publishIn("tests"); }
    ~InvocationTest() override { EXPECT_EQ(Tally::alive, 0); }

    ArrayPtr tally(double start) { return hvm().construct("tests.Tally", inputs(number(start))); }

    ArrayPtr call(ArrayPtr const& object, char const* method) { return hvm().call(object.get(), method); }
};

TEST_F(InvocationTest, NullSelfIsRefusedWhereAnObjectIsRequired)
{
    ArrayPtr const none(omCreateORBISMatrix(0, 0, "tests.Tally"));
    auto const nullSelf = "orbis_factory:orbis_factory:null_self";
    for (char const* const method : {"value", "forced"})
        EXPECT_EQ(errorOf([&] { hvm().call(none.get(), method); }), nullSelf) << method;
    EXPECT_EQ(scalar<std::int32_t>(hvm().callStatic("tests.Tally", "optional", inputs(none))), -1);
}

TEST_F(InvocationTest, AnObjectArrayPassesItsFirstElement)
{
    ArrayPtr const first = tally(1), second = tally(2);
    call(rowOf("tests.Tally", {&first, &second}), "reset");
    EXPECT_EQ(scalar<std::int32_t>(call(first, "value")), 0);
    EXPECT_EQ(scalar<std::int32_t>(call(second, "value")), 2);
}

TEST_F(InvocationTest, MembersAreDescribedToTheHost)
{
    EXPECT_EQ(methodsOf("tests.Tally"), R"(tests.Tally: result = Tally() -> tests.Tally
tests.Tally: result = Tally(start: int32 scalar) -> tests.Tally
tests.Tally: result = add(this: tests.Tally, a: int32 scalar, b: int32 scalar) -> int32 scalar
tests.Tally: sealed result = value(this: tests.Tally) -> int32 scalar
tests.Tally: reset(this: tests.Tally)
tests.Tally: result = self(this: tests.Tally) -> tests.Tally
tests.Tally: result = mean(this: tests.Tally, p0: single scalar, p1: double scalar, p2: logical scalar) -> double scalar
tests.Tally: result = forced(p0: tests.Tally) -> int32 scalar
tests.Tally: result = doubled(tally: tests.Tally, by: int32 scalar) -> int32 scalar
tests.Tally: static result = plus(a: int32 scalar, b: int32 scalar) -> int32 scalar
tests.Tally: static result = optional(p0: tests.Tally) -> int32 scalar
)");
}

// The contract of invoke itself, without the host's dispatch in between.
TEST_F(InvocationTest, OutputCountsAreRaisedOnlyForResults)
{
    impl::MethodImpl add("add", {}, "");
    impl::MethodImpl reset("reset", {}, "");
    auto const bind = [](impl::MethodImpl& method, MemberRecord const& record) {
        method.invoker().invokeFn = record.invokeFn;
        method.invoker().setTarget(record.target);
    };
    auto const description = describe<Tally>().method("add", &Tally::add).method("reset", &Tally::reset);
    bind(add, description.members().at(0));
    bind(reset, description.members().at(1));

    ArrayPtr const object = tally(1);
    COSValue const inputs[] = {COSValue(object.get()), COSValue(std::int32_t{2}), COSValue(std::int32_t{3})};
    for (auto const& [given, after] : {std::pair(0, 1), std::pair(1, 1)}) {
        int count = given;
        COSValue output;
        add.invoke(nullptr, count, &output, 3, inputs);
        EXPECT_EQ(count, after);
        EXPECT_EQ(output.scalarClass(), hvINT32_CLASS);
    }
    int count = 0;
    reset.invoke(nullptr, count, nullptr, 1, inputs);
    EXPECT_EQ(count, 0) << "there is no output to be touched, either";

    ArrayPtr const none(omCreateORBISMatrix(0, 0, "tests.Tally"));
    COSValue const null[] = {COSValue(none.get())};
    EXPECT_THROW(reset.invoke(nullptr, count, nullptr, 1, null), std::exception);
    EXPECT_EQ(count, 0);
}

TEST_F(InvocationTest, AFunctionInfoAnswersOnlyNameSignatureAndInvoke)
{
    FunctionInfo function("plus", MethodAttributes::Static() + MethodAttributes::Hidden() + MethodAttributes::Sealed());
    impl::Invoker::createSignature("a, b", "int32 scalar", nullptr, "int32 scalar", "int32 scalar",
                                   function.method().signature());
    EXPECT_STREQ(function.getName(), "plus");
    EXPECT_EQ(function.getMethodSignature(), function.method().getMethodSignature());
    EXPECT_NE(function.getMethodSignature(), nullptr);
    EXPECT_TRUE(function.isVisible());
    EXPECT_FALSE(function.isStatic());
    EXPECT_FALSE(function.isSealed());
    EXPECT_FALSE(function.method().isVisible());
    EXPECT_TRUE(function.method().isSealed());
}

// A class info that makes the native object beforehand, and whose class cannot be assigned.
struct Fixed {
    explicit Fixed(int start = 0) : value(start) {}
    int get() const { return value; }
    int const value;
};

} // namespace

PUBLISHED_IN_TESTS(Fixed)

namespace {

class FixedInfo final : public HandleClassInfo<Fixed, 0> {
public:
    FixedInfo() : HandleClassInfo("tests.Fixed", "") {}
    void initializeClass(COSClass* cls) override
    {
        publish(cls, describe<Fixed>().constructor().constructor<int>().method("get", &Fixed::get));
    }
    void* createInstanceData() override { return new Fixed(7); }
    bool destroyInstanceData(COSInterface*, void* data) override
    {
        std::unique_ptr<Fixed> const owner(static_cast<Fixed*>(data));
        return basic::BindingRegistry::release(data);
    }
};

TEST_F(InvocationTest, ConstructorsUseTheNativeObjectThatIsThereAlready)
{
    registerOrbisPackage("tests", [](COSPackage* package) { package->addClass(new FixedInfo); });
    ArrayPtr const made = hvm().construct("tests.Fixed");
    impl::OrbisConstructor again("Fixed", {}, "");
    again.invoker().invokeFn = ClassDescription(describe<Fixed>().constructor()).members().at(0).invokeFn;
    COSValue output(made.get());
    int outputCount = 0;
    again.invoke(nullptr, outputCount, &output, 0, nullptr);
    EXPECT_EQ(outputCount, 1);
    EXPECT_EQ(scalar<std::int32_t>(call(made, "get")), 7);
    ArrayPtr const start = number(1);
    EXPECT_NE(errorOf([&] { hvm().construct("tests.Fixed", inputs(start)); }), "");
}

} // namespace
