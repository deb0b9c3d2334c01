#include "HvmTest.hpp"
#include "library/Untyped.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/Implemented.hpp"

#include <thread>

using namespace orbis;
using namespace orbis::factory;
using namespace orbis::host_extensions;
using velmara::ArrayPtr;

namespace {

struct Ink {
    int used = 0;
};

class Shape {
public:
    explicit Shape(double given) : size(given) { ++alive; }
    virtual ~Shape() { --alive; }
    virtual double area(double factor) const = 0;
    virtual void draw(Ink& ink, std::string const& text) = 0;
    virtual int corners() const { return 4; }
    double const size;
    static inline int alive = 0;
};

struct ScriptShape : Implemented<Shape> {
    using Implemented::Implemented;
    double area(double factor) const override { return call<double>("area", factor); }
    void draw(Ink& ink, std::string const& text) override { call<void>("draw", ink, text); }
    int corners() const override { return has("corners") ? call<int>("corners") : Shape::corners(); }
};

struct Scene {
    std::unique_ptr<Shape> own;
    std::shared_ptr<Shape> shared;
    Shape* kept = nullptr;
    double area() const { return own ? own->area(1) : shared ? shared->area(2) : kept->area(3); }
    void setOwn(std::unique_ptr<Shape> shape) { own = std::move(shape); }
    void setShared(std::shared_ptr<Shape> shape) { shared = std::move(shape); }
    void setKept(Shape& shape) { kept = &shape; }
};

std::unique_ptr<Shape> outliving;

class ImplementedTest : public HvmTest {
protected:
    ImplementedTest()
    {
        registerModule("shapes", [](Module& shapes) {
            shapes.publish<Ink>("Ink").constructor().property("used", &Ink::used);
            shapes.publish<Shape>("Shape")
                .implementedBy<ScriptShape, double>("size (in mm)", "Any shape")
                .method("area", &Shape::area)
                .method("draw", &Shape::draw)
                .method("corners", &Shape::corners)
                .property("size", &Shape::size);
            shapes.publish<Scene>("Scene")
                .constructor()
                .method("own", &Scene::setOwn)
                .method("shared", &Scene::setShared)
                .method("kept", kept(&Scene::setKept))
                .method("area", &Scene::area);
            shapes.function(
                "outlive", +[](std::unique_ptr<Shape> shape) { outliving = std::move(shape); });
        });
    }

    ~ImplementedTest() override { outliving = nullptr; }

    using Functions = std::vector<std::pair<char const*, Body>>;

    ArrayPtr shape(Functions const& functions)
    {
        ArrayPtr const table(hvCreateCellMatrix(functions.size(), 2));
        for (std::size_t i = 0; i < functions.size(); ++i) {
            hvSetCell(table.get(), i, hvCreateString(functions[i].first));
            hvSetCell(table.get(), functions.size() + i, untyped(functions[i].second).release());
        }
        return hvm().construct("shapes.Shape", inputs(table, number(2)));
    }

    /// Its area is its size times the factor. `token` lives as long as its function.
    ArrayPtr shape(std::shared_ptr<int> const& token = nullptr)
    {
        return shape({{"area", [this, token](auto const& in) {
                           double const size = scalar<double>(hvm().get(in.at(0), "size"));
                           return number(size * *static_cast<double const*>(getData(in.at(1))));
                       }}});
    }

    double area(ArrayPtr const& scene) { return scalar<double>(hvm().call(scene.get(), "area")); }
};

} // namespace

TEST_F(ImplementedTest, ScriptsFunctionsAreVirtualOnes)
{
    ArrayPtr drawn;
    std::string type;
    ArrayPtr const object = shape({{"draw",
                                    [&](auto const& in) {
                                        drawn.reset(hvCreateSharedDataCopy(in.at(0)));
                                        hvm().set(in.at(1), "used", matrix<int>(1, 1, {3}).get());
                                        type = velmara::className(in.at(2));
                                        return nullptr;
                                    }},
                                   {"corners", [](auto const&) { return number(0.5); }}});
    ArrayPtr const ink = hvm().construct("shapes.Ink");
    hvm().call(object.get(), "draw", inputs(ink, ArrayPtr(hvCreateString("text"))));
    EXPECT_TRUE(velmara::isSameObject(drawn.get(), object.get()));
    EXPECT_EQ(scalar<int>(hvm().get(ink.get(), "used")), 3);
    EXPECT_EQ(type, "char");
    EXPECT_EQ(errorOf([&] { hvm().call(object.get(), "corners"); }), "VELMARA:function:result");
    expectMessage([&] { hvm().call(object.get(), "area", inputs(number(1))); },
                  {"orbis_factory:orbis_factory:not_implemented", "\"shapes.Shape\"", "\"area\"",
                   "function(shapes.Shape, double scalar) -> double scalar"});
    EXPECT_EQ(scalar<int>(hvm().call(shape().get(), "corners")), 4);
    ArrayPtr const failing = shape({{"area", [](auto const&) -> ArrayPtr { throw velmara::Error("own:error", ""); }}});
    EXPECT_EQ(errorOf([&] { hvm().call(failing.get(), "area", inputs(number(1))); }), "own:error");
    velmara::MethodRecord const constructor = hvm().describeClass("shapes.Shape").methods.at(0);
    EXPECT_EQ(constructor.signature, "result = Shape(functions: any, size: double scalar) -> shapes.Shape");
    expectMessage([&] { hvm().construct("shapes.Shape", inputs(rowOf("shapes.Ink", {&ink}), number(1))); },
                  {"not_convertible"});
    ArrayPtr const table(hvCreateCellMatrix(1, 2));
    hvSetCell(table.get(), 0, hvCreateString("area"));
    hvSetCell(table.get(), 1, number(1).release());
    expectMessage([&] { hvm().construct("shapes.Shape", inputs(table, number(1))); },
                  {"not_convertible", "\"area\"", "none"});
}

/// Whoever owns it, and whichever of the two the script lets go first.
TEST_F(ImplementedTest, ObjectsAndFunctionsEndTogether)
{
    double factor = 0;
    for (char const* const owner : {"own", "shared", "kept"}) {
        ++factor;
        for (bool const isSceneFirst : {false, true}) {
            auto token = std::make_shared<int>();
            std::weak_ptr<int> const functions = token;
            ArrayPtr scene = hvm().construct("shapes.Scene");
            ArrayPtr object = shape(std::exchange(token, nullptr));
            hvm().call(scene.get(), owner, inputs(object));
            EXPECT_EQ(area(scene), 2 * factor);
            (isSceneFirst ? scene : object).reset();
            if (!isSceneFirst) {
                EXPECT_EQ(area(scene), 2 * factor);
            }
            (isSceneFirst ? object : scene).reset();
            EXPECT_EQ(Shape::alive, 0);
            EXPECT_TRUE(functions.expired()) << owner;
        }
    }
    auto token = std::make_shared<int>();
    std::weak_ptr<int> const functions = token;
    hvm().deleteObjects(shape(std::exchange(token, nullptr)).get());
    EXPECT_TRUE(functions.expired());
}

TEST_F(ImplementedTest, FunctionsAreCalledWhereTheyBelong)
{
    auto token = std::make_shared<int>();
    std::weak_ptr<int> const functions = token;
    ArrayPtr const object = shape(std::exchange(token, nullptr));
    hvm().callFunction("shapes.outlive", inputs(object));
    EXPECT_EQ(outliving->area(3), 6);
    EXPECT_FALSE(velmara::isValid(object.get()));
    auto const error = [] { return messageIdOf([] { outliving->area(1); }); };
    std::string elsewhere;
    std::thread([&] { elsewhere = error(); }).join();
    EXPECT_EQ(elsewhere, "VELMARA:function:notCurrent");
    endHvm();
    EXPECT_EQ(error(), "VELMARA:function:ended");
    EXPECT_TRUE(functions.expired());
    EXPECT_EQ(outliving->corners(), 4);
    std::thread([] { outliving = nullptr; }).join();
    EXPECT_EQ(Shape::alive, 0);
}
