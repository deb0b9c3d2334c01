#pragma once

#include "arrays/Array.hpp"
#include "types/TypeReference.hpp"

#include "velmara/ArrayPtr.hpp"

#include <cstddef>

namespace velmara {

class Class;
struct Enumerator;

/// The enumeration that a data type is of, described; null when its class is none. Throws when the class cannot be
/// described.
Class const* findEnumeration(TypeReference const& type);

/// What an input that is no array of objects means where one enumerator is wanted: text that is one of the names (a
/// row of characters, or one string), or a number of any class that is one of the values. Upper and lower case
/// differ, a logical is no number, and nothing means no enumerator. Null when the input means none.
///
/// Of objects, an array of one that is an enumerator is taken, and never a null object (`objectRank`).
Enumerator const* findEnumerator(Class const& enumeration, Array const& input);

/// What is at a zero-based index of an input where a vector of enumerators is wanted: a number of a numeric array,
/// a string of a string array, or a cell, which may hold whatever means one enumerator, its object included.
Enumerator const* findEnumeratorAt(Class const& enumeration, Array const& input, std::size_t index);

/// True for the arrays that `findEnumeratorAt` looks into.
bool isListOfEnumerators(Array const& input);

/// A new row of the objects that an input means where a vector is wanted: a list, or what means one enumerator. Null
/// when it is neither, or when an element of the list means none.
///
/// Of objects, an array of enumerators of any size is taken as it is, and never a null object (`objectVectorRank`).
ArrayPtr toEnumerators(Class const& enumeration, Array const& input);

} // namespace velmara
