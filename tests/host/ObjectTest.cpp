#include "HvmTest.hpp"
#include "host/TestDescriptors.hpp"

#include <algorithm>
#include <stdexcept>

using namespace described;
using orbis::COSInterfacePtr;
using velmara::ArrayPtr;

namespace {

/// Three classes in a row, "C" below "B" below "A", whose instance data are their names' first letters.
class ObjectTest : public HvmTest {
protected:
    void publishHierarchy()
    {
        for (char const* name : {"A", "B", "C"}) {
            auto* const info = new Class(name);
            if (*name != 'A')
                info->describe = [base = std::string(1, static_cast<char>(*name - 1))](orbis::COSClass* cls) {
                    setSuperclass(cls, base.c_str());
                };
            info->create = [this, name]() -> void* {
                log_ += *name;
                if (*name == failing_)
                    throw std::runtime_error("no data");
                return const_cast<char*>(name);
            };
            info->destroy = [this, name](COSInterface* object, void* data) {
                log_ += data ? static_cast<char>(*static_cast<char const*>(data) + ('a' - 'A')) : '-';
                if (onDestroy_)
                    onDestroy_(*name, object);
            };
            publish(info);
        }
    }

    std::string log_;
    char failing_ = 0;
    std::function<void(char, COSInterface*)> onDestroy_;
};

} // namespace

TEST_F(ObjectTest, InstanceDataIsCreatedFromTheBaseAndDestroyedToTheBaseOnce)
{
    publishHierarchy();
    ArrayPtr c = hvm().construct("C");
    COSInterfacePtr handle = objectIn(c);
    EXPECT_STREQ(static_cast<char const*>(handle->getNativeObject("B")), "B");
    EXPECT_EQ(handle->getNativeObject("X"), nullptr);
    char const other[] = "Z", foreign[] = "Q";
    handle->setNativeObject("B", const_cast<char*>(other));
    handle->setNativeObject("X", const_cast<char*>(foreign));
    EXPECT_EQ(handle->getNativeObject("B"), other);
    EXPECT_EQ(handle->getNativeObject("X"), foreign);
    c.reset();
    EXPECT_EQ(log_, "ABC");
    handle = nullptr;
    EXPECT_EQ(log_, "ABCcza") << "what was recorded in place of B's data; nothing for the foreign name";
}

TEST_F(ObjectTest, SuperclassesWithoutNativeObjectsHaveThatOfTheObjectsClass)
{
    char const native[] = "N", other[] = "O";
    publish(new Class("Base"));
    publish(new Class("Derived", [](orbis::COSClass* cls) { setSuperclass(cls, "Base"); }));
    publish(new Class("Apart"));
    ArrayPtr const array = hvm().construct("Derived");
    COSInterfacePtr object = objectIn(array);
    EXPECT_EQ(object->getNativeObject("Base"), nullptr);
    object->setNativeObject("Derived", const_cast<char*>(native));
    EXPECT_EQ(object->getNativeObject("Base"), native);
    EXPECT_EQ(object->getNativeObject("Apart"), nullptr);
    for (char const* const recorded : {other, static_cast<char const*>(nullptr)}) {
        object->setNativeObject("Base", const_cast<char*>(recorded));
        EXPECT_EQ(object->getNativeObject("Base"), recorded) << "what is recorded counts, null too";
        EXPECT_EQ(object->getNativeObject("Derived"), native);
    }
}

TEST_F(ObjectTest, ObjectsAreDestroyedOnceInEveryOrder)
{
    publishHierarchy();
    ArrayPtr deleted = hvm().construct("A"), atEnd = hvm().construct("A"), invalid = hvm().construct("A");
    COSInterfacePtr weak = objectIn(deleted);
    weak.setReferenceType(orbis::COSReferenceType::Weak);
    log_.clear();
    hvm().deleteObjects(deleted.get());
    hvm().deleteObjects(deleted.get());
    EXPECT_EQ(log_, "a");
    EXPECT_FALSE(velmara::isValid(deleted.get()));
    EXPECT_EQ(static_cast<COSInterface*>(weak), nullptr);
    EXPECT_EQ(messageIdOf([&] { objectIn(deleted)->setNativeObject("A", this); }), "VELMARA:object:invalid");
    objectIn(invalid)->setValid(false);
    EXPECT_EQ(objectIn(invalid)->getNativeObject("A"), nullptr);
    invalid.reset();
    EXPECT_EQ(log_, "a") << "the native object was gone";
    endHvm();
    EXPECT_EQ(log_, "aa");
    EXPECT_FALSE(velmara::isValid(atEnd.get()));
    EXPECT_EQ(velmara::className(atEnd.get()), "A");
    EXPECT_EQ(objectIn(atEnd)->getNativeObject("A"), nullptr);
}

TEST_F(ObjectTest, ReferencesMayMoveWhileAnObjectIsDestroyed)
{
    publishHierarchy();
    COSInterfacePtr kept;
    ArrayPtr other = hvm().construct("A");
    onDestroy_ = [&](char, COSInterface* object) {
        kept = object; // acquired and released
        kept = nullptr;
        if (other)
            std::exchange(other, nullptr).reset(); // destroys another one
        kept = object;
    };
    hvm().construct("A").reset();
    EXPECT_EQ(log_, "AAaa");
    EXPECT_EQ(kept->getNativeObject("A"), nullptr);
    onDestroy_ = nullptr;
    kept = nullptr;
}

TEST_F(ObjectTest, RetractingDuringDestructionSkipsTheRest)
{
    publishHierarchy();
    onDestroy_ = [](char cls, COSInterface* object) {
        if (cls == 'B')
            object->setValid(false);
        throw std::runtime_error("ignored");
    };
    hvm().construct("C").reset();
    EXPECT_EQ(log_, "ABCcb");
}

TEST_F(ObjectTest, FailedInstanceDataIsRolledBack)
{
    publishHierarchy();
    failing_ = 'C';
    EXPECT_EQ(errorOf([&] { hvm().construct("C"); }), "VELMARA:native:exception");
    EXPECT_EQ(log_, "ABCba");
    orbis::COSClass* const derived = orbis::COSClass::getClass("C");
    COSInterfacePtr const twice = derived->newInstance();
    for (char const at : {'B', 'A'}) {
        failing_ = at;
        EXPECT_THROW(derived->initializeInstance(twice), std::runtime_error);
    }
    EXPECT_EQ(log_, "ABCbaABaA") << "rolled back once only";
    failing_ = 0;
    orbis::COSClass* const cls = orbis::COSClass::getClass("B");
    COSInterfacePtr const object = cls->newInstance();
    EXPECT_EQ(object->getNativeObject("B"), nullptr) << "not before it is initialised";
    EXPECT_EQ(messageIdOf([&] { derived->initializeInstance(object); }), "VELMARA:object:otherClass");
    cls->initializeInstance(object);
    EXPECT_EQ(messageIdOf([&] { cls->initializeInstance(object); }), "VELMARA:object:initialized");
    EXPECT_EQ(log_, "ABCbaABaAAB");
}

TEST_F(ObjectTest, InvalidatedOrDestroyedWhileItsDataIsCreated)
{
    auto* const info = new Class("S");
    ArrayPtr object;
    int alive = 0, made = 0;
    info->create = [&]() -> void* {
        ++made == 1 ? objectIn(object)->setValid(false) : hvm().deleteObjects(object.get());
        ++alive;
        return &alive;
    };
    info->destroy = [&](COSInterface*, void*) { --alive; };
    publish(info);
    orbis::COSClass* const cls = orbis::COSClass::getClass("S");
    for (int i = 0; i < 2; ++i) {
        object.reset(omCreateORBISScalar(cls->newInstance()));
        auto const initialize = [&] { cls->initializeInstance(objectIn(object)); };
        EXPECT_EQ(messageIdOf(initialize), "VELMARA:object:invalid");
        EXPECT_EQ(alive, 0);
    }
}

TEST_F(ObjectTest, ConstructorsRunOnAnInitialisedObjectAndFailCleanly)
{
    char const native[] = "N";
    auto* const info = new Class("A", [&](orbis::COSClass* cls) {
        cls->addMethod(new Method("A", "A", {"double scalar"}, [&](Call const& call) {
            COSInterfacePtr object = orbis::cosiGetArrayElement(call.outputs[0].array(), 0);
            EXPECT_STREQ(static_cast<char const*>(object->getNativeObject("A")), "data");
            object->setNativeObject("A", const_cast<char*>(native));
            if (call.inputs[0].scalar<double>() < 0)
                throw std::runtime_error("negative");
        }));
    });
    char const data[] = "data";
    info->create = [&]() -> void* { return const_cast<char*>(data); };
    info->destroy = [this](COSInterface*, void* object) { log_ += static_cast<char const*>(object); };
    publish(info);
    ArrayPtr const one = number(1), minus = number(-1);
    auto const construct = [&](std::vector<hvArray_tag*> const& inputs) { return hvm().construct("A", inputs); };
    ArrayPtr const made = construct({one.get()});
    EXPECT_EQ(objectIn(made)->getNativeObject("A"), native);
    EXPECT_EQ(errorOf([&] { construct({minus.get()}); }), "VELMARA:native:exception");
    EXPECT_EQ(log_, "N");
    EXPECT_EQ(errorOf([&] { construct({}); }), "VELMARA:dispatch:noMatch");
    EXPECT_EQ(log_, "N") << "no object was created for a refused call";
    auto* const abstract = new Class("Abstract");
    abstract->is_abstract = true;
    publish(abstract);
    EXPECT_EQ(errorOf([&] { hvm().construct("Abstract"); }), "VELMARA:class:abstract");
    EXPECT_EQ(errorOf([&] { hvm().construct("Missing"); }), "VELMARA:class:unknown");
}

TEST_F(ObjectTest, LiveObjectsAreListedWithWhoHoldsThem)
{
    publishHierarchy();
    EXPECT_TRUE(hvm().objects().empty());
    ArrayPtr const b = hvm().construct("B"), first = hvm().construct("A"), second = hvm().construct("A");
    ArrayPtr const pair = rowOf("A", {&first, nullptr});
    COSInterfacePtr const strong = objectIn(second);
    COSInterfacePtr weak = objectIn(second);
    weak.setReferenceType(orbis::COSReferenceType::Weak);
    objectIn(b)->setValid(false);

    std::vector<velmara::ObjectRecord> const listed = hvm().objects();
    auto const line = [](velmara::ObjectRecord const& object) {
        return object.className + ' ' + std::to_string(object.externalReferences) +
               std::to_string(object.internalReferences) + std::to_string(object.weakReferences) + object.owner.at(0) +
               (object.isValid ? 'y' : 'n') + (object.nativeObject ? 'y' : 'n');
    };
    std::vector<std::string> lines(listed.size());
    std::ranges::transform(listed, lines.begin(), line);
    EXPECT_EQ(lines, (std::vector<std::string>{"A 020hyy", "A 111hyy", "B 010hnn"}));
    EXPECT_EQ(listed.front().nativeObject, objectIn(first)->getNativeObject("A"));
    std::vector<orbis::COSInterface const*> visited;
    hvm().forEachObject([&](orbis::COSInterface& object, velmara::ObjectRecord const& record) {
        EXPECT_EQ(line(record), lines.at(visited.size()));
        visited.push_back(&object);
    });
    EXPECT_EQ(visited, (decltype(visited){objectIn(first), objectIn(second), objectIn(b)}));
    hvm().deleteObjects(first.get());
    EXPECT_EQ(hvm().objects().size(), 2U);
}
