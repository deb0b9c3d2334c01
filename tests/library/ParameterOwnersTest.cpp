#include "HvmTest.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/types/function.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

std::string ended; // the names of what was destroyed, in order

struct Part {
    explicit Part(std::string given) : name(std::move(given)) {}
    Part(Part const&) = default;
    virtual ~Part() { ended += name; }
    std::string name;
};

struct Piece final : Part {
    Piece() : Part("q") {}
};

/// Refers to parts, also in its destructor.
struct Holder : Part {
    explicit Holder(std::string given) : Part(std::move(given)) {}
    Holder(std::string given, Part& first) : Part(std::move(given)), part(&first) {}
    ~Holder() override
    {
        if (part)
            ended += part->name + '<';
    }

    void hold(Part* given, int number)
    {
        if (number < 0)
            throw std::out_of_range("no such number");
        part = given;
    }
    void set(Part& given) { part = &given; }
    void setPart(Part* given) { part = given; }
    Part const* get() const { return part; }
    void take(Part* given, Part*) { own.emplace_back(given); }
    void takeOne(Part* given)
    {
        if (given->name == "bad")
            throw std::invalid_argument("bad part");
        own.emplace_back(given);
    }
    void visit(Part& given, std::function<void()> const& visitor)
    {
        part = &given;
        visitor();
    }

    Part* part = nullptr;
    Part inner{"i"};
    std::vector<std::unique_ptr<Part>> own;
};

std::unique_ptr<Holder> common;

class ParameterOwnersTest : public HvmTest {
protected:
    ParameterOwnersTest()
    {
        ended.clear();
        common = std::make_unique<Holder>("c");
        registerModule("owners", [](Module& owners) {
            owners.publish<Part>("Part").constructor<std::string>("name").property("name", &Part::name);
            owners.publish<Piece>("Piece").inherits<Part>().constructor();
            owners.publish<Holder>("Holder")
                .inherits<Part>()
                .constructor<std::string>("name")
                .constructor<std::string, Kept<Part&>>("name, first")
                .method("hold", kept<0>(&Holder::hold), "part, number", withDefaults(1))
                .method("set", kept(&Holder::set), "part")
                .method("adopt", kept(+[](Holder* self, Part* given) { self->part = given; }), "self, part")
                .property("part", copied(&Holder::get), kept(&Holder::setPart))
                .property("data", inside(&Holder::part), kept(&Holder::part))
                .property("inner", &Holder::inner)
                .method("copied", copied(&Holder::get))
                .method("take", taken<0, 1>(&Holder::take), "part, other")
                .method("takeOne", taken(&Holder::takeOne), "part")
                .method("visit", kept<0>(&Holder::visit), "part, visitor");
            owners
                .function(
                    "share", +[](std::shared_ptr<Part> part) { return part; })
                .function(
                    "makeShared", +[] { return std::make_shared<Holder>("s"); })
                .function(
                    "common", +[]() -> Holder& { return *common; });
        });
    }

    ~ParameterOwnersTest() override
    {
        endHvm();
        common = nullptr;
    }

    template <class... A>
    ArrayPtr make(char const* cls, char const* name, A const&... more)
    {
        return hvm().construct("owners." + std::string(cls), inputs(ArrayPtr(hvCreateString(name)), more...));
    }
    ArrayPtr part(char const* name) { return make("Part", name); }
    ArrayPtr hold(std::string_view way, ArrayPtr const& held)
    {
        if (way == "constructor")
            return make("Holder", "h", held);
        ArrayPtr holder = make("Holder", "h");
        if (way == "part" || way == "data")
            hvm().set(holder.get(), way, held.get());
        else
            hvm().call(holder.get(), way, inputs(held));
        return holder;
    }
    void call(ArrayPtr const& object, char const* method, ArrayPtr const& argument)
    {
        hvm().call(object.get(), method, inputs(argument));
    }
};

} // namespace

/// Whichever way a part is kept, and whatever the script lets go first.
TEST_F(ParameterOwnersTest, KeptArgumentsLiveAsLongAsTheObject)
{
    for (char const* const way : {"constructor", "hold", "set", "adopt", "part", "data"}) {
        for (char const* const first : {"part", "deleted part", "holder", "deleted holder"}) {
            ended.clear();
            ArrayPtr p = part("p");
            ArrayPtr holder = hold(way, p);
            bool const isDeleted = std::string_view(first).starts_with("deleted");
            bool const isPartFirst = std::string_view(first).ends_with("part");
            ArrayPtr& released = isPartFirst ? p : holder;
            if (isDeleted)
                hvm().deleteObjects(released.get());
            released.reset();
            EXPECT_EQ(ended, isPartFirst ? "" : "p<ih") << way << first;
            (isPartFirst ? holder : p).reset();
            EXPECT_EQ(ended, "p<ihp") << way << first;
        }
    }
}

TEST_F(ParameterOwnersTest, WhatHoldsApartIsKeptWithIt)
{
    ArrayPtr whole = make("Holder", "w");
    ArrayPtr inner = hvm().get(whole.get(), "inner");
    ArrayPtr keeper = make("Holder", "k");
    call(keeper, "set", inner);
    call(whole, "set", inner); // is there anyway
    hvm().deleteObjects(whole.get());
    EXPECT_EQ(ended, "");
    keeper.reset();
    EXPECT_EQ(ended, "i<iki<iw");
}

TEST_F(ParameterOwnersTest, NativeObjectsKeepAsLongAsTheyAreShared)
{
    call(hvm().callFunction("owners.common"), "set", part("p"));
    {
        ArrayPtr const shared = hvm().callFunction("owners.makeShared");
        call(shared, "set", part("x"));
        EXPECT_EQ(ended, "");
    }
    EXPECT_EQ(ended, "x<is");
    for (int i = 0; i < 20; ++i)
        call(hvm().callFunction("owners.makeShared"), "set", part("y"));
    EXPECT_NE(ended.find('x', 1), ended.npos); // released as others come
    EXPECT_EQ(common->part->name, "p");
    hvm().deleteObjects(hvm().callFunction("owners.common").get());
    EXPECT_EQ(common->part->name, "p");
    common->part = nullptr; // which ends with the virtual machine
}

TEST_F(ParameterOwnersTest, RefusedCallsLeaveOwnersAsTheyWere)
{
    ArrayPtr const holder = make("Holder", "h");
    ArrayPtr const p = part("p");
    auto const taker = make("Holder", "t");
    EXPECT_EQ(errorOf([&] { hvm().call(holder.get(), "hold", inputs(p, matrix<std::int32_t>(1, 1, {-1}))); }),
              "VELMARA:native:exception");
    for (ArrayPtr const* const object : {&p, &holder}) { // neither was shared
        call(taker, "takeOne", *object);
        EXPECT_FALSE(velmara::isValid(object->get()));
    }

    // Nothing keeps itself, nor is it taken while it keeps something.
    ArrayPtr const a = make("Holder", "a");
    ArrayPtr const b = make("Holder", "b");
    call(a, "set", a);
    call(a, "set", b);
    expectMessage([&] { call(b, "set", a); }, {"orbis_factory:orbis_factory:cannot_keep", "owners.Part"});
    expectMessage([&] { call(taker, "takeOne", a); },
                  {"orbis_factory:orbis_factory:cannot_take", "it keeps other objects"});
    ArrayPtr const null(omCreateORBISMatrix(0, 0, "owners.Part"));
    hvm().call(a.get(), "hold", inputs(null));
}

TEST_F(ParameterOwnersTest, ALongChainEndsWithoutNesting)
{
    ArrayPtr chain = make("Holder", "");
    for (int i = 0; i < 100000; ++i) {
        ArrayPtr next = make("Holder", "");
        call(next, "set", chain);
        chain = std::move(next);
    }
}

TEST_F(ParameterOwnersTest, TakenArgumentsAreNativeCodes)
{
    ArrayPtr taker = make("Holder", "t");
    ArrayPtr const p = part("p");
    call(taker, "takeOne", p);
    EXPECT_FALSE(velmara::isValid(p.get()));
    EXPECT_EQ(ended, "");
    ArrayPtr const bad = part("bad");
    EXPECT_NE(errorOf([&] { call(taker, "takeOne", bad); }), "");
    EXPECT_TRUE(velmara::isValid(bad.get()));
    hvm().callFunction("owners.share", inputs(bad));
    auto const expectRefused = [&](ArrayPtr const& given, char const* reason) {
        expectMessage([&] { hvm().call(taker.get(), "take", inputs(given, given)); },
                      {"orbis_factory:orbis_factory:cannot_take", "owners.Part", reason});
        EXPECT_TRUE(velmara::isValid(given.get()));
    };
    expectRefused(part("r"), "twice");
    expectRefused(hvm().get(taker.get(), "inner"), "does not own it");
    expectRefused(bad, "it is shared");
    expectMessage([&] { call(taker, "takeOne", taker); }, {"cannot_take", "twice"});
    ended.clear();
    taker.reset();
    EXPECT_EQ(ended, "pit");
}

TEST_F(ParameterOwnersTest, CopiedResultsAreObjectsOfTheirOwn)
{
    ArrayPtr const holder = make("Holder", "h");
    EXPECT_EQ(hvm().call(holder.get(), "copied")->get_number_of_elements(), 0u);
    ArrayPtr const p = part("p");
    call(holder, "set", p);
    {
        ArrayPtr const copies[] = {hvm().call(holder.get(), "copied"), hvm().get(holder.get(), "part")};
        for (ArrayPtr const& copy : copies) {
            EXPECT_FALSE(velmara::isSameObject(copy.get(), p.get()));
            hvm().set(copy.get(), "name", ArrayPtr(hvCreateString("z")).get());
        }
        EXPECT_TRUE(velmara::isSameObject(hvm().get(holder.get(), "data").get(), p.get()));
    }
    EXPECT_EQ(ended, "zz");
    call(holder, "set", hvm().construct("owners.Piece"));
    expectMessage([&] { hvm().call(holder.get(), "copied"); }, {"cannot_copy", "Piece"});
}
