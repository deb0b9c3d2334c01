#include "api/HvmState.hpp"

#include "velmara/Error.hpp"
#include "velmara/Hvm.hpp"

namespace velmara {

namespace {

bool isClassPublished(Name fullName)
{
    Machine const* const machine = Machine::current();
    return machine && machine->packages().findClass(fullName);
}

} // namespace

HvmState::HvmState() : Machine({&packages_, &types_, &deferredFinalizer_}), types_(isClassPublished), packages_(*this)
{
    Error::outOfMemory(); // created while there is memory
}

HvmState::~HvmState()
{
    Machine* const previous = makeCurrent(this);
    beginEnding();
    {
        Entry const entry(*this);
        packages_.finalizeAllObjects();
        modules_.terminateAll(terminationReport_);
        packages_.clear();
        functions().end();
    }
    clearStorage();
    packages_.clear(); // what deleters may have published
    types_.clear();
    clearStorage(); // what was stored meanwhile, while the modules' code is there
    destroyRetired();
    errorKinds().clear(); // whose functions are the modules'
    makeCurrent(previous == this ? nullptr : previous);
    Hvm::Scope::forget(*this);
}

} // namespace velmara
