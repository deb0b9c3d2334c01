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
    /// The signature as the host lists it, of a function without a name.
    std::string made(std::function<void(COSMethodSignaturePtr&)> const& create)
    {
        static int number = 0;
        std::string const name = "f" + std::to_string(number++);
        auto function = std::make_unique<FunctionInfo>(name.c_str(), MethodAttributes());
        create(function->method().signature());
        // Created once: later calls change nothing.
        impl::Invoker::createSignature("other", "logical scalar", "other.Class", "char",
                                       function->method().signature());
        COSPackage::getPackage("signatures")->addFunction(function.release());
        std::string signature = hvm().describeFunction("signatures." + name).signature;
        return signature.erase(signature.find(name), name.size());
    }

    SignatureTest() { registerOrbisPackage("signatures", {}); }
};

TEST_F(SignatureTest, OutputSelfAndInputsComeInOrder)
{
    using impl::Invoker;
    auto const member = made([](COSMethodSignaturePtr& signature) {
        Invoker::createSignature("a", "double scalar", "some.Class", "int32 scalar", "char vector", signature);
    });
    EXPECT_EQ(member, "result = (this: some.Class, a: int32 scalar, p1: char vector) -> double scalar");
    for (auto const& [output, expected] : {std::pair("void", "()"), std::pair("void ", "result = () -> void ")}) {
        auto const none = made([type = output](COSMethodSignaturePtr& signature) {
            Invoker::createSignature(nullptr, type, nullptr, signature);
        });
        EXPECT_EQ(none, expected);
    }
}

TEST_F(SignatureTest, InputsPastTheTenthAllHaveTheEleventhName)
{
    using impl::Invoker;
    char const* const t = "char";
    auto const listed = made([&](COSMethodSignaturePtr& s) {
        Invoker::createSignature("a,b,c,d,e,f,g,h,i,j,k,l", "void", nullptr, t, t, t, t, t, t, t, t, t, t, t, t, s);
    });
    EXPECT_EQ(listed, "(a: char, b: char, c: char, d: char, e: char, f: char, g: char, h: char, i: char, j: char, "
                      "k: char, k: char)");
    auto const full = made([&](COSMethodSignaturePtr& s) {
        Invoker::createSignature(nullptr, "void", "some.Class", t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t,
                                 t, s);
    });
    EXPECT_EQ(full,
              "(this: some.Class, p0: char, p1: char, p2: char, p3: char, p4: char, p5: char, p6: char, p7: char, "
              "p8: char, p9: char, p10: char, p10: char, p10: char, p10: char, p10: char, p10: char, p10: char, "
              "p10: char, p10: char, p10: char)");
}

} // namespace
