#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/types/EnumClassArrayPolicy.hpp"
#include "orbis/factory/types/EnumClassPolicy.hpp"
#include "orbis/factory/types/EnumClassVelmaraImplementedPolicy.hpp"

#include "marshal/throwError.hpp"

#include "host_extensions/host_extensions.hpp"
#include "orbis/COSString.hpp"

#include <algorithm>
#include <cstring>

namespace orbis::factory {

using One = Marshaler<EnumClassPolicy>;
using OneOfHost = Marshaler<EnumClassVelmaraImplementedPolicy>;
using Several = Marshaler<EnumClassArrayPolicy>;

One& One::operator=(One const&) = default;

One& One::operator=(One&&) = default;

OneOfHost& OneOfHost::operator=(OneOfHost const&) = default;

OneOfHost& OneOfHost::operator=(OneOfHost&&) = default;

Several& Several::operator=(Several const&) = default;

Several& Several::operator=(Several&&) = default;

COSNameID Several::getScalarClassID(COSNameID const& arrayType)
{
    constexpr std::string_view suffix = " vector";
    std::string text = static_cast<COSString>(arrayType).c_str();
    if (text.find(suffix) == text.npos)
        return arrayType;
    text.resize(text.size() - suffix.size());
    return COSNameID(text.c_str());
}

void publish(COSClass* cls, EnumerationRecord const& enumeration)
{
    for (EnumerationRecord::Entry const& entry : enumeration.entries)
        host_extensions::addEnumerator(cls, entry.name, entry.value);
}

namespace detail {

namespace {

using Entry = EnumerationRecord::Entry;

[[noreturn]] void throwNoSuchEnumerator(EnumerationRecord const& enumeration, std::string const& enumerator)
{
    std::string known;
    for (Entry const& entry : enumeration.entries)
        known.append(known.empty() ? "" : ", ").append(entry.name);
    throwError(orbis_factory::orbis_factory::no_such_enumerator(enumeration.hostName, enumerator, known));
}

[[noreturn]] void throwUnknownToHost(EnumerationRecord const& enumeration, char const* name)
{
    if (!COSClass::getClass(enumeration.hostName))
        throwError(orbis_factory::orbis_factory::no_such_class(enumeration.hostName));
    throwNoSuchEnumerator(enumeration, name);
}

/// Looks an enumerator up by its other names, if the host calls it by one that is unknown here.
std::int64_t valueByOtherName(EnumerationRecord const& enumeration, COSInterface const* object, char const* name)
{
    for (Entry const& entry : enumeration.entries)
        if (host_extensions::getEnumerator(enumeration.hostName, entry.name) == object)
            return entry.value;
    throwNoSuchEnumerator(enumeration, name);
}

bool isCalled(Entry const& entry, char const* name)
{
    return std::strcmp(entry.name, name) == 0;
}

} // namespace

COSInterfacePtr enumeratorObject(EnumerationRecord const& enumeration, COSNameID const& className, std::int64_t value)
{
    auto const entry = std::ranges::lower_bound(enumeration.byValue, value, {}, &Entry::value);
    if (entry == enumeration.byValue.end() || entry->value != value)
        throwNoSuchEnumerator(enumeration, std::to_string(value));
    COSInterfacePtr object = host_extensions::getEnumerator(className, entry->name);
    if (!object)
        throwUnknownToHost(enumeration, entry->name);
    return object;
}

std::int64_t enumeratorValue(EnumerationRecord const& enumeration, COSInterface const* object)
{
    host_extensions::Enumerator const* const enumerator = host_extensions::describeEnumerator(object);
    if (!enumerator)
        throwNoSuchEnumerator(enumeration, "null");
    // A class that was published from the same record has its enumerators in the same order.
    std::span<Entry const> const entries = enumeration.entries;
    if (enumerator->position < entries.size() && isCalled(entries[enumerator->position], enumerator->name)) [[likely]]
        return entries[enumerator->position].value;
    for (Entry const& entry : entries)
        if (isCalled(entry, enumerator->name))
            return entry.value;
    return valueByOtherName(enumeration, object, enumerator->name);
}

hvArray* enumeratorToHost(EnumerationRecord const& enumeration, std::int64_t value)
{
    return omCreateORBISScalar(enumeratorObject(enumeration, enumeration.hostName, value));
}

std::int64_t enumeratorFromHost(EnumerationRecord const& enumeration, hvArray_tag const* in)
{
    bool const isEmpty = !in || in->get_number_of_elements() == 0;
    return enumeratorValue(enumeration, isEmpty ? COSInterfacePtr() : omGetArrayElement(in, 0));
}

} // namespace detail
} // namespace orbis::factory
