#pragma once

#include "memory/TextAllocator.hpp"
#include "text/copyUnits.hpp"

#include <cstddef>
#include <string_view>
#include <utility>

namespace velmara {

/// One element of a string array: missing, or UTF-16 text of its own. Short text is in the element itself, so that
/// most string arrays are one piece of memory. All bytes zero is a missing element.
class StringElement {
public:
    StringElement() : short_{} {}

    /// Throws `bad_alloc`.
    explicit StringElement(std::u16string_view text)
    {
        if (text.size() > maxShort) [[unlikely]]
            storeLong(text);
        else
            storeShort(text);
    }

    StringElement(StringElement const& other);

    StringElement& operator=(StringElement other) noexcept
    {
        swap(other);
        return *this;
    }

    ~StringElement()
    {
        if (isLong()) [[unlikely]]
            TextAllocator::free(long_.text);
    }

    void swap(StringElement& other) noexcept { std::swap(bytes_, other.bytes_); }

    bool isMissing() const { return short_.tag == missing; }

    /// NUL-terminated; null when the element is missing.
    char16_t const* text() const
    {
        if (isLong()) [[unlikely]]
            return long_.text;
        return isMissing() ? nullptr : short_.units;
    }

    std::size_t length() const
    {
        if (isLong()) [[unlikely]]
            return long_.length;
        return isMissing() ? 0 : short_.tag - std::size_t(1);
    }

    std::u16string_view view() const { return {text(), length()}; }

    /// The bytes allocated for the text besides the element.
    std::size_t memory() const { return isLong() ? TextAllocator::memory<char16_t>(long_.length) : 0; }

    bool operator==(StringElement const& other) const
    {
        return isMissing() == other.isMissing() && view() == other.view();
    }

private:
    static constexpr char16_t missing = 0; ///< other tags of short text are its length and one more
    static constexpr char16_t longText = 0xFFFF;
    static constexpr std::size_t maxShort = 14;

    struct Short {
        char16_t tag;
        char16_t units[maxShort + 1];
    };

    struct Long {
        char16_t tag;
        std::size_t length;
        char16_t* text;
    };

    bool isLong() const { return short_.tag == longText; }

    void storeShort(std::u16string_view text)
    {
        short_.tag = static_cast<char16_t>(text.size() + 1);
        copyUnits(text, short_.units);
        short_.units[text.size()] = u'\0';
    }

    void storeLong(std::u16string_view text);

    struct Bytes {
        alignas(8) std::byte bytes[32];
    };

    union {
        Short short_;
        Long long_;
        Bytes bytes_; ///< whichever it is
    };
};

static_assert(sizeof(StringElement) == 32);

} // namespace velmara
