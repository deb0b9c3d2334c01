#include "dispatch/enumeratorConversion.hpp"

#include "classes/Class.hpp"
#include "classes/PackageTree.hpp"
#include "machine/Machine.hpp"
#include "text/utf.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/numericClasses.hpp"

#include <memory_resource>
#include <optional>
#include <vector>

namespace velmara {

using orbis::host_extensions::convertNumber;
using orbis::host_extensions::isNumeric;
using orbis::host_extensions::visitNumericClass;

namespace {

/// The number at the index of a numeric array, when it is whole and in the range.
std::optional<std::int64_t> wholeNumberAt(Array const& input, std::size_t index)
{
    return visitNumericClass(input.classID(), [&]<class T>(T) {
        return convertNumber<std::int64_t>(static_cast<T const*>(input.elements())[index]);
    });
}

Enumerator const* findByText(EnumeratorTable const& enumerators, std::u16string_view text)
{
    std::size_t const length = convertedSize(text);
    if (length > enumerators.longestName())
        return nullptr;
    std::byte buffer[256]; // enough for all but the longest names
    std::pmr::monotonic_buffer_resource memory(buffer, sizeof buffer);
    std::pmr::vector<char> name(length, &memory);
    convert(text, name.data());
    return enumerators.find(std::string_view(name.data(), length));
}

Enumerator const* findByNumber(EnumeratorTable const& enumerators, Array const& input, std::size_t index)
{
    std::optional<std::int64_t> const number = wholeNumberAt(input, index);
    return number ? enumerators.find(*number) : nullptr;
}

/// Objects in cells were not looked at by anyone before.
Enumerator const* findByCell(Class const& enumeration, Array const* cell)
{
    if (!cell || cell->classID() != hvOBJECT_CLASS)
        return cell ? findEnumerator(enumeration, *cell) : nullptr;
    Object const* const object = cell->size() == 1 ? cell->objects().front() : nullptr;
    bool const isOurs = object && object->classOf() == &enumeration && object->isValid();
    return isOurs ? &enumeration.contents().enumerators.at(object->enumerator()) : nullptr;
}

} // namespace

Class const* findEnumeration(TypeReference const& type)
{
    Class* const cls = Machine::required().packages().findClass(type.element ? type.element : type.name);
    if (!cls || !cls->isEnumeration())
        return nullptr;
    cls->ensureReady();
    return cls->isReady() ? cls : nullptr;
}

Enumerator const* findEnumerator(Class const& enumeration, Array const& input)
{
    EnumeratorTable const& enumerators = enumeration.contents().enumerators;
    if (input.classID() == hvCHAR_CLASS && input.rows() == 1)
        return findByText(enumerators, input.text());
    bool const isOne = input.size() == 1 && (isNumeric(input.classID()) || input.classID() == hvSTRING_CLASS);
    return isOne ? findEnumeratorAt(enumeration, input, 0) : nullptr;
}

bool isListOfEnumerators(Array const& input)
{
    return isNumeric(input.classID()) || input.classID() == hvSTRING_CLASS || input.classID() == hvCELL_CLASS;
}

Enumerator const* findEnumeratorAt(Class const& enumeration, Array const& input, std::size_t index)
{
    EnumeratorTable const& enumerators = enumeration.contents().enumerators;
    if (input.classID() == hvCELL_CLASS)
        return findByCell(enumeration, input.cells()[index]);
    if (input.classID() == hvSTRING_CLASS)
        return findByText(enumerators, input.strings()[index].view()); // a missing one is empty, which no name is
    return findByNumber(enumerators, input, index);
}

ArrayPtr toEnumerators(Class const& enumeration, Array const& input)
{
    bool const isList = isListOfEnumerators(input);
    std::size_t const count = isList ? input.size() : 1;
    ArrayPtr row(Array::createObjects(enumeration.name(), 1, count));
    for (std::size_t i = 0; i < count; ++i) {
        Enumerator const* const found =
            isList ? findEnumeratorAt(enumeration, input, i) : findEnumerator(enumeration, input);
        if (!found)
            return nullptr;
        Array::of(row.get())->setObject(i, found->host());
    }
    return row;
}

} // namespace velmara
