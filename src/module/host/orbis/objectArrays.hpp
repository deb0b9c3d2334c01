#pragma once

#include "libhv/hvArray.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/COSNameID.hpp"

namespace orbis {

/// A new 1-by-1 array of the object's class that holds the object; a null handle gives 0-by-0.
ORBIS_HOST_API hvArray* omCreateORBISScalar(COSInterfacePtr const& object);

/// A new m-by-n array of that class; its elements are null until they are set.
ORBIS_HOST_API hvArray* omCreateORBISMatrix(std::size_t m, std::size_t n, COSNameID const& className);

/// The object at a zero-based linear index. An index outside the array or an array without objects is refused.
ORBIS_HOST_API COSInterfacePtr omGetArrayElement(hvArray_tag const* array, std::size_t index);
ORBIS_HOST_API COSInterfacePtr cosiGetArrayElement(hvArray_tag const* array, std::size_t index); ///< likewise

/// Stores an object (null allowed) at a zero-based linear index. An object that the array's class does not admit is
/// refused, as is an index outside.
ORBIS_HOST_API void omSetArrayElement(hvArray_tag* array, std::size_t index, COSInterfacePtr const& object);

/// True when the array holds host objects; false for null.
ORBIS_HOST_API bool omIsORBIS(hvArray_tag const* array);

/// Gives the array the most specific class that all its elements are of. An array of null elements, or one
/// whose elements have no class in common, keeps its class.
ORBIS_HOST_API void omSetClassOfHeterogeneousArray(hvArray_tag* array);

} // namespace orbis
