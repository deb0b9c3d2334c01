#include "orbis/COSTypeRepository.hpp"

#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "types/TypeRepository.hpp"

namespace orbis {

using velmara::Machine;

void COSTypeRepository::addGlobalType(COSDataType* type)
{
    std::unique_ptr<COSDataType> owned(type);
    Machine& machine = Machine::required();
    if (!owned)
        velmara::throwHostError("VELMARA:type", "null");
    machine.types().add(std::move(owned));
}

void COSTypeRepository::removeGlobalType(COSNameID const& name)
{
    if (Machine* const machine = Machine::current())
        machine->types().remove(name.interned());
}

void COSTypeRepository::addConversion(COSNameID const& from, COSNameID const& to, COSTypeConversion* conversion)
{
    std::unique_ptr<COSTypeConversion> owned(conversion);
    Machine& machine = Machine::required();
    if (!owned)
        velmara::throwHostError("VELMARA:type", "null");
    machine.types().addConversion(from.interned(), to.interned(), std::move(owned));
}

void COSTypeRepository::removeConversion(COSNameID const& from, COSNameID const& to)
{
    if (Machine* const machine = Machine::current())
        machine->types().removeConversion(from.interned(), to.interned());
}

COSTypeConversion* COSTypeRepository::getConversion(COSNameID const& from, COSNameID const& to)
{
    Machine* const machine = Machine::current();
    return machine ? machine->types().findConversion(from.interned(), to.interned()) : nullptr;
}

} // namespace orbis
