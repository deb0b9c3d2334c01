#pragma once

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace orbis {
class COSClass;
}

/// What the host interface proper lacks. Whoever brings another host implements these few functions for it.
namespace orbis::additions {

/// A new m-by-n array of zeros of a numeric, logical or character class.
ORBIS_HOST_API hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID);

/// The same with a copy of its elements, in column order, of the class's native type.
ORBIS_HOST_API hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID, void const* elements);

/// The elements of a numeric, logical or character array, in column order; null for other classes. The elements
/// are of the class's native type (`bool` for logical, `char16_t` for characters).
ORBIS_HOST_API void const* getData(hvArray_tag const* array);

/// The same for writing: data shared with other arrays is copied first.
ORBIS_HOST_API void* getWritableData(hvArray_tag* array);

/// A 1-by-n character array of UTF-16 text, which may hold zeros; 0-by-0 for an empty one.
ORBIS_HOST_API hvArray* createText(std::u16string_view text);

/// A new m-by-n string array of missing elements. `Tarnwick::String` reads it.
ORBIS_HOST_API hvArray* createStringMatrix(std::size_t m, std::size_t n);

/// Stores a copy of the text, which may hold zeros, at a zero-based linear index of a string array; data shared with
/// other arrays is copied first. The text may be that of an element of the same array.
ORBIS_HOST_API void setString(hvArray_tag* strings, std::size_t index, std::u16string_view text);
ORBIS_HOST_API void setMissing(hvArray_tag* strings, std::size_t index);

/// The cell at a zero-based linear index, null when it is empty. It stays the cell array's.
ORBIS_HOST_API hvArray_tag const* getCell(hvArray_tag const* cells, std::size_t index);

/// Names the direct superclasses of a class while it is being initialised. They must be published; a class that
/// would become its own superclass is refused.
ORBIS_HOST_API void setSuperclasses(COSClass* cls, std::span<COSNameID const> superclasses);

/// Adds an enumerator to a class that is an enumeration (`COSClassInfo::isEnumeration`) while it is being initialised.
/// A name that is taken is refused. Two names may have one value: they mean the same enumerator, called by the first.
ORBIS_HOST_API void addEnumerator(COSClass* cls, char const* name, std::int64_t value);

/// The object of an enumerator, one in each virtual machine, so that enumerators are compared by identity; empty when
/// there is no such enumeration, or no such enumerator in it.
ORBIS_HOST_API COSInterfacePtr getEnumerator(COSNameID const& className, char const* name);

/// What an enumerator is.
struct Enumerator {
    char const* name; ///< the first of its names; lives as long as the program
    std::int64_t value;
    std::size_t position; ///< how many names were added before its own
};

/// The enumerator that an object (null allowed) stands for, while its class is published; null for other objects.
ORBIS_HOST_API Enumerator const* describeEnumerator(COSInterface const* object);

/// A native object that a host object records for a class.
struct RecordedObject {
    COSInterface const* host;
    char const* className;
    void const* native; ///< not null
};

/// What the host objects of the current virtual machine record that have not ended.
ORBIS_HOST_API std::vector<RecordedObject> recordedObjects();

/// True when the current virtual machine reports, as it ends, what native code has left in it. Who keeps things in its
/// storage then remembers what it takes to name them.
ORBIS_HOST_API bool reportsLeaks();

/// Reports one thing that is left, in a sentence; for the deleters of what the current virtual machine stores.
ORBIS_HOST_API void reportLeak(char const* sentence) noexcept;

/// A key and its text, in which {0}, {1}, ... stand for the arguments.
struct Message {
    char const* key;
    char const* text;
};

/// A module with texts of its own exports a `MessageList const*` named after it (`orbis_factory_messages`): a list of
/// catalogs, ended by a null catalog, each with its messages, ended by a null key. The host adds them when it loads the
/// module.
struct MessageList {
    char const* catalog;
    Message const* messages;
};

/// Adds texts to a message catalog ("component:catalog") of the current virtual machine, in place of texts of the
/// same keys. The texts are copied.
ORBIS_HOST_API void addMessages(char const* catalog, std::span<Message const> messages);

} // namespace orbis::additions
