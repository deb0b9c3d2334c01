#pragma once

#include "orbis/factory/base/export.hpp"

#include "libhv/hvArray.hpp"
#include "orbis/COSNameID.hpp"
#include "orbis/COSValue.hpp"

#include <cstdint>

namespace orbis::factory::detail {

/// Returns whether an element is what the host passes for no value: an empty cell, "[]" or a missing string.
ORBIS_FACTORY_API bool isNothing(hvArray_tag const* element);

/// The host data type of the elements of a list. The host converts whole inputs only, so lists convert their elements,
/// by the rules that it has for inputs.
class ORBIS_FACTORY_API ElementType {
public:
    explicit ElementType(char const* dataType);

    /// Whether values are arrays of any size, as those of "double vector" are.
    bool isVector() const { return isVector_; }

    /// Returns how well a value suits the type, before it is converted: 2 when it is one, 1 when it is a single value
    /// of a vector type, 0 when it is another or that is not known.
    int exactness(hvArray_tag const* value) const;

private:
    friend class ElementInput;

    enum class Kind : std::uint8_t { Any, Text, Scalar, Elements, Named };

    COSNameID name_; ///< without " or empty"
    Kind kind_ = Kind::Named;
    bool isOptional_ = false;
    bool isVector_ = false;
    hvClassID numericClass_ = hvUNKNOWN_CLASS; ///< of a scalar or elements type
};

/// One element, converted to its data type. Owns what the conversion created.
class ORBIS_FACTORY_API ElementInput {
public:
    /// `element`, null for an empty cell, outlives this. Throws the `not_convertible` error when it does not convert,
    /// or what a registered conversion throws.
    ElementInput(ElementType const& type, hvArray_tag const* element);
    ElementInput(ElementInput const&) = delete;
    ElementInput& operator=(ElementInput const&) = delete;
    ~ElementInput();

    COSValue const& value() const { return value_; }

private:
    void convertNamed(ElementType const& type, hvArray_tag const* element);

    COSValue value_;
    COSNameID const* registered_ = nullptr; ///< the registered data type that releases the value, if one does
    bool isOwned_ = false;
};

} // namespace orbis::factory::detail
