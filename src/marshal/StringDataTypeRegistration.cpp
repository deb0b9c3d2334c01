#include "marshal/StringDataTypeRegistration.hpp"

#include "marshal/OrbisFactoryString.hpp"
#include "marshal/OrbisFactoryStringVector.hpp"

#include "orbis/COSTypeRepository.hpp"

namespace orbis::factory {

StringDataTypeRegistration::Registered::Registered(std::unique_ptr<COSDataType> type,
                                                   std::unique_ptr<COSTypeConversion> conversion)
    : name_(type->scalarTypeName())
{
    COSTypeRepository::addGlobalType(type.release());
    try {
        COSTypeRepository::addConversion("any", name_, conversion.release());
    } catch (...) {
        COSTypeRepository::removeGlobalType(name_);
        throw;
    }
}

StringDataTypeRegistration::Registered::~Registered()
{
    COSTypeRepository::removeConversion("any", name_);
    COSTypeRepository::removeGlobalType(name_);
}

StringDataTypeRegistration::StringDataTypeRegistration()
    : string_(std::make_unique<OrbisFactoryString>(), std::make_unique<OrbisFactoryString::Conversion>()),
      vector_(std::make_unique<OrbisFactoryStringVector>(), std::make_unique<OrbisFactoryStringVector::Conversion>())
{
}

} // namespace orbis::factory
