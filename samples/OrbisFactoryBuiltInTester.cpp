#include "samples/OrbisFactoryBuiltInTester.hpp"

#include "orbis/factory/describe.hpp"

#include <limits>
#include <memory>

namespace orbis::factory::samples {

namespace {

template <class T>
constexpr T greatest = std::numeric_limits<T>::max();

} // namespace

double OrbisFactoryBuiltInTester::getDouble() const
{
    return greatest<double>;
}

float OrbisFactoryBuiltInTester::getSingle() const
{
    return greatest<float>;
}

std::int8_t OrbisFactoryBuiltInTester::getInt8() const
{
    return greatest<std::int8_t>;
}

std::int16_t OrbisFactoryBuiltInTester::getInt16() const
{
    return greatest<std::int16_t>;
}

std::int32_t OrbisFactoryBuiltInTester::getInt32() const
{
    return greatest<std::int32_t>;
}

std::int64_t OrbisFactoryBuiltInTester::getInt64() const
{
    return greatest<std::int64_t>;
}

std::uint8_t OrbisFactoryBuiltInTester::getUint8() const
{
    return greatest<std::uint8_t>;
}

std::uint16_t OrbisFactoryBuiltInTester::getUint16() const
{
    return greatest<std::uint16_t>;
}

std::uint32_t OrbisFactoryBuiltInTester::getUint32() const
{
    return greatest<std::uint32_t>;
}

std::uint64_t OrbisFactoryBuiltInTester::getUint64() const
{
    return greatest<std::uint64_t>;
}

bool OrbisFactoryBuiltInTester::getLogical() const
{
    return true;
}

char OrbisFactoryBuiltInTester::getChar() const
{
    return '~';
}

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
