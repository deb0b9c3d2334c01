#include "classes/PackageTree.hpp"

#include "host_extensions/host_extensions.hpp"

namespace orbis::host_extensions {

using namespace velmara;

namespace {

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

std::vector<RecordedObject> recordedObjects()
{
    std::vector<RecordedObject> records;
    if (Machine* const machine = Machine::current())
        collect(machine->packages().root(), records);
    return records;
}

} // namespace orbis::host_extensions
