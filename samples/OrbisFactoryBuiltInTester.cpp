#include "samples/OrbisFactoryBuiltInTester.hpp"

#include "orbis/factory/describe.hpp"

#include <memory>

namespace orbis::factory::samples {

OrbisFactoryBuiltInTesterClassInfo::OrbisFactoryBuiltInTesterClassInfo()
    : HandleClassInfo(HostClass<OrbisFactoryBuiltInTester>::name, "Gives a value of every primitive type")
{
}

void OrbisFactoryBuiltInTesterClassInfo::initializeClass(COSClass* cls)
{
    using Tester = OrbisFactoryBuiltInTester;
    publish(cls, describe<Tester>()
                     .constructor()
                     .method("getDouble", &Tester::getDouble)
                     .method("getSingle", &Tester::getSingle)
                     .method("getInt8", &Tester::getInt8)
                     .method("getInt16", &Tester::getInt16)
                     .method("getInt32", &Tester::getInt32)
                     .method("getInt64", &Tester::getInt64)
                     .method("getUint8", &Tester::getUint8)
                     .method("getUint16", &Tester::getUint16)
                     .method("getUint32", &Tester::getUint32)
                     .method("getUint64", &Tester::getUint64)
                     .method("getLogical", &Tester::getLogical)
                     .method("getChar", &Tester::getChar));
}

void* OrbisFactoryBuiltInTesterClassInfo::createInstanceData()
{
    return static_cast<full::Wrappable*>(new OrbisFactoryBuiltInTester);
}

bool OrbisFactoryBuiltInTesterClassInfo::destroyInstanceData(COSInterface* object, void* data)
{
    std::unique_ptr<full::Wrappable> const tester(static_cast<full::Wrappable*>(data));
    return HandleClassInfo::destroyInstanceData(object, data);
}

} // namespace orbis::factory::samples
