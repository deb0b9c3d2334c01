#pragma once

#include "arrays/Array.hpp"
#include "types/ConversionRank.hpp"
#include "types/TypeReference.hpp"

#include "orbis/COSDataType.hpp"
#include "orbis/COSValue.hpp"

#include <vector>

namespace velmara {

/// The inputs of one call as values of the data types of one signature. It owns what the conversions created; other
/// arrays stay the caller's.
class ConvertedInputs {
public:
    /// For at most `capacity` inputs. Few need no memory of their own.
    explicit ConvertedInputs(std::size_t capacity) : values_(inlineValues_)
    {
        if (capacity > inlineCapacity)
            grow(capacity);
    }
    ConvertedInputs(ConvertedInputs const&) = delete;
    ConvertedInputs& operator=(ConvertedInputs const&) = delete;

    [[gnu::always_inline]] ~ConvertedInputs()
    {
        if (ownedCount_ != 0 || more_) [[unlikely]]
            release();
    }

    /// Converts the next input; adds nothing when it does not rank. Throws only for an object that cannot be used in
    /// the current virtual machine.
    [[gnu::always_inline]] ConversionRank add(TypeReference const& type, hvArray_tag* input)
    {
        if (type.kind != TypeKind::Scalar)
            return addArray(type, input);
        ConversionRank const rank = type.scalar.read(*Array::of(input), values_[count_]);
        count_ += rank != notConvertible;
        return rank;
    }

    /// Adds the object that a method is called on: of several, the first one decides.
    ConversionRank addSelf(TypeReference const& type, hvArray_tag* self);

    /// Adds an array that is known to rank.
    void addAsIs(hvArray_tag* input) { values_[count_++] = orbis::COSValue(input); }

    int count() const { return count_; }
    orbis::COSValue const* values() const { return values_; }

private:
    struct Owned {
        orbis::COSDataType* type; ///< null for an array of the host's own
        orbis::COSValue value;
    };

    struct More {
        explicit More(std::size_t capacity) : values(capacity), owned(capacity) {}
        std::vector<orbis::COSValue> values;
        std::vector<Owned> owned;
    };

    static constexpr std::size_t inlineCapacity = 24;

    ConversionRank addArray(TypeReference const& type, hvArray_tag* input);
    ConversionRank addString(hvArray_tag* input);
    ConversionRank addElements(TypeReference const& type, hvArray_tag* input);
    ConversionRank addOptional(TypeReference const& type, hvArray_tag* input);
    ConversionRank addNamed(TypeReference const& type, hvArray_tag* input);
    ConversionRank addEnumeration(TypeReference const& type, hvArray_tag* input);
    ConversionRank addRegistered(TypeReference const& type, hvArray_tag* input);
    void grow(std::size_t capacity);
    void release();
    Owned* owned() { return more_ ? more_->owned.data() : inlineOwned_; }

    /// Makes the value (of the type; null for an array of the host's own) the next input, and owns it.
    void own(orbis::COSDataType* type, hvArray_tag* value);

    orbis::COSValue* values_;
    int count_ = 0;
    int ownedCount_ = 0;
    // Not initialized: only what is added is ever read.
    union {
        orbis::COSValue inlineValues_[inlineCapacity];
    };
    union {
        Owned inlineOwned_[inlineCapacity];
    };
    More* more_ = nullptr; ///< where there are more inputs than `inlineCapacity`: owned, too
};

} // namespace velmara
