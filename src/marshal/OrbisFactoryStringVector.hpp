#pragma once

#include "marshal/StringDataType.hpp"

#include "orbis/COSTypeConversion.hpp"

namespace orbis::factory {

/// The host data type of a vector of UTF-16 strings: string arrays, and cell arrays of character arrays.
class OrbisFactoryStringVector final : public StringDataType {
public:
    static constexpr char const* name = "OrbisFactoryString vector";

    char const* cppTypeName() const override { return "std::vector<fl::ustring>"; }
    char const* scalarTypeName() const override { return name; }

    /// Vectors are unordered: returns 0 when equal, else 2.
    std::uint32_t compareValues(COSValue a, COSValue b) const override;

    /// The size of all texts with their terminators.
    std::size_t valueByteSize(COSValue value) const override;

    class Conversion final : public COSTypeConversion {
    public:
        void convertToHost(hvArray** out, hvArray* value) override;

        /// Throws "orbis_factory:orbis_factory:must_be_cell_array" for arrays that are neither cell nor string arrays.
        /// Cells are checked later, when they are read.
        void convertFromHost(hvArray** out, hvArray* in) override;
    };

private:
    bool holdSame(hvArray* a, hvArray* b) const override;
};

} // namespace orbis::factory
