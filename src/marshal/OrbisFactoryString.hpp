#pragma once

#include "marshal/StringDataType.hpp"

#include "orbis/COSTypeConversion.hpp"

namespace orbis::factory {

/// The host data type of one UTF-16 string.
class OrbisFactoryString final : public StringDataType {
public:
    static constexpr char const* name = "OrbisFactoryString scalar";

    char const* cppTypeName() const override { return "fl::ustring"; }
    char const* scalarTypeName() const override { return name; }

    /// Orders by UTF-16 code unit.
    std::uint32_t compareValues(COSValue a, COSValue b) const override;

    /// The size of the text with its terminator.
    std::size_t valueByteSize(COSValue value) const override;

    class Conversion final : public COSTypeConversion {
    public:
        void convertToHost(hvArray** out, hvArray* value) override;

        /// Accepts character arrays and host string scalars. Throws "VELMARA:class:RequireString" for other arrays, and
        /// the errors of `extractString` for strings without text.
        void convertFromHost(hvArray** out, hvArray* in) override;
    };

private:
    bool holdSame(hvArray* a, hvArray* b) const override;
};

} // namespace orbis::factory
