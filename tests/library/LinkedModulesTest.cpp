#include "HvmTest.hpp"

using namespace orbis;
using velmara::ArrayPtr;

namespace {

/// Modules of their own, in which the same native classes have records of their own.
class LinkedModulesTest : public HvmTest {
protected:
    void load(std::string const& name)
    {
#if defined(_WIN32)
        static_cast<void>(hvm().loadModule(name + ".dll"));
#else
        static_cast<void>(hvm().loadModule("./lib" + name + ".so"));
#endif
    }

    ArrayPtr call(char const* function, ArrayPtr const& input) { return hvm().callFunction(function, inputs(input)); }

    static std::string textOf(ArrayPtr const& array)
    {
        std::unique_ptr<char, void (*)(void*)> const text(hvArrayToString(array.get()), &hvFreeEx);
        return text.get();
    }
};

TEST_F(LinkedModulesTest, ClassesOfAModuleCrossInAnother)
{
    for (auto const& [first, second] : {std::pair("engines", "cars"), std::pair("cars", "engines")}) {
        SCOPED_TRACE(first);
        load(first);
        load(second);
        ArrayPtr const engine = hvm().construct("engines.Engine", inputs(number(2)));
        call("cars.tune", engine);
        EXPECT_EQ(scalar<double>(hvm().get(engine.get(), "power")), 4);
        EXPECT_EQ(textOf(call("cars.kindOf", engine)), "engine");
        EXPECT_EQ(scalar<double>(call("cars.scrap", engine)), 4);
        EXPECT_FALSE(velmara::isValid(engine.get()));

        ArrayPtr const turbo = hvm().construct("cars.Turbo");
        EXPECT_EQ(textOf(hvm().call(turbo.get(), "kind")), "turbo") << "an inherited method";
        EXPECT_EQ(scalar<std::int32_t>(call("engines.serialOf", turbo)), 7);
        for (bool const isTurbo : {false, true})
            EXPECT_EQ(velmara::className(call("cars.make", matrix<bool>(1, 1, {isTurbo})).get()),
                      isTurbo ? "cars.Turbo" : "engines.Engine");
        ArrayPtr const common = hvm().callFunction("cars.common");
        EXPECT_TRUE(velmara::isSameObject(hvm().callFunction("cars.all").get(), common.get()));
        hvm().deleteObjects(common.get());
        hvm().unloadModule(first == std::string("cars") ? first : second);
        hvm().unloadModule("engines");
    }
}

TEST_F(LinkedModulesTest, WithoutTheOtherTheClassIsNamed)
{
    load("cars");
    expectMessage([&] { hvm().callFunction("cars.common"); },
                  {"the class Engine is not published: publish it, or load the module that does"});
}

} // namespace
