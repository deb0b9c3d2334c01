#pragma once

#include "orbis/COSDataType.hpp"

#include <cstddef>

namespace orbis::factory {

/// Common base of the string data types: their values are host arrays, null for none.
class StringDataType : public COSDataType {
public:
    /// Returns zero-filled storage, freed with the host's `utFree`; throws the host's `bad_alloc`.
    static void* operator new(std::size_t size);
    static void operator delete(void* storage);

    int typeKind() const final { return 7; }
    char const* typeCategory() const final { return "Fundamental"; }
    bool slot11Flag() const final { return false; }
    bool isEqualValue(COSValue a, COSValue b) const final;
    COSValue copyValue(COSValue value) const final;
    void releaseValue(COSValue value) const final;

protected:
    /// The result of `compareValues` for values without an order.
    static constexpr std::uint32_t unordered = 2;

    static bool bothNull(COSValue a, COSValue b) { return !a.array() && !b.array(); }
    static bool oneNull(COSValue a, COSValue b) { return !a.array() != !b.array(); }

private:
    /// Returns whether two non-null values have the same contents.
    virtual bool holdSame(hvArray* a, hvArray* b) const = 0;
};

} // namespace orbis::factory
