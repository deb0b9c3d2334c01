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
    [[gnu::always_inline]] bool readDouble(Array const& input, orbis::COSValue& out) const
    {
        if (input.classID() != hvDOUBLE_CLASS || !input.isScalar())
            return false;
        double const number = *static_cast<double const*>(input.elements());
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

    /// Writes `out` when the array fits. Not for a default-constructed reader.
    [[gnu::always_inline]] ConversionRank read(Array const& input, orbis::COSValue& out) const
    {
        if (readDouble(input, out)) [[likely]]
            return target_ == hvDOUBLE_CLASS ? exactRank : convertedRank;
        return converters_[input.classID()](input, out);
    }

private:
    hvClassID target_ = hvUNKNOWN_CLASS;
    /// The doubles that are read in line when they are whole; none but for integer classes of up to 32 bits.
    double lowest_ = 1;
    double highest_ = 0;
    ScalarConverter const* converters_ = nullptr;
};

} // namespace velmara
