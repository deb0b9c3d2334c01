#pragma once

#include "string_matrix/string_matrix.hpp"

namespace velmara {

class Array;
class StringElement;

/// The view of one string array. It is in the array itself, so it lives as long.
class StringArrayView final : public Tarnwick::StringArray {
public:
    static StringArrayView const& of(Array const& strings);

    std::size_t getNumberOfElements() const override;
    bool isMissing(std::size_t index) const override;
    char16_t const* getText(std::size_t index) const override;
    std::size_t getLength(std::size_t index) const override;
    char16_t const* getElement(std::size_t index) const override;

private:
    explicit StringArrayView(Array const& array) : array_(&array) {}

    StringElement const& element(std::size_t index) const;

    Array const* array_;
};

} // namespace velmara
