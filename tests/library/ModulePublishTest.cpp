#include "HvmTest.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/notNull.hpp"
#include "orbis/factory/retract.hpp"

using namespace orbis;
using namespace orbis::factory;
using velmara::ArrayPtr;

namespace {

struct Counted {
    Counted() { ++alive; }
    Counted(Counted const&) { ++alive; }
    ~Counted() { --alive; }
    inline static int alive = 0;
};

/// Has no virtual destructor, no copy, and an explicit constructor only.
struct Wheel : Counted {
    explicit Wheel(int given) : size(given) {}
    Wheel(Wheel const&) = delete;
    int size;
};

struct Engine : Counted {
    explicit Engine(double given) : power(given) {}
    virtual ~Engine() = default;
    double power;
};

struct Turbo final : Engine {
    Turbo() : Engine(9) {}
};

/// Its first member has its address.
class Car {
public:
    explicit Car(std::string name) : name_(std::move(name)) {}

    Engine* part() { return &engine_; }
    Engine* last() { return &last_; }
    std::vector<Engine*> all() { return {&engine_, nullptr, &last_}; }
    Engine const& reference() const { return engine_; }
    /// Destroys the wheel without a word to the host, unless it is told.
    void lose(Wheel* wheel)
    {
        retract(wheel);
        wheel_.reset();
    }
    void exchange(Car& other) { std::swap(engine_.power, other.engine_.power); }
    std::string const& name() const { return name_; }
    Car twin() const { return Car(name_ + "'"); }
    void mount(std::unique_ptr<Wheel> wheel, int position)
    {
        if (position < 0)
            throw std::out_of_range("there is no such position");
        wheel_ = std::move(wheel);
    }
    std::shared_ptr<Wheel> spare() const { return spare_; }
    void keep(std::shared_ptr<Wheel> wheel) { spare_ = std::move(wheel); }
    Wheel* wheel() { return wheel_.get(); }

    static Engine& common()
    {
        static Engine engine(1);
        return engine;
    }

private:
    Engine engine_{5};
    std::string name_;
    std::unique_ptr<Wheel> wheel_;
    std::shared_ptr<Wheel> spare_;
    Engine last_{6};
};

Engine* given = nullptr;

std::unique_ptr<Engine> makeEngine(bool isTurbo)
{
    if (isTurbo)
        return std::make_unique<Turbo>();
    return std::make_unique<Engine>(2);
}

double total(Engine const& a, Engine b)
{
    return a.power + b.power;
}

double largest(Engine const* a, Engine* b, std::string const&)
{
    return std::max(a->power, b->power);
}

int sizes(std::unique_ptr<Wheel> a, std::shared_ptr<Wheel> const& b)
{
    return a->size + b->size;
}

/// Built around a wheel that it shares.
struct Cart {
    explicit Cart(std::shared_ptr<Wheel> const& shared) : wheel(shared) {}
    std::shared_ptr<Wheel> wheel;
};

struct Unpublished {};
struct Base {};
struct Derived : Base {};

struct ParseError : std::runtime_error {
    using std::runtime_error::runtime_error;
    std::string file() const { return "data.txt"; }
    int line = 12;
};

struct Code {
    int number;
};

void fail(int how)
{
    switch (how) {
    case 0:
        throw ParseError("no number");
    case 1:
        throw Code{7};
    case 2: {
        struct : ParseError {
            using ParseError::ParseError;
        } const derived("derived");
        throw derived;
    }
    case 3:
        try {
            throw std::logic_error("inner");
        } catch (...) {
            std::throw_with_nested(std::runtime_error("outer"));
        }
    default:
        throw Exception("as before");
    }
}

class ModulePublishTest : public HvmTest {
protected:
    ModulePublishTest()
    {
        registerModule("cars", [](Module& cars) {
            cars.function("total", &total, "a, b", "Of both")
                .function("makeEngine", &makeEngine, "isTurbo")
                .function("makeCar", owned(+[] { return new Car("made"); }))
                .function("common", &Car::common)
                .function("given", owned(+[] { return given; }))
                .function("sizes", notNull(&sizes), "a, b")
                .function("largest", notNull(&largest), "a, b, why", withDefaults("fun"));
            cars.publish<Car>("Car", "Drives")
                .constructor<std::string>("name (not, say, its colour)", "Has a name")
                .method("part", &Car::part)
                .method("all", &Car::all)
                .method("borrowedAll", borrowed(&Car::all))
                .method("torn", owned(&Car::part))
                .method("reference", &Car::reference)
                .method("exchange", &Car::exchange, "other")
                .method("twin", &Car::twin, {}, "Another one")
                .method("mount", &Car::mount, "wheel, position")
                .method("keep", &Car::keep)
                .method("lose", notNull(&Car::lose), "wheel")
                .method("echo", inside(notNull([](Car* car, Engine const*) { return &car->reference(); })),
                        "car, engine")
                .method("wheel", &Car::wheel)
                .property("spare", &Car::spare)
                .property("name", &Car::name, "As given");
            cars.publish<Engine>("Engine").property("power", &Engine::power);
            cars.publish<Cart>("Cart").constructor<NotNull<std::shared_ptr<Wheel>>>("wheel");
            cars.publish<Turbo>("Turbo").inherits<Engine>();
            cars.publish<Wheel>("Wheel").constructor<int>("size").property("size", &Wheel::size);
        });
        Car::common();
        before_ = Counted::alive;
    }

    /// After the virtual machine, everything that the host owns is gone.
    void TearDown() override
    {
        HvmTest::TearDown();
        EXPECT_EQ(Counted::alive, before_);
    }

    ArrayPtr car(char const* name) { return hvm().construct("cars.Car", inputs(text(name))); }
    static ArrayPtr text(char const* value) { return ArrayPtr(hvCreateString(value)); }
    double power(ArrayPtr const& engine) { return scalar<double>(hvm().get(engine.get(), "power")); }

    /// That `given`, of which the host object believes that it owns it, is found where it lies.
    void expectFound(char const* place)
    {
        ArrayPtr const array = hvm().callFunction("cars.given");
        EXPECT_NE(check().find(place), std::string::npos) << check();
        basic::BindingRegistry::release(given);
    }

private:
    int before_ = 0;
};

TEST_F(ModulePublishTest, ClassesFunctionsAndTheirTextsAreAsDescribed)
{
    velmara::ClassRecord const car = hvm().describeClass("cars.Car");
    EXPECT_EQ(car.description, "Drives");
    EXPECT_EQ(car.methods.at(0).description, "Has a name\nname: not, say, its colour");
    EXPECT_EQ(car.methods.at(0).signature, "result = Car(name: char vector) -> cars.Car");
    EXPECT_EQ(car.properties.at(1).description, "As given");
    EXPECT_EQ(hvm().describeFunction("cars.total").description, "Of both");
    EXPECT_EQ(hvm().describeFunction("cars.total").signature,
              "result = total(a: cars.Engine, b: cars.Engine) -> double scalar");
    // Named before the function's classes were, and without a constructor, which no script gets by itself.
    EXPECT_EQ(errorOf([&] { hvm().construct("cars.Engine"); }), "VELMARA:class:access");
    registerModule("wrong", [](Module& wrong) {
        wrong.function(
            "f", +[](Unpublished const&) {});
    });
    expectMessage([&] { hvm().callFunction("wrong.f"); }, {"f cannot be published", "Unpublished is not published"});
    registerModule("owners", [](Module& owners) {
        owners.publish<Base>("Base", "", Owner::Native);
        owners.publish<Derived>("Derived").inherits<Base>();
    });
    expectMessage([&] { hvm().describeClass("owners.Derived"); }, {"Owner::Native"});
    registerModule("twice", [](Module& twice) { twice.publish<Car>("Vehicle"); });
    expectMessage([&] { hvm().describeClass("twice.Vehicle"); }, {"twice.Vehicle", "it is \"cars.Car\""});
}

TEST_F(ModulePublishTest, ReferencesAreTheScriptsObjectsAndValuesAreCopies)
{
    ArrayPtr const a = car("a");
    ArrayPtr const b = car("b");
    ArrayPtr const engine = hvm().call(a.get(), "part");
    hvm().set(engine.get(), "power", number(7).get());
    hvm().call(a.get(), "exchange", inputs(b));
    EXPECT_EQ(power(hvm().call(b.get(), "part")), 7);
    EXPECT_EQ(power(engine), 5);
    EXPECT_EQ(scalar<double>(hvm().callFunction("cars.total", inputs(engine, engine))), 10);
    ArrayPtr const null(omCreateORBISMatrix(0, 0, "cars.Engine"));
    expectMessage([&] { hvm().callFunction("cars.total", inputs(engine, null)); }, {"null_input", "Input \"b\""});
    EXPECT_EQ(scalar<double>(hvm().callFunction("cars.largest", inputs(engine, engine))), 5);
    expectMessage([&] { hvm().callFunction("cars.largest", inputs(engine, null)); }, {"null_input", "Input \"b\""});
    expectMessage([&] { hvm().call(a.get(), "echo", inputs(null)); }, {"null_input", "Input \"engine\""});
    EXPECT_TRUE(velmara::isSameObject(hvm().call(a.get(), "echo", inputs(engine)).get(), engine.get()));
    ArrayPtr const twin = hvm().call(a.get(), "twin");
    EXPECT_FALSE(velmara::isSameObject(twin.get(), a.get()));
    EXPECT_EQ(velmara::className(hvm().callFunction("cars.makeEngine", inputs(matrix<bool>(1, 1, {true}))).get()),
              "cars.Turbo");
}

/// The first member of an object has its address, and is not it.
TEST_F(ModulePublishTest, APartIsOneObjectThatKeepsItsWholeAndEndsWithIt)
{
    ArrayPtr whole = car("whole");
    ArrayPtr const part = hvm().call(whole.get(), "part");
    EXPECT_TRUE(velmara::isSameObject(part.get(), hvm().call(whole.get(), "reference").get()));
    EXPECT_FALSE(velmara::isSameObject(part.get(), whole.get()));
    ArrayPtr const again = hvm().call(whole.get(), "twin");
    whole.reset();
    EXPECT_EQ(power(part), 5);
    ArrayPtr const other = hvm().call(again.get(), "part");
    hvm().deleteObjects(again.get());
    EXPECT_FALSE(velmara::isValid(other.get()));
    EXPECT_EQ(errorOf([&] { power(other); }), "VELMARA:object:invalid");
    // Nobody's part, and never deleted.
    ArrayPtr common = hvm().callFunction("cars.common");
    EXPECT_EQ(power(common), 1);
    hvm().deleteObjects(common.get());
    EXPECT_EQ(power(hvm().callFunction("cars.common")), 1);
}

TEST_F(ModulePublishTest, ElementsOfAVectorArePartsAsSingleObjectsAre)
{
    ArrayPtr owner = car("owner");
    ArrayPtr const all = hvm().call(owner.get(), "all");
    EXPECT_EQ(all->get_number_of_elements(), 3u);
    EXPECT_EQ(objectIn(all, 1), nullptr);
    ArrayPtr const last(omCreateORBISScalar(omGetArrayElement(all.get(), 2)));
    EXPECT_EQ(objectIn(all), objectIn(hvm().call(owner.get(), "part")));
    int const alive = Counted::alive;
    owner.reset();
    EXPECT_EQ(Counted::alive, alive) << "they keep the car";
    EXPECT_EQ(power(last), 6);
    ArrayPtr other = car("other");
    ArrayPtr const lent = hvm().call(other.get(), "borrowedAll");
    other.reset();
    EXPECT_EQ(Counted::alive, alive) << "the other is gone";
    basic::BindingRegistry::release(objectIn(lent, 0)->getNativeObject("cars.Engine"));
    basic::BindingRegistry::release(objectIn(lent, 2)->getNativeObject("cars.Engine"));
}

TEST_F(ModulePublishTest, WhatNobodyCanDeleteIsNotTheHosts)
{
    ArrayPtr const owner = car("owner");
    expectMessage([&] { hvm().call(owner.get(), "torn"); }, {"cars.Engine", "inside the object that gave it"});
    struct Large { // which is on the stack under every sanitizer
        Engine engine{1};
        char more[100000];
    } large;
    using Case = std::pair<Engine*, char const*>;
    for (auto const& [engine, place] :
         {Case{&large.engine, "on the stack"}, Case{&Car::common(), "in static storage"}}) {
        given = engine;
#ifndef NDEBUG
        expectMessage([&] { hvm().callFunction("cars.given"); }, {"cars.Engine", place});
#else
        expectFound(place);
#endif
    }
    // Through another function, nothing is known until it is looked for.
    given = static_cast<Car*>(objectIn(owner)->getNativeObject("cars.Car"))->last();
    expectFound("inside the native object");
}

TEST_F(ModulePublishTest, OwnershipMovesOnlyWithACallThatWorks)
{
    ArrayPtr const owner = car("owner");
    ArrayPtr const wheel = hvm().construct("cars.Wheel", inputs(matrix<std::int32_t>(1, 1, {15})));
    ArrayPtr const none(omCreateORBISMatrix(0, 0, "cars.Wheel"));
    EXPECT_NE(errorOf([&] { hvm().call(owner.get(), "mount", inputs(wheel, text("x"))); }), "");
    EXPECT_TRUE(velmara::isValid(wheel.get()));
    hvm().call(owner.get(), "mount", inputs(wheel, matrix<std::int32_t>(1, 1, {0})));
    EXPECT_FALSE(velmara::isValid(wheel.get()));
    ArrayPtr const mounted = hvm().call(owner.get(), "wheel");
    for (char const* const method : {"mount", "keep"}) // the host object of a part owns nothing
        expectMessage(
            [&] {
                if (std::string_view(method) == "keep")
                    hvm().call(owner.get(), method, inputs(mounted));
                else
                    hvm().call(owner.get(), method, inputs(mounted, matrix<std::int32_t>(1, 1, {0})));
            },
            {"cars.Wheel", "its host object does not own it"});
    EXPECT_TRUE(velmara::isValid(mounted.get()));
    hvm().call(owner.get(), "lose", inputs(mounted));
    EXPECT_FALSE(velmara::isValid(mounted.get()));
    hvm().call(owner.get(), "mount", inputs(none, matrix<std::int32_t>(1, 1, {0})));
}

TEST_F(ModulePublishTest, AnyObjectIsSharedFromItsFirstSharedPointerOn)
{
    ArrayPtr const owner = car("owner");
    ArrayPtr wheel = hvm().construct("cars.Wheel", inputs(matrix<std::int32_t>(1, 1, {17})));
    hvm().call(owner.get(), "keep", inputs(wheel));
    EXPECT_TRUE(velmara::isSameObject(hvm().get(owner.get(), "spare").get(), wheel.get()));
    expectMessage([&] { hvm().call(owner.get(), "mount", inputs(wheel, matrix<std::int32_t>(1, 1, {0}))); },
                  {"cannot be taken: it is shared"});
    hvm().deleteObjects(wheel.get());
    wheel = hvm().get(owner.get(), "spare");
    hvm().deleteObjects(owner.get());
    EXPECT_EQ(scalar<std::int32_t>(hvm().get(wheel.get(), "size")), 17);
    ArrayPtr const none(omCreateORBISMatrix(0, 0, "cars.Wheel"));
    ArrayPtr const own = hvm().construct("cars.Wheel", inputs(matrix<std::int32_t>(1, 1, {4})));
    expectMessage([&] { hvm().callFunction("cars.sizes", inputs(own, none)); }, {"null_input", "Input \"b\""});
    expectMessage([&] { hvm().callFunction("cars.sizes", inputs(none, wheel)); }, {"null_input", "Input \"a\""});
    expectMessage([&] { hvm().construct("cars.Cart", inputs(none)); }, {"null_input", "Input \"wheel\""});
    EXPECT_EQ(scalar<std::int32_t>(hvm().callFunction("cars.sizes", inputs(own, wheel))), 21);
    EXPECT_FALSE(velmara::isValid(own.get()));
    hvm().construct("cars.Cart", inputs(wheel));
}

TEST_F(ModulePublishTest, ErrorsHaveTheIdentifiersOfTheirTypes)
{
    auto const messageOf = [&](std::int32_t how) {
        return caught([&] { hvm().callFunction("errors.fail", inputs(matrix<std::int32_t>(1, 1, {how}))); },
                      &velmara::Error::what);
    };
    registerModule("errors", [](Module& errors) { errors.function("fail", &fail); });
    EXPECT_EQ(messageOf(3), "VELMARA:native:exception: Native code failed: outer: inner");
    EXPECT_EQ(messageOf(1), "VELMARA:native:unknown: Native code failed with something that is no exception.");
    registerModule("kinds", [](Module& kinds) {
        kinds.error<std::runtime_error>("tests:runtime")
            .error<ParseError>("tests:parse")
            .error<Code>("tests:code", [](Code const& code) { return "code " + std::to_string(code.number); })
            .function(
                "none", +[] {});
    });
    hvm().callFunction("kinds.none");
    char const* const messages[] = {"tests:parse: no number", "tests:code: code 7", "tests:parse: derived",
                                    "tests:runtime: outer", "VELMARA:native:exception: Native code failed: as before"};
    for (std::int32_t how = 0; char const* const message : messages)
        EXPECT_EQ(messageOf(how++), message);
}

TEST_F(ModulePublishTest, ErrorsCarryFieldsAndWhatLedToThem)
{
    registerModule("fields", [](Module& fields) {
        fields.error<std::logic_error>("tests:logic")
            .error<ParseError>("tests:parse")
            .field("line", &ParseError::line)
            .field("file", &ParseError::file)
            .field("broken", [](ParseError const&) -> int { throw Code{1}; })
            .field("size", [](std::exception const& error) { return std::string_view(error.what()).size(); })
            .function("fail", &fail)
            .function(
                "unread", +[] {
                    try {
                        fail(0);
                    } catch (...) {
                        std::throw_with_nested(Code{1});
                    }
                });
        EXPECT_THROW(fields.field("number", &Code::number), Exception);
        EXPECT_THROW(fields.field("text", &ParseError::line), Exception);
    });
    auto const errorOfCall = [&](char const* function, auto... arguments) {
        try {
            hvm().callFunction(function, inputs(matrix<std::int32_t>(1, 1, {arguments})...));
        } catch (velmara::Error const& error) {
            return error;
        }
        return velmara::Error("", "");
    };
    auto const expectParseError = [](velmara::Error const* error) {
        ASSERT_TRUE(error);
        EXPECT_EQ(error->identifier(), "tests:parse");
        ASSERT_EQ(error->fields().size(), 3u);
        EXPECT_EQ(error->fields()[0].name, "line");
        EXPECT_EQ(*static_cast<int const*>(host_extensions::getData(error->fields()[0].value.get())), 12);
        EXPECT_EQ(error->fields()[1].value->get_number_of_elements(), 8u);
        EXPECT_EQ(error->fields()[2].name, "size");
    };
    velmara::Error const parse = errorOfCall("fields.fail", 0);
    expectParseError(&parse);
    EXPECT_FALSE(parse.cause());
    velmara::Error const outer = errorOfCall("fields.fail", 3);
    EXPECT_EQ(outer.identifier(), "VELMARA:native:exception");
    ASSERT_TRUE(outer.cause());
    EXPECT_STREQ(outer.cause()->what(), "tests:logic: inner");
    velmara::Error const unread = errorOfCall("fields.unread");
    EXPECT_EQ(unread.identifier(), "VELMARA:native:unknown");
    expectParseError(unread.cause());
}

} // namespace
