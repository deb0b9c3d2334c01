#pragma once

#include "bench/BenchedAdder.hpp"

#include "orbis/factory/ownership/BindingRegistry.hpp"

#include <cstddef>

namespace bench {

/// The measured calls; each scenario makes `count` of them.
class CallScenarios {
public:
    /// Calls like the host, which knows only a descriptor's base class.
    [[gnu::noipa]] void invoke(orbis::COSMethodInfo const& method, COSValue const* inputs, int inputCount,
                               std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            int outputCount = 1;
            COSValue output;
            method.invoke(nullptr, outputCount, &output, inputCount, inputs);
        }
    }

    /// A free function through its `FunctionInfo`.
    void function(std::size_t count) { invoke(fixture_.function, memberInputs_ + 1, 2, count); }

    /// A member function on a bound object.
    void member(std::size_t count) { invoke(fixture_.member, memberInputs_, 3, count); }
    void handWritten(std::size_t count) { invoke(fixture_.handWritten, memberInputs_, 3, count); }

    /// Calls the member by name through the host's dispatch, with numbers as scripts pass them.
    void dispatch(std::size_t count)
    {
        hvArray* const inputs[] = {one_.get(), two_.get()};
        for (std::size_t i = 0; i < count; ++i)
            fixture_.hvm.call(fixture_.object.get(), "getSum", inputs);
    }

    /// Passes a bound object to the host and destroys the array.
    void announce(std::size_t count)
    {
        COSNameID const name(adderName);
        for (std::size_t i = 0; i < count; ++i)
            hvDestroyArray(orbis::factory::basic::BindingRegistry::announce(fixture_.native, name));
    }

    /// Creates and destroys a bound handle object, by its class's name.
    void construct(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            fixture_.hvm.construct(adderName);
    }

    /// What the native object itself costs in `construct`.
    void allocate(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            destroy(new Adder);
    }

private:
    [[gnu::noipa]] static void destroy(Adder* adder) { delete adder; }

    Fixture fixture_;
    velmara::ArrayPtr one_ = Fixture::number(1);
    velmara::ArrayPtr two_ = Fixture::number(2);
    COSValue memberInputs_[3] = {COSValue(fixture_.object.get()), COSValue(std::int32_t{1}), COSValue(std::int32_t{2})};
};

} // namespace bench
