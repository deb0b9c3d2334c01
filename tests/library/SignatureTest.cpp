#include "HvmTest.hpp"

#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/descriptors/ParameterNamer.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

using namespace orbis;
using namespace orbis::factory;

namespace {

TEST(ParameterNamer, NamesFollowTheirList)
{
    for (ParameterNamer const& namer : {ParameterNamer("a b c,,\td"), ParameterNamer(std::string("a b c,,\td"))}) {
        std::string joined = namer.getOutputParameter(7).c_str();
        for (unsigned int i = 1; i <= 4; ++i)
            joined += std::string(" ") + namer.getInputParameter(i).c_str();
        EXPECT_EQ(joined, "result abc  \td p3");
    }
    for (ParameterNamer const& unnamed : {ParameterNamer(nullptr), ParameterNamer(""), ParameterNamer(std::string())})
        EXPECT_STREQ(unnamed.getInputParameter(1).c_str(), "p0");
    EXPECT_STREQ(ParameterNamer(" ").getInputParameter(1).c_str(), "");
}

class SignatureTest : public HvmTest {
protected:
    /// What the host reads back from a signature.
    velmara::MethodRecord made(std::function<void(COSMethodSignaturePtr&)> const& create)
    {
        static int number = 0;
        std::string const name = "f" + std::to_string(number++);
        auto function = std::make_unique<FunctionInfo>(name.c_str(), MethodAttributes());
        create(function->method().signature());
        // Made once: later calls change nothing.
        impl::Invoker::createSignature("other", "logical scalar", "other.Class", "char",
                                       function->method().signature());
        COSPackage::getPackage("signatures")->addFunction(function.release());
        return hvm().describeFunction("signatures." + name);
    }

    SignatureTest() { registerOrbisPackage("signatures", {}); }
};

TEST_F(SignatureTest, OutputSelfAndInputsComeInOrder)
{
    using impl::Invoker;
    auto const record = made([](COSMethodSignaturePtr& signature) {
        Invoker::createSignature("a", "double scalar", "some.Class", "int32 scalar", "char vector", signature);
    });
    ASSERT_EQ(record.inputs.size(), 3u);
    EXPECT_EQ(record.inputs[0].name + ":" + record.inputs[0].dataType, "this:some.Class");
    EXPECT_EQ(record.inputs[1].name + ":" + record.inputs[1].dataType, "a:int32 scalar");
    EXPECT_EQ(record.inputs[2].name + ":" + record.inputs[2].dataType, "p1:char vector");
    ASSERT_EQ(record.outputs.size(), 1u);
    EXPECT_EQ(record.outputs[0].name + ":" + record.outputs[0].dataType, "result:double scalar");

    for (auto const& [output, outputs] : {std::pair("void", 0U), std::pair("void ", 1U)}) {
        auto const none = made([type = output](COSMethodSignaturePtr& signature) {
            Invoker::createSignature(nullptr, type, nullptr, signature);
        });
        EXPECT_TRUE(none.inputs.empty());
        EXPECT_EQ(none.outputs.size(), outputs);
    }
}

TEST_F(SignatureTest, InputsPastTheTenthAllHaveTheEleventhName)
{
    using impl::Invoker;
    char const* const t = "int32 scalar";
    auto const listed = made([&](COSMethodSignaturePtr& s) {
        Invoker::createSignature("a,b,c,d,e,f,g,h,i,j,k,l", "void", nullptr, t, t, t, t, t, t, t, t, t, t, t, t, s);
    });
    ASSERT_EQ(listed.inputs.size(), 12u);
    EXPECT_EQ(listed.inputs[9].name, "j");
    EXPECT_EQ(listed.inputs[10].name, "k");
    EXPECT_EQ(listed.inputs[11].name, "k");
    auto const full = made([&](COSMethodSignaturePtr& s) {
        Invoker::createSignature(nullptr, "void", "some.Class", t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t,
                                 t, s);
    });
    ASSERT_EQ(full.inputs.size(), 21u);
    EXPECT_EQ(full.inputs[10].name, "p9");
    EXPECT_EQ(full.inputs[11].name, "p10");
    EXPECT_EQ(full.inputs[20].name, "p10");
}

} // namespace
