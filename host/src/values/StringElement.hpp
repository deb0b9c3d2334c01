#pragma once

#include <cstddef>
#include <string_view>

namespace velmara {

/// One element of a string array: missing, or UTF-16 text of its own. Short text stands in the element itself, so
/// that most string arrays are one piece of memory. All bytes zero is a missing element.
class StringElement {
public:
    StringElement() : short_{} {}

    /// Throws `bad_alloc`.
    explicit StringElement(std::u16string_view text);
    StringElement(StringElement const& other);
    StringElement& operator=(StringElement other) noexcept;
    ~StringElement() { release(); }

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

    bool operator==(StringElement const& other) const
    {
        return isMissing() == other.isMissing() && view() == other.view();
    }

private:
    static constexpr char16_t missing = 0; ///< other tags of short text are its length and one more
    static constexpr char16_t longText = 0xFFFF;
    static constexpr std::size_t mostShort = 14;

    struct Short {
        char16_t tag;
        char16_t units[mostShort + 1];
    };

    struct Long {
        char16_t tag;
        std::size_t length;
        char16_t* text;
    };

    bool isLong() const { return short_.tag == longText; }
    void makeShort(std::u16string_view text);
    void makeLong(std::u16string_view text);

    void release() noexcept
    {
        if (isLong()) [[unlikely]]
            freeLong();
    }

    void freeLong() noexcept;

    union {
        Short short_;
        Long long_;
    };
};

static_assert(sizeof(StringElement) == 32);

} // namespace velmara
