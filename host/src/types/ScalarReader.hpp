#pragma once

#include "types/ScalarConversion.hpp"

namespace velmara {

/// Reads arrays as values of one scalar type.
class ScalarReader {
public:
    ScalarReader() = default;

    /// `target` is a numeric or logical class.
    explicit ScalarReader(hvClassID target);

    /// Reads a double that this type takes without loss, the usual input from a script. Where it returns false, `read`
    /// may still succeed.
    [[gnu::always_inline]] bool readDouble(double number, orbis::COSValue& out) const
    {
        if (number >= lowest_ && number <= highest_) [[likely]] { // a NaN compares false
            auto const whole = static_cast<std::int64_t>(number);
            if (static_cast<double>(whole) != number) [[unlikely]]
                return false;
            out = orbis::COSValue(target_, static_cast<std::uint64_t>(whole));
            return true;
        }
        out = orbis::COSValue(number);
        return target_ == hvDOUBLE_CLASS;
    }

    [[gnu::always_inline]] bool readDouble(Array const& input, orbis::COSValue& out) const
    {
        return input.classID() == hvDOUBLE_CLASS && input.isScalar() &&
               readDouble(*static_cast<double const*>(input.elements()), out);
    }
    [[gnu::always_inline]] bool readDouble(orbis::COSValue const& input, orbis::COSValue& out) const
    {
        if (input.isScalarOf(hvDOUBLE_CLASS)) [[likely]]
            return readDouble(input.scalar<double>(), out);
        return input.isArray() && readDouble(*Array::of(input.array()), out);
    }

    /// Writes `out` when the array fits. Not for a default-constructed reader.
    [[gnu::always_inline]] ConversionRank read(Array const& input, orbis::COSValue& out) const
    {
        if (readDouble(input, out)) [[likely]]
            return target_ == hvDOUBLE_CLASS ? exactRank : convertedRank;
        return input.isScalar() ? converters_[input.classID()](input.elements(), out) : notConvertible;
    }

    /// The same for a scalar or an array; nothing fits no scalar type.
    ConversionRank read(orbis::COSValue const& input, orbis::COSValue& out) const
    {
        if (input.isArray())
            return read(*Array::of(input.array()), out);
        auto const element = input.scalar<std::uint64_t>();
        return input.isEmpty() ? notConvertible : converters_[input.scalarClass()](&element, out);
    }

private:
    hvClassID target_ = hvUNKNOWN_CLASS;
    /// The doubles that are read in line when they are whole; none but for integer classes of up to 32 bits.
    double lowest_ = 1;
    double highest_ = 0;
    ScalarConverter const* converters_ = nullptr;
};

} // namespace velmara
