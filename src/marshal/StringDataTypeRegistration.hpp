#pragma once

#include "orbis/COSDataType.hpp"
#include "orbis/COSTypeConversion.hpp"

#include <memory>

namespace orbis::factory {

/// The registration of the string data types, each with its conversion from and to "any", in the current virtual
/// machine. Kept in the virtual machine's storage; its destructor unregisters them.
class StringDataTypeRegistration {
public:
    /// Throws the host's errors, and then leaves nothing registered.
    StringDataTypeRegistration();

private:
    /// The registration of one data type and its conversion.
    class Registered {
    public:
        Registered(std::unique_ptr<COSDataType> type, std::unique_ptr<COSTypeConversion> conversion);
        Registered(Registered const&) = delete;
        Registered& operator=(Registered const&) = delete;
        ~Registered();

    private:
        char const* name_;
    };

    Registered string_;
    Registered vector_;
};

} // namespace orbis::factory
