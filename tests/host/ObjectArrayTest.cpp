#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

using namespace described;
using orbis::COSInterfacePtr;
using orbis::COSReferenceType;
using orbis::omGetArrayElement;
using orbis::omSetArrayElement;
using velmara::ArrayPtr;

namespace {

/// "Left" and "Right" below "Base", and "Other"; the log has the first letter of each destroyed object.
class ObjectArrayTest : public HvmTest {
protected:
    ObjectArrayTest()
    {
        for (char const* name : {"Base", "Left", "Right", "Other"}) {
            auto* const info = new Class(name);
            if (*name == 'L' || *name == 'R')
                info->describe = [](orbis::COSClass* cls) { setSuperclass(cls, "Base"); };
            info->destroy = [this, name](COSInterface*, void*) {
                log_ += *name;
                if (auto const then = std::exchange(whenDestroyed_, nullptr))
                    then();
            };
            publish(info);
        }
    }

    COSInterfacePtr object(char const* className) { return omGetArrayElement(hvm().construct(className).get(), 0); }

    static ArrayPtr matrix(std::size_t columns, char const* className)
    {
        return ArrayPtr(orbis::omCreateORBISMatrix(1, columns, className));
    }

    std::string log_;
    std::function<void()> whenDestroyed_;
};

} // namespace

TEST_F(ObjectArrayTest, ArraysHoldInternalReferencesAndHandlesExternalOnes)
{
    COSInterfacePtr const held = object("Other");
    COSInterface* const raw = held;
    for (std::size_t const size : {1, 3}) {
        ArrayPtr array = matrix(size, "Other");
        EXPECT_EQ(omGetArrayElement(array.get(), size - 1), nullptr);
        omSetArrayElement(array.get(), size - 1, held);
        omSetArrayElement(array.get(), size - 1, held);
        ArrayPtr const shared(hvCreateSharedDataCopy(array.get()));
        ArrayPtr const deep(hvCreateDeepCopy(array.get()));
        omSetArrayElement(array.get(), size - 1, nullptr);
        EXPECT_EQ(omGetArrayElement(array.get(), size - 1), nullptr);
        EXPECT_EQ(omGetArrayElement(shared.get(), size - 1), raw);
        EXPECT_EQ(orbis::cosiGetArrayElement(deep.get(), size - 1), raw);
        array.reset();
        EXPECT_EQ(raw->getInternalReferenceCount(), 2);
        EXPECT_EQ(raw->getExternalReferenceCount(), 1);
    }
    EXPECT_EQ(raw->getInternalReferenceCount(), 0);
    EXPECT_EQ(log_, "");
    ArrayPtr const none(orbis::omCreateORBISScalar(nullptr));
    EXPECT_TRUE(orbis::omIsORBIS(none.get()));
    EXPECT_EQ(none->get_dimensions()[0] + none->get_dimensions()[1], 0u);
}

TEST_F(ObjectArrayTest, ArraysKeepTheirObjectsAliveAlsoInCells)
{
    ArrayPtr cell(hvCreateCellMatrix(1, 1));
    hvSetCell(cell.get(), 0, orbis::omCreateORBISScalar(object("Left")));
    ArrayPtr copy(hvCreateDeepCopy(cell.get()));
    ArrayPtr row = matrix(2, "Base");
    omSetArrayElement(row.get(), 0, object("Right"));
    omSetArrayElement(row.get(), 1, object("Base"));
    EXPECT_EQ(log_, "");
    row.reset();
    EXPECT_EQ(log_, "RBB"); // a Right is a Base, too
    cell.reset();
    EXPECT_EQ(log_, "RBB");
    copy.reset();
    EXPECT_EQ(log_, "RBBLB");
}

TEST_F(ObjectArrayTest, ElementsAreOfTheArraysClass)
{
    COSInterfacePtr const left = object("Left"), base = object("Base"), other = object("Other");
    ArrayPtr const lefts = matrix(2, "Left");
    omSetArrayElement(lefts.get(), 0, left);
    EXPECT_EQ(messageIdOf([&] { omSetArrayElement(lefts.get(), 0, base); }), "VELMARA:array:wrongClass");
    EXPECT_EQ(messageIdOf([&] { omSetArrayElement(lefts.get(), 0, other); }), "VELMARA:array:wrongClass");
    EXPECT_EQ(omGetArrayElement(lefts.get(), 0), static_cast<COSInterface*>(left));
    EXPECT_EQ(base->getInternalReferenceCount(), 0);

    ArrayPtr const bases = matrix(3, "Base");
    omSetArrayElement(bases.get(), 0, left);
    omSetArrayElement(bases.get(), 2, object("Left"));
    EXPECT_TRUE(hvIsA(bases.get(), "Base"));
    EXPECT_FALSE(hvIsA(bases.get(), "Left"));
    orbis::omSetClassOfHeterogeneousArray(bases.get());
    EXPECT_TRUE(hvIsA(bases.get(), "Left"));
    EXPECT_TRUE(hvIsA(bases.get(), "Base"));
    EXPECT_FALSE(hvIsA(bases.get(), "Other"));
    EXPECT_FALSE(hvIsA(bases.get(), "ObjectArrayTest.neverNamed"));

    ArrayPtr const mixed = matrix(2, "Base");
    omSetArrayElement(mixed.get(), 0, left);
    omSetArrayElement(mixed.get(), 1, object("Right"));
    orbis::omSetClassOfHeterogeneousArray(mixed.get());
    EXPECT_EQ(velmara::className(mixed.get()), "Base");
    ArrayPtr const empty = matrix(2, "Right");
    orbis::omSetClassOfHeterogeneousArray(empty.get());
    EXPECT_EQ(velmara::className(empty.get()), "Right");
}

TEST_F(ObjectArrayTest, ADestroyedObjectMayUseItsFormerHolder)
{
    ArrayPtr const row = matrix(2, "Other");
    COSInterfacePtr handle = object("Other");
    omSetArrayElement(row.get(), 0, object("Other"));
    whenDestroyed_ = [&] {
        EXPECT_EQ(omGetArrayElement(row.get(), 0), static_cast<COSInterface*>(handle));
        omSetArrayElement(row.get(), 0, nullptr);
    };
    omSetArrayElement(row.get(), 0, handle);
    EXPECT_EQ(omGetArrayElement(row.get(), 0), nullptr);

    COSInterfacePtr const next = object("Other");
    whenDestroyed_ = [&] { EXPECT_EQ(handle, static_cast<COSInterface*>(next)); };
    handle = next;
    EXPECT_EQ(log_, "OO");
    EXPECT_EQ(next->getExternalReferenceCount(), 2);
}

TEST_F(ObjectArrayTest, HandlesAreStrongOrWeak)
{
    COSInterfacePtr strong = object("Other");
    COSInterface* const raw = strong;
    COSInterfacePtr weak(strong);
    weak.setReferenceType(COSReferenceType::Weak);
    COSInterfacePtr const weakCopy(weak);
    EXPECT_EQ(raw->getExternalReferenceCount(), 1);
    COSInterfacePtr again(weak);
    again.setReferenceType(COSReferenceType::Strong);
    EXPECT_EQ(raw->getExternalReferenceCount(), 2);
    auto& self = strong;
    strong = self;
    again = COSInterfacePtr();
    EXPECT_EQ(raw->getExternalReferenceCount(), 1);
    EXPECT_EQ(weak, raw);
    EXPECT_EQ(&*weak, raw);

    strong = nullptr;
    EXPECT_EQ(log_, "O");
    EXPECT_EQ(weak, nullptr);
    EXPECT_EQ(weakCopy, nullptr);
    EXPECT_EQ(velmara::liveCounts().objects, 1) << "weak handles keep the storage";
    weak.setReferenceType(COSReferenceType::Strong);
    EXPECT_EQ(weak, nullptr);
    EXPECT_EQ(velmara::liveCounts().objects, 1);
}

TEST_F(ObjectArrayTest, WhatIsLeftMayOutliveTheVirtualMachine)
{
    COSInterfacePtr const handle = object("Other");
    COSInterfacePtr weak(handle);
    weak.setReferenceType(COSReferenceType::Weak);
    ArrayPtr const row = matrix(2, "Other");
    omSetArrayElement(row.get(), 1, handle);
    endHvm();
    EXPECT_EQ(log_, "O");
    EXPECT_EQ(weak, nullptr);
    EXPECT_EQ(omGetArrayElement(row.get(), 1), static_cast<COSInterface*>(handle));
    ArrayPtr const copy(hvCreateDeepCopy(row.get()));
    EXPECT_TRUE(hvIsA(copy.get(), "Other"));
}
