#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <limits>

using namespace described;
using velmara::ArrayPtr;
using velmara::Hvm;
using velmara::MemberName;

namespace {

class MemberNameTest : public HvmTest {
protected:
    static void publishIn(Hvm& machine, char const* className, double answer)
    {
        Hvm::Scope const scope(machine);
        std::string const name = className;
        orbis::COSPackage::addPackage(new Package(name.substr(0, name.find('.')), [=](orbis::COSPackage* package) {
            package->addClass(new Class(name, [=](orbis::COSClass* cls) {
                cls->addMethod(answering("f", {}, answer, {.isStatic = true}));
                cls->addMethod(answering("m", {name}, answer));
            }));
        }));
    }

    static double callStatic(Hvm& machine, MemberName& name)
    {
        Hvm::Failure failure;
        velmara::Value const result = machine.callStatic(name, {}, failure);
        return failure ? -1 : result.slot().scalar<double>();
    }

    static double call(Hvm& machine, ArrayPtr const& object, MemberName& name)
    {
        Hvm::Failure failure;
        velmara::Value const result = machine.call(object.get(), name, {}, failure);
        return failure ? -1 : result.slot().scalar<double>();
    }
};

std::string textOf(Hvm::Failure const& failure)
{
    return failure ? failure->what() : "";
}

} // namespace

TEST_F(MemberNameTest, MeansWhatIsPublishedNow)
{
    MemberName f("p.D", "f"), m("p.D", "m");
    EXPECT_EQ(callStatic(hvm(), f), -1);
    publishIn(hvm(), "p.D", 1);
    ArrayPtr const object = hvm().construct("p.D");
    EXPECT_EQ(callStatic(hvm(), f), 1);
    EXPECT_EQ(call(hvm(), object, m), 1);
    {
        Hvm other;
        EXPECT_EQ(callStatic(other, f), -1);
        publishIn(other, "p.D", 2);
        EXPECT_EQ(callStatic(other, f), 2);
        EXPECT_EQ(call(other, object, m), -1); // the object is another machine's
        EXPECT_EQ(callStatic(hvm(), f), 1);
        EXPECT_EQ(callStatic(other, f), 2);
    }
    EXPECT_EQ(callStatic(hvm(), f), 1);
    publishIn(hvm(), "q.E", 3);
    EXPECT_EQ(call(hvm(), hvm().construct("q.E"), m), 3); // of an object's own class
    EXPECT_EQ(call(hvm(), object, m), 1);
    orbis::COSPackage::removePackage("p");
    EXPECT_EQ(callStatic(hvm(), f), -1);
    EXPECT_EQ(call(hvm(), object, m), -1);
    publishIn(hvm(), "p.D", 4);
    EXPECT_EQ(callStatic(hvm(), f), 4);
}

TEST_F(MemberNameTest, NothingIsRememberedOfAClassThatLosesItsBase)
{
    MemberName f("Derived", "f");
    orbis::COSPackage::addPackage(
        new Package("p", [](orbis::COSPackage* package) { package->addClass(new Class("p.Base")); }));
    ArrayPtr objects[2];
    double during = 0;
    auto* const derived = new Class("Derived", [](orbis::COSClass* cls) {
        setSuperclass(cls, "p.Base");
        cls->addMethod(answering("f", {}, 1, {.isStatic = true}));
    });
    derived->destroy = [&](COSInterface*, void*) {
        for (ArrayPtr const& object : objects)
            during = std::max(during, call(hvm(), object, f));
    };
    publish(derived);
    for (ArrayPtr& object : objects)
        object = hvm().construct("Derived");
    orbis::COSPackage::removePackage("p");
    EXPECT_EQ(during, 1);
    EXPECT_EQ(callStatic(hvm(), f), -1);
}

TEST_F(MemberNameTest, ScalarsCrossAsTheirArraysDo)
{
    std::vector<std::string> const types = {"double scalar",
                                            "single scalar",
                                            "int8 scalar",
                                            "int64 scalar",
                                            "uint64 scalar",
                                            "logical scalar",
                                            "double vector",
                                            "int32 vector",
                                            "char vector",
                                            "double scalar or empty",
                                            "any"};
    std::vector<COSValue> const values = {COSValue(2.0),
                                          COSValue(-0.0),
                                          COSValue(2.5),
                                          COSValue(300.0),
                                          COSValue(1e300),
                                          COSValue(std::numeric_limits<double>::quiet_NaN()),
                                          COSValue(std::int64_t(1) << 62),
                                          COSValue((std::int64_t(1) << 62) + 1),
                                          COSValue(true),
                                          COSValue(std::uint8_t(7))};
    publish(new Class("T", [&](orbis::COSClass* cls) {
        for (std::size_t i = 0; i < types.size(); ++i)
            cls->addMethod(new Method(
                "f" + std::to_string(i), "any", {types[i]},
                [](Call const& call) {
                    bool const isScalar = !call.inputs[0].isArray();
                    hvArray* const row = orbis::host_extensions::createMatrix(1, 1, hvUINT64_CLASS);
                    if (isScalar)
                        *static_cast<std::uint64_t*>(orbis::host_extensions::getWritableData(row)) =
                            call.inputs[0].scalar<std::uint64_t>() + call.inputs[0].scalarClass();
                    call.give(COSValue(
                        isScalar ? row : (hvDestroyArray(row), hvCreateSharedDataCopy(call.inputs[0].array()))));
                },
                {.isStatic = true}));
    }));
    for (std::size_t i = 0; i < types.size(); ++i)
        for (COSValue const& value : values) {
            auto const bytes = value.scalar<std::uint64_t>();
            ArrayPtr const array(orbis::host_extensions::createMatrix(1, 1, value.scalarClass(), &bytes));
            COSValue const held(array.get());
            MemberName name("T", "f" + std::to_string(i));
            Hvm::Failure failures[2];
            velmara::Value results[2] = {hvm().callStatic(name, {&value, 1}, failures[0]),
                                         hvm().callStatic(name, {&held, 1}, failures[1])};
            std::string const what = types[i] + " from class " + std::to_string(value.scalarClass());
            EXPECT_EQ(textOf(failures[0]), textOf(failures[1])) << what;
            if (textOf(failures[0]).empty()) {
                EXPECT_TRUE(velmara::isEqual(results[0].slot().array(), results[1].slot().array())) << what;
            }
        }
}
