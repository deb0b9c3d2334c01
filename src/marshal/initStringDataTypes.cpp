#include "orbis/factory/types/initStringDataTypes.hpp"

#include "orbis/factory/ownership/HvmScoped.hpp"

#include "marshal/StringDataTypeRegistration.hpp"

namespace orbis::factory::detail {

void initStringDataTypes()
{
    basic::HvmScoped<StringDataTypeRegistration>::get();
}

} // namespace orbis::factory::detail
