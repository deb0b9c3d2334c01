#include "orbis/factory/types/initStringDataTypes.hpp"

#include "orbis/factory/ownership/HvmScoped.hpp"

#include "marshal/OrbisFactoryString.hpp"
#include "marshal/OrbisFactoryStringVector.hpp"

#include "orbis/COSTypeRepository.hpp"

namespace orbis::factory::detail {

namespace {

/// The registration of one data type and its conversion from and to "any" in the current virtual machine; its
/// destructor unregisters both. Throws the host's errors, and then leaves nothing registered.
template <class Type>
class Registration {
public:
    Registration()
    {
        COSNameID const any("any"), name(Type::name);
        COSTypeRepository::addGlobalType(new Type); // the host owns it, also when it throws; likewise the conversion
        try {
            COSTypeRepository::addConversion(any, name, new typename Type::Conversion);
        } catch (...) {
            COSTypeRepository::removeGlobalType(name);
            throw;
        }
    }
    Registration(Registration const&) = delete;
    Registration& operator=(Registration const&) = delete;

    ~Registration()
    {
        COSTypeRepository::removeConversion("any", Type::name);
        COSTypeRepository::removeGlobalType(Type::name);
    }
};

/// Kept in the virtual machine's storage.
struct StringDataTypes {
    Registration<OrbisFactoryString> string;
    Registration<OrbisFactoryStringVector> vector;
};

} // namespace

void initStringDataTypes()
{
    basic::HvmScoped<StringDataTypes>::get();
}

} // namespace orbis::factory::detail
