#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "objects/Object.hpp"

#include "additions/additions.hpp"

namespace velmara {

namespace {

using orbis::additions::RecordedObject;

void collect(Package const& package, std::vector<RecordedObject>& records)
{
    for (auto const& inner : package.packages())
        collect(*inner, records);
    for (auto const& cls : package.classes())
        cls->objects().forEach([&](Object const& object) {
            object.forEachNativeObject([&](Name className, void* native) {
                records.push_back({&object, className->text, native});
            });
        });
}

} // namespace

} // namespace velmara

namespace orbis::additions {

std::vector<RecordedObject> recordedObjects()
{
    std::vector<RecordedObject> records;
    if (velmara::Machine* const machine = velmara::Machine::current())
        velmara::collect(machine->packages().root(), records);
    return records;
}

} // namespace orbis::additions
