#pragma once

#include "system/ScalarConversion.hpp"

namespace velmara {

/// Reads arrays as values of one scalar type. Scripts give doubles, so what a double becomes is read in line; every
/// other array goes through the converter of its class.
class ScalarReader {
public:
    ScalarReader() = default;

    /// `target` is a numeric or logical class.
    explicit ScalarReader(hvClassID target);

    /// Writes `out` when the array fits. The reader must have been made for a class.
    [[gnu::always_inline]] Fit read(Array const& input, orbis::COSValue& out) const
    {
        if (input.classID() == hvDOUBLE_CLASS && input.rows() == 1 && input.columns() == 1) [[likely]] {
            double const number = *static_cast<double const*>(input.elements());
            if (number >= lowest_ && number <= highest_) { // a NaN compares false
                auto const whole = static_cast<std::int64_t>(number);
                if (static_cast<double>(whole) == number) [[likely]] {
                    out = orbis::COSValue(target_, static_cast<std::uint64_t>(whole));
                    return convertedFit;
                }
            }
        }
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
