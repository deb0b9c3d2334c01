#pragma once

#include "names/InternedName.hpp"
#include "types/ScalarReader.hpp"

#include "libhv/hvArray.hpp"

#include <cstdint>
#include <memory>

namespace velmara {

/// What a data type name means to the dispatch. All but `Named` are the host's own and the same in every virtual
/// machine; a named type is a registered one, a class, or the vector type of a class.
/// - `Elements` ("double vector"): arrays of any size of one numeric or logical class;
/// - `Function` ("function", "function(double scalar) -> double scalar"): arrays that hold a function;
/// - `Optional` ("... or empty"): values of another type, and besides "[]" (a double array of 0-by-0) and a missing
///   string, whose value is an empty slot.
enum class TypeKind : std::uint8_t { Void, Any, Scalar, Elements, Text, Function, Optional, Named };

/// A data type by its name, and what follows from the name alone.
struct TypeReference {
    explicit TypeReference(Name typeName);

    Name name;
    Name element = nullptr; ///< the class of a "... vector" type
    TypeKind kind = TypeKind::Named;
    hvClassID scalarClass = hvUNKNOWN_CLASS;    ///< the elements' class of a scalar or elements type
    ScalarReader scalar;                        ///< reads inputs of a scalar type
    std::shared_ptr<TypeReference const> value; ///< what an optional type has where it is not empty
};

/// "any", the type whose values are all arrays.
Name anyTypeName();

} // namespace velmara
