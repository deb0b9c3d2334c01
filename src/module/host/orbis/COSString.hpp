#pragma once

#include "orbis_host_export.hpp"

#include <string>

namespace orbis {

/// The host's owned narrow (UTF-8) string.
class ORBIS_HOST_API COSString {
public:
    /// Copies the NUL-terminated text; null is empty.
    COSString(char const* text);
    COSString(COSString const&);
    COSString& operator=(COSString const&);
    ~COSString();

    /// NUL-terminated; valid while this string lives unchanged.
    char const* c_str() const;

    bool operator==(COSString const& other) const; ///< compares the texts

private:
    std::string text_;
};

} // namespace orbis
