#include "orbis/factory/detail/Routines.hpp"

#include "orbis/factory/basic/BindingRegistry.hpp"

#include "libkwfl/Exception.hpp"

#include <string>

namespace orbis::factory::detail {

void refuseEarlyBinding(COSInterface* host, COSNameID const& className, void* bound)
{
    using foundation::core::except::Exception;
    using foundation::core::except::IInternalException;
    host->setNativeObject(className, nullptr);
    basic::BindingRegistry::retract(bound);
    throw Exception<IInternalException, std::exception>(
        std::string("A constructor of ") + static_cast<COSString>(className).c_str() +
        " has handed its object to the host before it was done: let that be done by who calls it.");
}

} // namespace orbis::factory::detail
