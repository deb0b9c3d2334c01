#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <stdexcept>

using namespace described;
using velmara::ArrayPtr;

namespace {

/// A class "P" with properties of every kind. Values that were read and not given back are counted.
class PropertyTest : public HvmTest {
protected:
    void publishProperties()
    {
        publish(new Class("P", [this](orbis::COSClass* cls) {
            cls->addProperty(make(
                "size", "int32 scalar", [this] { return COSValue(value_); }, true));
            cls->addProperty(make(
                "readOnly", "char vector", [] { return COSValue(hvCreateString("text")); }, false));
            cls->addProperty(make("writeOnly", "int32 scalar", {}, true));
            cls->addProperty(make(
                "shared", "int32 scalar", [this] { return COSValue(value_); }, true, true));
            cls->addProperty(make(
                "lies", "double scalar", [] { return COSValue(hvCreateString("text")); }, false));
            cls->addProperty(make(
                "unknown", "no.such.Class", [] { return COSValue(1.0); }, false));
            cls->addProperty(make(
                "fails", "double scalar", []() -> COSValue { throw std::runtime_error("no"); }, false));
        }));
    }

    Property* make(char const* name, char const* type, std::function<COSValue()> get, bool isWritable,
                   bool isStatic = false)
    {
        auto* const made = new Property;
        made->name = name;
        made->type = type;
        made->is_static = isStatic;
        if (get)
            made->get = [this, get, isStatic](COSInterface* object) {
                EXPECT_EQ(object == nullptr, isStatic);
                COSValue const value = get();
                ++unreleased_;
                return value;
            };
        if (isWritable)
            made->set = [this](COSInterface*, COSValue value) { value_ = value.scalar<std::int32_t>(); };
        made->release = [this](COSInterface*, COSValue value) {
            --unreleased_;
            if (value.isArray()) {
                EXPECT_EQ(value.array()->get_number_of_elements(), 4u) << "the array goes after this";
            }
        };
        return made;
    }

    std::int32_t value_ = 3;
    int unreleased_ = 0;
};

} // namespace

TEST_F(PropertyTest, ReadAndWrittenEachOnItsOwnTerms)
{
    publishProperties();
    ArrayPtr const p = hvm().construct("P"), seven = number(7), half = number(0.5);
    auto const readError = [&](char const* name) { return errorOf([&] { hvm().get(p.get(), name); }); };
    auto const writeError = [&](char const* name, hvArray_tag* value) {
        return errorOf([&] { hvm().set(p.get(), name, value); });
    };
    EXPECT_EQ(writeError("size", seven.get()), "");
    EXPECT_EQ(scalar<std::int32_t>(hvm().get(p.get(), "size")), 7);
    EXPECT_EQ(writeError("size", half.get()), "VELMARA:property:value");
    EXPECT_EQ(writeError("size", nullptr), "VELMARA:dispatch:nullInput");
    EXPECT_EQ(hvm().get(p.get(), "readOnly")->get_number_of_elements(), 4u);
    EXPECT_EQ(writeError("readOnly", seven.get()), "VELMARA:property:setAccess");
    EXPECT_EQ(readError("writeOnly"), "VELMARA:property:getAccess");
    EXPECT_EQ(writeError("writeOnly", seven.get()), "");
    EXPECT_EQ(readError("lies"), "VELMARA:result:type");
    EXPECT_EQ(readError("unknown"), "VELMARA:property:dataType");
    EXPECT_EQ(readError("fails"), "VELMARA:native:exception");
    EXPECT_EQ(readError("missing"), "VELMARA:property:unknown");
    EXPECT_EQ(unreleased_, 0);
    hvm().deleteObjects(p.get());
    EXPECT_EQ(readError("size"), "VELMARA:object:invalid");
    EXPECT_EQ(writeError("size", seven.get()), "VELMARA:object:invalid");
}

TEST_F(PropertyTest, StaticOnesNeedNoObject)
{
    publishProperties();
    ArrayPtr const seven = number(7), p = hvm().construct("P");
    hvm().setStatic("P", "shared", seven.get());
    EXPECT_EQ(scalar<std::int32_t>(hvm().getStatic("P", "shared")), 7);
    EXPECT_EQ(scalar<std::int32_t>(hvm().get(p.get(), "shared")), 7);
    EXPECT_EQ(errorOf([&] { hvm().getStatic("P", "size"); }), "VELMARA:property:noObject");
    velmara::ClassRecord const record = hvm().describeClass("P");
    ASSERT_EQ(record.properties.size(), 7u);
    EXPECT_EQ(record.properties[1].dataType, "char vector");
    EXPECT_EQ(record.properties[1].setAccess, orbis::MemberAccess::NoAccess);
    EXPECT_TRUE(record.properties[3].isStatic);
    EXPECT_EQ(record.properties[5].dataType, "");
}
