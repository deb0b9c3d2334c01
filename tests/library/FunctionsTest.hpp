#pragma once

#include "HvmTest.hpp"

#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

/// Publishes functions in the package "tests", and calls them.
class FunctionsTest : public HvmTest {
protected:
    static void publishFunctions(orbis::factory::FunctionDescriber const& functions)
    {
        orbis::factory::registerOrbisPackage("tests",
                                             [functions](orbis::COSPackage* package) { publish(package, functions); });
    }

    template <class... A>
    velmara::ArrayPtr call(std::string const& function, A const&... arrays)
    {
        return hvm().callFunction("tests." + function, inputs(arrays...));
    }
};
