// A module with a native callback of each kind, each of which throws where the program has it throw.
#include "library/publishClass.hpp"

#include "orbis/factory.hpp"
#include "orbis/factory/Implemented.hpp"
#include "orbis/factory/types/DataTypePolicy.hpp"
#include "orbis/factory/types/chrono.hpp"
#include "orbis/factory/types/complex.hpp"
#include "orbis/factory/types/function.hpp"
#include "orbis/factory/types/map.hpp"
#include "orbis/factory/types/matrix.hpp"
#include "orbis/factory/types/nestedVectors.hpp"
#include "orbis/factory/types/objectValues.hpp"
#include "orbis/factory/types/pair.hpp"
#include "orbis/factory/types/path.hpp"
#include "orbis/factory/types/set.hpp"
#include "orbis/factory/types/variant.hpp"
#include "orbis/factory/types/wstring.hpp"

#include "orbis/COSPackage.hpp"
#include "orbis/COSPackageInfo.hpp"

#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

#include <dlfcn.h>

using namespace orbis;
using namespace orbis::factory;

namespace {

void callback(char const* name = "callback")
{
    static auto* const reach = reinterpret_cast<int (*)(char const*)>(dlsym(RTLD_DEFAULT, "reachCallback"));
    switch (reach(name)) {
    case 1:
        throw Exception("thrown on purpose");
    case 2:
        throw std::runtime_error("thrown on purpose");
    case 3:
        throw std::bad_alloc();
    case 4:
        throw 4;
    default:
        return;
    }
}

/// Crosses as a number.
struct Length {
    double metres;
};

/// What the classes have in common; `Base` says how they are owned.
template <class Base, int = 0>
struct Thing : Base {
    explicit Thing(double metres = 0) : metres_(metres) { callback(); }
    double metres() const { return callback(), metres_; }
    void setMetres(double metres) { callback(), metres_ = metres; }
    Length length() const { return {metres_}; }
    void setLength(Length length) { metres_ = length.metres; }
    double stretch(Length by) { return callback(), metres_ += by.metres; }
    void takeBack() { callback("release routine"); }

private:
    double metres_;
};

struct Empty {};
struct Handle;

} // namespace

PUBLISHED_IN("probe", Handle)

namespace {

using Value = Thing<Empty>;

/// Deleted with its host object.
struct Handle : Thing<full::Wrappable> {
    using Thing::Thing;
    Handle* other() const { return other_.get(); }
    void setOther(Handle* other) { other_.reset(other); }

private:
    ObjectHandle<Handle> other_;
};

struct Shared : Thing<full::StdShareable> {
    using Thing::Thing;
};

struct Derived : Shared {
    using Shared::Shared;
};

struct Native : Thing<full::Wrappable, 1> {
    using Thing::Thing;
};

/// Copied and compared without being told.
struct Point {
    explicit Point(double given) : x(given) { callback(); }
    bool operator==(Point const& other) const { return callback(), x == other.x; }
    double x;
};

struct Shape {
    virtual ~Shape() = default;
    virtual double area() const = 0;
    virtual double width() const = 0;
};

struct ScriptShape : Implemented<Shape> {
    double area() const override { return callback(), call<double>("area"); }
    double width() const override { return call<double>("width"); }
};

struct Keeper {
    void keep(Point& given) { callback(), point = &given; }
    void take(Point* given) { callback(), points.emplace_back(given); }
    void adopt(std::unique_ptr<Shape> given) { callback(), shape = std::move(given); }
    void share(std::shared_ptr<Shape> given) { callback(), shape = std::move(given); }
    Point const* get() const { return callback(), point; }
    double area() const { return shape->area(); }
    Point* point = nullptr;
    std::vector<std::unique_ptr<Point>> points;
    std::shared_ptr<Shape> shape;
};

struct Failure : std::runtime_error {
    Failure() : std::runtime_error("failed, and that is not short") {}
    std::string place() const { return callback(), "a place whose name is not short"; }
};

void fail()
{
    callback();
    try {
        throw Failure();
    } catch (...) {
        std::throw_with_nested(std::runtime_error("failed outside"));
    }
}

void publishNamed(Module& named)
{
    callback("initializer");
    named.publish<Point>("Point").constructor<double>("x").property("x", &Point::x);
    named.publish<Shape>("Shape").implementedBy<ScriptShape>().method("width", &Shape::width);
    named.publish<Keeper>("Keeper")
        .constructor()
        .method("keep", orbis::factory::kept(&Keeper::keep))
        .method("take", taken(&Keeper::take))
        .method("adopt", &Keeper::adopt)
        .method("share", &Keeper::share)
        .method("copied", copied(&Keeper::get))
        .method("area", &Keeper::area);
    named.error<Failure>("probe:failure").field("place", &Failure::place).function("fail", &fail);
    callback("initializer");
}

/// What native code keeps whatever becomes of its host objects.
struct {
    std::vector<std::unique_ptr<Native>> own;
    std::vector<std::shared_ptr<Shared>> shared;
    std::vector<std::function<double(double)>> functions;
} natives;

Native* makeNative()
{
    return natives.own.emplace_back(std::make_unique<Native>(1)).get();
}

std::shared_ptr<Shared> makeDerived()
{
    return natives.shared.emplace_back(std::make_shared<Derived>(2));
}

double keep(std::function<double(double)> const& function)
{
    callback();
    natives.functions.push_back(function);
    return function(1);
}

std::function<double(double)> kept()
{
    std::function<double(double)> const last = natives.functions.back();
    return [last](double number) { return callback(), last(number) + 1; };
}

double sum(std::vector<double> const& numbers)
{
    callback();
    double result = 0;
    for (double const number : numbers)
        result += number;
    return result;
}

/// Published as they are.
struct Part {
    explicit Part(double given) : size(given) { callback(); }
    double size;
};

class Box {
public:
    Part& part() { return callback(), part_; }
    std::vector<Part*> parts() { return {&part_, taken_.get()}; }
    static std::unique_ptr<Part> make(double size) { return std::make_unique<Part>(size); }
    void take(std::unique_ptr<Part> part) { callback(), taken_ = std::move(part); }
    void share(std::shared_ptr<Part> part) { callback(), shared_ = std::move(part); }
    std::shared_ptr<Part> shared() const { return shared_; }

private:
    Part part_{1};
    std::unique_ptr<Part> taken_;
    std::shared_ptr<Part> shared_;
};

/// Passes a value on, in both directions.
template <class T>
T echo(T value)
{
    callback();
    return value;
}

void publishFrame(Module& frame)
{
    frame.publish<Part>("Part", "Has a size").constructor<double>("size").property("size", &Part::size);
    frame.publish<Box>("Box")
        .constructor()
        .method("part", &Box::part)
        .method("parts", &Box::parts)
        .method("take", &Box::take, "part")
        .property("shared", &Box::shared, &Box::share)
        .staticMethod("make", &Box::make, "size (in metres)", withDefaults(2.0));
    frame.function("pair", &echo<std::pair<double, std::string>>)
        .function("map", &echo<std::map<std::string, double>>)
        .function("set", &echo<std::set<std::string>>)
        .function("variant", &echo<std::variant<double, std::string>>)
        .function("complex", &echo<std::complex<double>>)
        .function("time", &echo<std::chrono::milliseconds>)
        .function("path", &echo<std::filesystem::path>)
        .function("wide", &echo<std::wstring>)
        .function("nested", &echo<std::vector<std::vector<double>>>)
        .function("copies", &echo<std::vector<Part>>)
        .function("owned", &echo<std::vector<std::unique_ptr<Part>>>)
        .function("matrix", &echo<Matrix<double>>);
    frame.error<std::runtime_error>("probe:runtime");
    callback("initializer");
}

} // namespace

PUBLISHED_IN("probe", Value, using Policy = ValuePolicy;)
PUBLISHED_IN("probe", Shared)
PUBLISHED_IN("probe", Derived)
PUBLISHED_IN("probe", Native)

template <>
struct orbis::factory::HostDataType<Length> {
    static constexpr char const* name = "double vector";
    static hvArray* toHost(Length length)
    {
        callback("conversion");
        hvArray* const value = host_extensions::createMatrix(1, 1, hvDOUBLE_CLASS);
        *static_cast<double*>(host_extensions::getWritableData(value)) = length.metres;
        return value;
    }
    static Length fromHost(hvArray* value)
    {
        callback("conversion");
        return {*static_cast<double const*>(host_extensions::getData(value))};
    }
};

namespace {

/// A class info whose every answer may fail; it releases what it has to before that.
template <class T, class Base>
struct Info final : Base {
    Info() : Base(HostClass<T>::name, "") {}

    bool classIsAbstract() const override { return callback("class info"), false; }
    bool attemptToLoadMethod(char const*) override { return callback("class info"), false; }
    void* createInstanceData() override { return callback("class info"), Base::createInstanceData(); }
    bool destroyInstanceData(COSInterface* object, void* data) override
    {
        bool const result = Base::destroyInstanceData(object, data);
        callback("class info");
        return result;
    }
    void initializeClass(COSClass* cls) override
    {
        callback("class info");
        auto description = describe<T>();
        description.template constructor<double>("metres");
        if constexpr (std::is_same_v<T, Derived>)
            description.template inherits<Shared>();
        else
            description.property("metres", &T::metres, &T::setMetres)
                .property("length", &T::length, &T::setLength)
                .property("loan", releasedBy<&T::takeBack>(&T::metres))
                .method("stretch", &T::stretch, "by");
        if constexpr (std::is_same_v<T, Handle>)
            description.property("other", &Handle::other, &Handle::setOther);
        publish(cls, description);
        callback("class info");
    }
};

struct Root final : COSPackageInfo {
    char const* getName() const override { return "probe"; }
    void initializePackage(COSPackage* package) override
    {
        package->addClass(new Info<Value, NonHandleClassInfo<Value>>);
        package->addClass(new Info<Handle, HandleClassInfo<full::Wrappable, 1>>);
        package->addClass(new Info<Shared, StdShareableHandleClassInfo<Shared>>);
        package->addClass(new Info<Derived, StdShareableHandleClassInfo<Derived>>);
        package->addClass(new Info<Native, HandleClassInfo<full::Wrappable, 0>>);
        callback("initializer");
        registerModule("probe.named", publishNamed);
        registerOrbisPackage("probe.inner.most", [](COSPackage* inner) {
            publish(inner, describeFunctions()
                               .function("sum", &sum, "numbers")
                               .function("keep", &keep, "function")
                               .function("kept", &kept)
                               .function("makeNative", &makeNative)
                               .function("makeDerived", &makeDerived));
            callback("initializer");
        });
        registerModule("probe.frame", &publishFrame);
        callback("initializer");
    }
};

} // namespace

#define ENTRY_POINT extern "C" __attribute__((visibility("default")))

ENTRY_POINT void dropNatives()
{
    natives = {};
}

ENTRY_POINT void VXInitialize_faults_probe()
{
    callback("initializer");
    if (!COSPackage::getPackage("probe"))
        COSPackage::addPackage(new Root);
    callback("initializer");
}

ENTRY_POINT void VXTerminate_faults_probe()
{
    COSPackage::removePackage("probe");
}

ENTRY_POINT void* QueryVXFcnTable_faults_probe()
{
    return nullptr;
}
