// A module that is written on the host declarations alone, for what the console's script tests need: values of every
// kind in both directions, properties, and members that fail.
#include "host/TestDescriptors.hpp"

#include "velmara/ArrayPtr.hpp"

#include "host_extensions/ErrorKind.hpp"
#include "host_extensions/functionValues.hpp"

#include <initializer_list>
#include <limits>
#include <optional>
#include <span>
#include <stdexcept>
#include <thread>

namespace {

using namespace orbis;
using velmara::ArrayPtr;
using Body = std::function<ArrayPtr(std::span<COSValue const>)>;

struct Parameter {
    char const* type;
    char const* name;
};

/// A method that names its inputs, and gives an array.
struct Method final : described::Method {
    Method(char const* name, bool isStatic, char const* output, std::vector<Parameter> const& inputs, Body const& body)
        : described::Method(name, output, {},
                            [body](described::Call const& call) {
                                std::span const given(call.inputs, static_cast<std::size_t>(call.inputCount));
                                call.give(COSValue(body(given).release()));
                            },
                            {.isStatic = isStatic})
    {
        for (Parameter const& input : inputs)
            signature_->addInput(input.type, input.name);
    }
};

ArrayPtr copyOf(hvArray_tag const* array)
{
    return ArrayPtr(array ? hvCreateSharedDataCopy(array) : nullptr);
}

/// What a probe holds: any value.
struct Probe {
    ArrayPtr value{host_extensions::createMatrix(0, 0, hvDOUBLE_CLASS)};
};

constexpr char const* probeClass = "cases.Probe";

/// A property that takes any value, which it keeps in `common` or in each object.
struct Property final : described::Property {
    Property(char const* propertyName, bool isWritable, Probe* common = nullptr)
    {
        name = propertyName;
        type = "any";
        is_static = common;
        auto const probeOf = [common](COSInterface* object) -> Probe& {
            return common ? *common : *static_cast<Probe*>(object->getNativeObject(probeClass));
        };
        get = [=](COSInterface* object) { return COSValue(copyOf(probeOf(object).value.get()).release()); };
        if (isWritable)
            set = [=](COSInterface* object, COSValue value) { probeOf(object).value = copyOf(value.array()); };
    }

    char const* getDescription() const override { return "any value"; }
};

ArrayPtr pairOf(COSValue const& a, COSValue const& b)
{
    ArrayPtr pair(omCreateORBISMatrix(1, 2, probeClass));
    omSetArrayElement(pair.get(), 0, omGetArrayElement(a.array(), 0));
    omSetArrayElement(pair.get(), 1, omGetArrayElement(b.array(), 0));
    return pair;
}

struct ProbeInfo final : described::Class {
    explicit ProbeInfo(int& alive) : Class(probeClass)
    {
        create = [&alive]() -> void* {
            ++alive;
            return new Probe;
        };
        destroy = [&alive](COSInterface*, void* data) {
            --alive;
            delete static_cast<Probe*>(data);
        };
    }

    char const* getDescription() const override { return "Holds any value, and gives it back."; }

    void initializeClass(COSClass* cls) override
    {
        Parameter const self{probeClass, "this"};
        auto const same = [](auto in) { return copyOf(in[0].array()); };
        cls->addMethod(new Method("twin", false, probeClass, {self}, same));
        cls->addMethod(new Method("pair", false, "any", {self, {probeClass, "other"}},
                                  [](auto in) { return pairOf(in[0], in[1]); }));
        cls->addMethod(new Method("fail", false, "any", {self},
                                  [](auto) -> ArrayPtr { throw std::runtime_error("failed inside"); }));
        cls->addMethod(new Method("same", false, probeClass, {self}, same));
        cls->addMethod(new Method("same", true, "any", {{"any", "value"}}, same));
        cls->addMethod(new Method("give", true, "any", {{probeClass, "probe"}}, same));
        cls->addProperty(new Property("value", true));
        cls->addProperty(new Property("fixed", false));
        cls->addProperty(new Property("common", true, &common_));
    }

private:
    Probe common_;
};

/// Has a method and an operator, or a property of the method's name.
struct ChangingInfo final : described::Class {
    explicit ChangingInfo(bool hasMethods) : Class("cases.Changing"), hasMethods_(hasMethods) {}

    void initializeClass(COSClass* cls) override
    {
        auto const one = [](auto) { return ArrayPtr(host_extensions::createMatrix(1, 1, hvDOUBLE_CLASS)); };
        if (!hasMethods_)
            return cls->addProperty(new Property("member", true, &common_));
        cls->addMethod(new Method("member", false, "any", {{"cases.Changing", "this"}}, one));
        cls->addMethod(new Method("plus", false, "any", {{"cases.Changing", "this"}, {"any", "other"}}, one));
    }

private:
    bool hasMethods_;
    Probe common_;
};

template <class T>
ArrayPtr matrix(std::size_t rows, std::size_t columns, std::initializer_list<T> elements)
{
    ArrayPtr array(host_extensions::createMatrix(rows, columns, COSValue::classOf<T>()));
    std::copy(elements.begin(), elements.end(), static_cast<T*>(host_extensions::getWritableData(array.get())));
    return array;
}

ArrayPtr characters()
{
    ArrayPtr array(host_extensions::createMatrix(2, 2, hvCHAR_CLASS));
    std::u16string_view const text = u"acb\xd800"; // by column; the last one is half a pair
    std::copy(text.begin(), text.end(), static_cast<char16_t*>(host_extensions::getWritableData(array.get())));
    return array;
}

class Cases final : public COSPackageInfo {
public:
    ~Cases() override
    {
        if (leaves_)
            host_extensions::reportLeak("what the case left");
    }

    char const* getName() const override { return "cases"; }

    void initializePackage(COSPackage* package) override
    {
        package->addClass(new ProbeInfo(alive_));
        auto const add = [&](char const* name, std::vector<Parameter> const& inputs, Body const& body) {
            package->addFunction(new Method(name, true, "any", inputs, body));
        };
        constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
        auto const same = [](auto in) { return copyOf(in[0].array()); };
        add("echo", {{"any", "value"}}, same);
        add("many", std::vector<Parameter>(9, {"double scalar", "parameter"}),
            [](auto in) { return matrix<double>(1, 1, {in[8].template scalar<double>()}); });
        add("small", {}, [](auto) { return matrix<std::uint64_t>(1, 1, {7}); });
        add("alive", {}, [this](auto) { return matrix<std::int32_t>(1, 1, {alive_}); });
        package->addClass(new ChangingInfo(isOdd_));
        host_extensions::addErrorKind(
            {"cases:length", "cases", &typeid(std::length_error), [](auto&) { return false; }});
        if (isOdd_)
            add("changing", {}, [](auto) { return matrix<double>(1, 1, {1}); });
        add("large", {{"double scalar", "less"}}, [](auto in) {
            return matrix<std::uint64_t>(1, 1, {most - static_cast<std::uint64_t>(in[0].template scalar<double>())});
        });
        add("hue", {{"palette.Color", "hue"}}, same); // an enumeration that scripts define
        add("hues", {{"palette.Color vector", "hues"}}, same);
        add("grid", {}, [](auto) { return matrix<std::int8_t>(2, 3, {1, 4, 2, 5, 3, -6}); });
        add("column", {}, [](auto) { return matrix<float>(2, 1, {0.5F, 2.0F}); });
        add("characters", {}, [](auto) { return characters(); });
        add("cells", {}, [](auto) { return ArrayPtr(hvCreateCellMatrix(1, 2)); });
        add("leave", {}, [this](auto) {
            leaves_ = true;
            return matrix<bool>(1, 1, {true});
        });
        add("nobody", {}, [](auto) { return ArrayPtr(omCreateORBISMatrix(0, 0, probeClass)); });
        add("nests", {{"double scalar", "depth"}}, [](auto in) {
            ArrayPtr nest(hvCreateCellMatrix(1, 1));
            for (int depth = static_cast<int>(in[0].template scalar<double>()); depth > 1; --depth) {
                ArrayPtr outer(hvCreateCellMatrix(1, 1));
                hvSetCell(outer.get(), 0, nest.release());
                nest = std::move(outer);
            }
            return nest;
        });
    }

private:
    static inline int count = 0;

    int alive_ = 0; // probes
    bool isOdd_ = ++count % 2 != 0;
    bool leaves_ = false;
};

using host_extensions::FunctionHandle;

std::optional<FunctionHandle> kept; ///< outlives the virtual machines

ArrayPtr text(char const* text)
{
    return ArrayPtr(hvCreateString(text));
}

/// Calls the function with a number, and gives what it gives.
ArrayPtr callWith(FunctionHandle const& function, COSValue number)
{
    host_extensions::FunctionCall call(function);
    call.addInput("double scalar", number);
    return matrix<double>(1, 1, {call.invoke("double scalar").scalar<double>()});
}

/// The number that a probe holds, 0 for anything else.
double scalarOf(COSValue const& probe)
{
    auto const& value = static_cast<Probe*>(omGetArrayElement(probe.array(), 0)->getNativeObject(probeClass))->value;
    bool const isNumber = value->_get_class_id_non_trivial() == hvDOUBLE_CLASS && value->get_number_of_elements() == 1;
    return isNumber ? *static_cast<double const*>(host_extensions::getData(value.get())) : 0;
}

/// What `action` gives, or the text of what it throws.
template <class F>
ArrayPtr attempt(F const& action)
{
    try {
        return action();
    } catch (std::exception const& error) {
        return text(error.what());
    }
}

template <class F>
ArrayPtr attemptOnThread(F const& action)
{
    ArrayPtr result;
    std::thread([&] { result = attempt(action); }).join();
    return result;
}

ArrayPtr drop()
{
    kept.reset();
    return text("dropped");
}

/// Has properties of all fortunes; `nosy` calls the function that is kept.
struct GaugeInfo final : described::Class {
    GaugeInfo() : Class("callbacks.Gauge")
    {
        create = []() -> void* { return new double; };
        destroy = [](COSInterface*, void* data) { delete static_cast<double*>(data); };
    }

    void initializeClass(COSClass* cls) override
    {
        auto const add = [&](char const* propertyName, MemberAccess access, std::function<ArrayPtr()> const& get) {
            auto* const property = new described::Property;
            property->name = propertyName;
            property->type = "any";
            property->open = access;
            property->get = [get](COSInterface*) { return COSValue(get().release()); };
            cls->addProperty(property);
        };
        Parameter const self{"callbacks.Gauge", "this"};
        Parameter const number{"double scalar", "number"};
        auto const last = [](auto in) { return matrix<double>(1, 1, {in.back().template scalar<double>()}); };
        auto const none = [](auto) { return matrix<double>(1, 1, {0}); };
        cls->addMethod(new Method("plus", false, "double scalar", {self, number}, last));
        cls->addMethod(new Method("plus", true, "any", {number, self}, none));
        cls->addMethod(new Method("minus", true, "double scalar", {self, number}, last));
        cls->addMethod(new Method("length", false, "double scalar", {self}, none));
        cls->addMethod(new Method("item", false, "double scalar", {self, number}, last));
        add("unit", MemberAccess::Public, [] { return text("m\n"); });
        add("broken", MemberAccess::Public,
            []() -> ArrayPtr { throw std::runtime_error("no reading. Is it on?\nTry again."); });
        add("secret", MemberAccess::Private, [] { return text("never read"); });
        add("nosy", MemberAccess::Public,
            [] { return kept ? callWith(*kept, COSValue(1.0)) : matrix<double>(1, 1, {0}); });
        add("none", MemberAccess::Public, [] { return ArrayPtr(); });
    }
};

/// Calls functions of scripts, and keeps one.
class Callbacks final : public COSPackageInfo {
public:
    char const* getName() const override { return "callbacks"; }

    /// As a stranger may write it who knows what the text is put into.
    char const* getDescription() const override { return "Calls back\n]]@class evil\r  @class evil\n|evil <b>\x1b"; }

    void initializePackage(COSPackage* package) override
    {
        Parameter const function{"function(double scalar) -> double scalar", "function"};
        Parameter const number{"double scalar", "number"};
        auto const add = [&](char const* name, std::vector<Parameter> const& inputs, Body const& body) {
            package->addFunction(new Method(name, true, "any", inputs, body));
        };
        add("apply", {function, number}, [](auto in) { return callWith(FunctionHandle(in[0].array()), in[1]); });
        add("apply", {number, number}, [](auto) { return text("two numbers"); });
        add("swallow", {function},
            [](auto in) { return attempt([&] { return callWith(FunctionHandle(in[0].array()), COSValue(1.0)); }); });
        add("keep", {function}, [](auto in) {
            kept.emplace(in[0].array());
            return callWith(*kept, COSValue(0.0));
        });
        add("kept", {number}, [](auto in) { return callWith(kept.value(), in[0]); });
        add("keptOnThread", {},
            [](auto) { return attemptOnThread([] { return callWith(kept.value(), COSValue(1.0)); }); });
        add("with", {{probeClass, "probe"}, {"function", "function"}}, [](auto in) {
            host_extensions::FunctionCall call(FunctionHandle(in[1].array()));
            call.addInput(probeClass, COSValue(copyOf(in[0].array()).release()));
            call.invoke("void");
            return matrix<double>(1, 1, {scalarOf(in[0])});
        });
        package->addClass(new GaugeInfo);
        package->addClass(new described::Class("callbacks.gauge")); // but for its case another one
        add("drop", {}, [](auto) { return drop(); });
        add("dropOnThread", {}, [](auto) { return attemptOnThread(drop); });
        add("multiplier", {{"double scalar", "factor"}}, [number](auto in) {
            auto const multiply = [factor = in[0].template scalar<double>()](auto inputs) {
                return matrix<double>(1, 1, {factor * inputs[0].template scalar<double>()});
            };
            return ArrayPtr(
                host_extensions::createFunction(new Method("function", true, "double scalar", {number}, multiply)));
        });
    }
};

} // namespace

#if defined(_WIN32)
#define ENTRY_POINT extern "C" __declspec(dllexport)
#else
#define ENTRY_POINT extern "C" __attribute__((visibility("default")))
#endif

ENTRY_POINT void VXInitialize_console_cases()
{
    if (!COSPackage::getPackage("cases"))
        COSPackage::addPackage(new Cases);
    if (!COSPackage::getPackage("callbacks"))
        COSPackage::addPackage(new Callbacks);
}

ENTRY_POINT void VXTerminate_console_cases()
{
    COSPackage::removePackage("callbacks");
    COSPackage::removePackage("cases");
}

ENTRY_POINT void* QueryVXFcnTable_console_cases()
{
    return nullptr;
}
