#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/descriptors/FunctionInfo.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "velmara/Hvm.hpp"

#include "host_extensions/host_extensions.hpp"
#include "orbis/COSInterface.hpp"
#include "orbis/objectArrays.hpp"

#include <cstdint>
#include <memory>
#include <stdexcept>

namespace bench {

class Adder {
public:
    virtual ~Adder() = default;
    std::int32_t add(std::int32_t a, std::int32_t b);
};

[[gnu::noinline]] inline std::int32_t Adder::add(std::int32_t a, std::int32_t b)
{
    return a + b;
}

[[gnu::noinline]] inline std::int32_t addFree(std::int32_t a, std::int32_t b)
{
    return a + b;
}

inline constexpr char const* adderName = "bench_package.Adder";

} // namespace bench

template <>
struct orbis::factory::HostClass<bench::Adder> {
    static constexpr char const* name = bench::adderName;
};

namespace bench {

using orbis::COSInterfacePtr;
using orbis::COSNameID;
using orbis::COSValue;

/// The reference: what a careful author would write by hand, with the same host calls as the generated routine.
class HandWrittenAdd final : public orbis::COSMethodInfo {
public:
    char const* getName() const override { return "add"; }
    orbis::COSMethodSignature const* getMethodSignature() const override { return nullptr; }

    void invoke(orbis::COSClient const*, int& outputCount, COSValue* outputs, int,
                COSValue const* inputs) const override
    {
        Adder* self = nullptr;
        hvArray const* const array = inputs[0].array();
        if (array->get_number_of_elements() != 0) {
            COSInterfacePtr const object = orbis::omGetArrayElement(array, 0);
            orbis::COSInterface const* const host = object;
            if (host)
                self = static_cast<Adder*>(host->getNativeObject(COSNameID(adderName)));
        }
        auto const a = inputs[1].scalar<std::int32_t>();
        auto const b = inputs[2].scalar<std::int32_t>();
        if (!self)
            throw std::runtime_error("no object");
        outputs[0] = COSValue(self->add(a, b));
        if (outputCount == 0)
            outputCount = 1;
    }
};

class AdderInfo final : public orbis::factory::HandleClassInfo<Adder, 1> {
public:
    AdderInfo() : HandleClassInfo(adderName, "") {}

    void initializeClass(orbis::COSClass* cls) override { publish(cls, description()); }

    static orbis::factory::ClassDescription description()
    {
        return orbis::factory::describe<Adder>().constructor().method("getSum", &Adder::add, "a, b");
    }
};

/// A virtual machine with the class published, and one object of it.
class Fixture {
public:
    Fixture() : scope_(hvm)
    {
        orbis::factory::registerOrbisPackage("bench_package",
                                             [](orbis::COSPackage* package) { package->addClass(new AdderInfo); });
        object = hvm.construct(adderName);
        orbis::COSInterface* const host = orbis::omGetArrayElement(object.get(), 0);
        native = static_cast<Adder*>(host->getNativeObject(COSNameID(adderName)));
        bind(member, AdderInfo::description().members().at(1));
        bind(function.method(), orbis::factory::describeFunctions().function("add", &addFree).functions().at(0));
    }

    static velmara::ArrayPtr number(double value)
    {
        velmara::ArrayPtr array(orbis::host_extensions::createMatrix(1, 1, hvDOUBLE_CLASS));
        *static_cast<double*>(orbis::host_extensions::getWritableData(array.get())) = value;
        return array;
    }

    velmara::Hvm hvm;

private:
    velmara::Hvm::Scope scope_;

    template <class Method>
    static void bind(Method& method, orbis::factory::MemberRecord const& record)
    {
        method.invoker().invokeFn = record.invokeFn;
        method.invoker().setTarget(record.target);
    }

public:
    velmara::ArrayPtr object;
    Adder* native = nullptr;
    orbis::factory::impl::MethodImpl member{"add", {}, ""};
    orbis::factory::FunctionInfo function{"add", {}};
    HandWrittenAdd handWritten;
};

} // namespace bench
