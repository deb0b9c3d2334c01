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

/// Functions that the host interface itself lacks. To use the library with another host, implement them for it.
namespace orbis::host_extensions {

/// Returns a new m-by-n array of zeros of a numeric, logical or character class, owned by the caller.
ORBIS_HOST_API hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID);

/// The same, filled with a copy of `elements`, in column order and of the class's native type.
ORBIS_HOST_API hvArray* createMatrix(std::size_t m, std::size_t n, hvClassID classID, void const* elements);

/// Returns the elements of a numeric, logical or character array in column order, of the class's native type (`bool`
/// for logical, `char16_t` for characters); null for other classes. Valid until the array is written to or destroyed.
ORBIS_HOST_API void const* getData(hvArray_tag const* array);

/// The same for writing. Data shared with other arrays is copied first.
ORBIS_HOST_API void* getWritableData(hvArray_tag* array);

/// Returns a new 1-by-n character array of UTF-16 text, which may contain zeros; 0-by-0 for an empty text.
ORBIS_HOST_API hvArray* createText(std::u16string_view text);

/// The same of UTF-8 text. What is ill-formed becomes U+FFFD.
ORBIS_HOST_API hvArray* createText(std::string_view text);

/// Returns the number of bytes of a text in UTF-8, where each lone surrogate is U+FFFD.
ORBIS_HOST_API std::size_t utf8Size(std::u16string_view text);

/// Writes that many bytes.
ORBIS_HOST_API void writeUtf8(std::u16string_view text, char* out);

/// Returns a new m-by-n string array of missing elements. Read it with `Tarnwick::String`.
ORBIS_HOST_API hvArray* createStringMatrix(std::size_t m, std::size_t n);

/// Stores a copy of the text, which may contain zeros, at a zero-based linear index of a string array. Data shared with
/// other arrays is copied first. The text may be that of an element of the same array.
ORBIS_HOST_API void setString(hvArray_tag* strings, std::size_t index, std::u16string_view text);

/// Makes an element of a string array missing, likewise.
ORBIS_HOST_API void setMissing(hvArray_tag* strings, std::size_t index);

/// Returns the cell at a zero-based linear index, owned by the cell array; null when it is empty.
ORBIS_HOST_API hvArray_tag const* getCell(hvArray_tag const* cells, std::size_t index);

/// Sets the direct superclasses of a class while it is being initialised. They must be published. Throws if the class
/// would become its own superclass.
ORBIS_HOST_API void setSuperclasses(COSClass* cls, std::span<COSNameID const> superclasses);

/// Adds an enumerator to a class that is an enumeration (`COSClassInfo::isEnumeration`) while it is being initialised.
/// Throws if the name is taken. Two names with one value denote the same enumerator, which goes by the first.
ORBIS_HOST_API void addEnumerator(COSClass* cls, char const* name, std::int64_t value);

/// Returns the object of an enumerator; empty when there is no such enumeration or enumerator. Each virtual machine has
/// one object per enumerator, so enumerators are compared by identity.
ORBIS_HOST_API COSInterfacePtr getEnumerator(COSNameID const& className, char const* name);

/// The description of an enumerator.
struct Enumerator {
    char const* name;     ///< the first of its names; valid as long as the process
    std::int64_t value;   ///< as it was described
    std::size_t position; ///< the number of names added before its own
};

/// Returns the enumerator that an object (null allowed) represents, while its class is published; null for other
/// objects.
ORBIS_HOST_API Enumerator const* describeEnumerator(COSInterface const* object);

/// A native object that a host object records for a class.
struct RecordedObject {
    COSInterface const* host; ///< without a reference
    char const* className;    ///< full name; valid as long as the virtual machine
    void const* native;       ///< not null
};

/// Returns what the host objects of the current virtual machine record, except for destroyed ones.
ORBIS_HOST_API std::vector<RecordedObject> recordedObjects();

/// Returns whether the current virtual machine reports, when it is destroyed, what native code has left in it. Code
/// that keeps things in its storage should then also keep what is needed to name them.
ORBIS_HOST_API bool reportsLeaks();

/// Reports one leak, in a sentence. For the deleters of what the current virtual machine stores.
ORBIS_HOST_API void reportLeak(char const* sentence) noexcept;

/// A message: its key, and its text, with the placeholders {0}, {1}, ... for the arguments.
struct Message {
    char const* key;  ///< unique in its catalog
    char const* text; ///< UTF-8
};

/// A module with its own messages exports a `MessageList const*` named after it (`orbis_factory_messages`): a list of
/// catalogs, terminated by a null catalog, each with a list of messages, terminated by a null key. The host adds them
/// when it loads the module.
struct MessageList {
    char const* catalog;     ///< "component:catalog"
    Message const* messages; ///< terminated by a null key
};

/// Adds copies of the texts to a message catalog ("component:catalog") of the current virtual machine, replacing texts
/// with the same keys.
ORBIS_HOST_API void addMessages(char const* catalog, std::span<Message const> messages);

} // namespace orbis::host_extensions
