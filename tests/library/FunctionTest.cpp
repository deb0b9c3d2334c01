#include "HvmTest.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/types/function.hpp"

#include <thread>

using namespace orbis;
using namespace orbis::factory;
using namespace orbis::host_extensions;
using velmara::ArrayPtr;

namespace {

struct Part {
    explicit Part(double given) : size(given) {}
    double size;
};

/// What the tests' functions are: the arrays that they are given, and the one that they give.
using Body = std::function<ArrayPtr(std::vector<hvArray_tag*>)>;

/// A function without a signature, as scripts have them.
class Untyped final : public COSMethodInfo {
public:
    explicit Untyped(Body body) : body_(std::move(body)) {}

    char const* getName() const override { return "untyped"; }
    COSMethodSignature const* getMethodSignature() const override { return nullptr; }

    void invoke(COSClient const*, int& outputCount, COSValue* outputs, int inputCount,
                COSValue const* inputs) const override
    {
        std::vector<hvArray_tag*> arrays;
        for (int i = 0; i < inputCount; ++i)
            arrays.push_back(inputs[i].array());
        ArrayPtr result = body_(arrays);
        outputCount = result ? 1 : 0;
        outputs[0] = COSValue(result.release());
    }

private:
    Body body_;
};

ArrayPtr untyped(Body const& body)
{
    return ArrayPtr(createFunction(new Untyped(body)));
}

using Unary = std::function<double(double)>;
using Visitor = std::function<void(Part&)>;

/// What native code keeps, beyond the virtual machine.
Unary keptFunction;

class FunctionTest : public HvmTest {
protected:
    FunctionTest()
    {
        registerModule("functions", [](Module& functions) {
            functions.function(
                "apply", +[](Unary const& function, double number) { return function(number); }, "function, number");
            functions.function(
                "applyTexts", +[](std::function<std::string(std::string const&, std::vector<double>)> const& function) {
                    return function("text", {1, 2});
                });
            functions.function(
                "maybe", +[](std::optional<Unary> const& function) { return function ? (*function)(1) : -1; });
            functions.function(
                "keep", +[](Unary function) { keptFunction = std::move(function); });
            functions.function(
                "kept", +[] { return keptFunction; });
            functions.function(
                "adder", +[](double summand) -> Unary {
                    return summand == 0 ? Unary() : [summand](double number) { return number + summand; };
                });
            functions.function(
                "visit", +[](Visitor const& visitor) {
                    Part part(3);
                    visitor(part);
                    return part.size;
                });
            functions.function(
                "make", +[](std::function<Part(Part const&)> const& function) { return function(Part(4)).size; });
            functions.publish<Part>("Part").constructor<double>("size").property("size", &Part::size);
        });
    }

    ~FunctionTest() override { keptFunction = nullptr; }

    template <class... A>
    ArrayPtr call(char const* name, A const&... arrays)
    {
        return hvm().callFunction("functions." + std::string(name), inputs(arrays...));
    }

    /// A function that gives a number.
    ArrayPtr giving(double result)
    {
        return untyped([=](auto const&) { return number(result); });
    }
};

} // namespace

TEST_F(FunctionTest, ArgumentsAndResultsAreConverted)
{
    ArrayPtr const negate =
        untyped([](auto const& in) { return number(-*static_cast<double const*>(getData(in.at(0)))); });
    EXPECT_EQ(scalar<double>(call("apply", negate, number(5))), -5);
    std::vector<std::string> given;
    call("applyTexts", untyped([&](auto const& in) {
             for (hvArray_tag const* const array : in)
                 given.push_back(velmara::className(array) + std::to_string(array->get_number_of_elements()));
             return ArrayPtr(hvCreateString("result"));
         }));
    EXPECT_EQ(given, (std::vector<std::string>{"char4", "double2"}));

    auto const applied = [&](ArrayPtr result) {
        auto const shared = std::make_shared<ArrayPtr>(std::move(result));
        return [this, shared] { call("apply", untyped([=](auto const&) { return std::move(*shared); }), number(1)); };
    };
    expectMessage(applied(ArrayPtr(hvCreateString("x"))), {"VELMARA:function:result", "result", "number, not char"});
    expectMessage(applied(nullptr), {"VELMARA:function:noResult", "double scalar"});
}

TEST_F(FunctionTest, OnlyFunctionsFit)
{
    ArrayPtr const none(createMatrix(0, 0, hvDOUBLE_CLASS));
    expectMessage([&] { call("apply", none, number(1)); },
                  {"VELMARA:dispatch:noMatch", "function: needs a function, not []"});
    EXPECT_EQ(scalar<double>(call("maybe", none)), -1);
    EXPECT_EQ(scalar<double>(call("maybe", giving(2))), 2);
    EXPECT_EQ(hvm().describeFunction("functions.apply").inputs.at(0).dataType,
              "function(double scalar) -> double scalar");
    EXPECT_EQ(hvm().describeFunction("functions.maybe").inputs.at(0).dataType,
              "function(double scalar) -> double scalar or empty");
    EXPECT_STREQ((detail::dataTypeText<std::function<std::optional<double>(Visitor)>>()),
                 "function(function(functions.Part)) -> (double scalar or empty)");
}

TEST_F(FunctionTest, NativeFunctionsAreCalledByScripts)
{
    ArrayPtr const adder = call("adder", number(4));
    EXPECT_TRUE(hvIsA(adder.get(), "function"));
    EXPECT_EQ(scalar<double>(hvm().callFunction(adder.get(), inputs(number(3)))), 7);
    EXPECT_EQ(scalar<double>(call("apply", adder, number(1))), 5);
    ArrayPtr const copy(hvCreateDeepCopy(adder.get()));
    EXPECT_EQ(getFunction(copy.get()), getFunction(adder.get()));
    EXPECT_EQ(errorOf([&] { hvm().callFunction(adder.get(), inputs(copy)); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(errorOf([&] { hvm().callFunction(number(1).get()); }), "VELMARA:array:notFunction");
    EXPECT_EQ(call("adder", number(0)), nullptr);
    ArrayPtr const own = giving(1);
    call("keep", own);
    EXPECT_EQ(getFunction(call("kept").get()), getFunction(own.get()));
}

TEST_F(FunctionTest, ObjectsAreLentForTheCall)
{
    ArrayPtr part;
    auto const visit = [&](ArrayPtr const& visited) {
        return call("visit", untyped([&](auto const& in) {
                        part.reset(hvCreateSharedDataCopy(in.at(0)));
                        hvm().set(part.get(), "size", visited.get());
                        return nullptr;
                    }));
    };
    EXPECT_EQ(scalar<double>(visit(number(8))), 8);
    EXPECT_FALSE(velmara::isValid(part.get()));
    EXPECT_EQ(errorOf([&] { visit(ArrayPtr(hvCreateString("x"))); }), "VELMARA:property:value");
    EXPECT_FALSE(velmara::isValid(part.get()));
    ArrayPtr const own = hvm().construct("functions.Part", inputs(number(6)));
    EXPECT_EQ(
        scalar<double>(call("make", untyped([&](auto const&) { return ArrayPtr(hvCreateSharedDataCopy(own.get())); }))),
        6);
    EXPECT_TRUE(velmara::isValid(own.get()));
}

TEST_F(FunctionTest, KeptFunctionsAreCalledWhereTheyBelong)
{
    std::weak_ptr<int> alive;
    auto const keep = [&] {
        auto const token = std::make_shared<int>();
        alive = token;
        call("keep", untyped([token](auto const&) { return number(1); }));
    };
    auto const error = [&] { return messageIdOf([] { keptFunction(1); }); };
    keep();
    EXPECT_EQ(keptFunction(1), 1);
    std::string elsewhere;
    std::thread([&] { elsewhere = error(); }).join();
    EXPECT_EQ(elsewhere, "VELMARA:function:notCurrent");
    {
        velmara::Hvm other;
        velmara::Hvm::Scope const scope(other);
        EXPECT_EQ(error(), "VELMARA:function:otherVirtualMachine");
    }
    keptFunction = nullptr;
    EXPECT_TRUE(alive.expired());

    keep();
    std::thread([] { keptFunction = nullptr; }).join();
    EXPECT_FALSE(alive.expired()); // its thread destroys it, sooner or later
    giving(1);
    EXPECT_TRUE(alive.expired());

    keep();
    ArrayPtr const left = giving(1);
    endHvm();
    EXPECT_TRUE(alive.expired());
    EXPECT_EQ(error(), "VELMARA:function:ended");
    EXPECT_EQ(getFunction(left.get()), nullptr);
    std::thread([] { keptFunction = nullptr; }).join();
}

/// What scripts throw may be of a class of its own.
TEST_F(FunctionTest, ErrorsPassThroughNativeCode)
{
    struct OwnError final : velmara::Error {
        OwnError() : Error("own:error", "of a script") {}
    };
    ArrayPtr const failing = untyped([](auto const&) -> ArrayPtr { throw OwnError(); });
    EXPECT_THROW(call("apply", failing, number(1)), OwnError);
    EXPECT_EQ(errorOf([&] { call("apply", failing, number(1)); }), "own:error");
}
