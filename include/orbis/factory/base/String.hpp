#pragma once

#include "orbis/factory/base/export.hpp"

#include <string>

namespace orbis::factory {

/// An owned narrow string for exported interfaces, which keeps `std::string` out of their layout.
class ORBIS_FACTORY_API String {
public:
    /// `text` is NUL-terminated and not null.
    String(char const* text);
    String(std::string const& text); ///< may contain zeros
    String(String const&);
    String& operator=(String const&);
    ~String();

    /// NUL-terminated; valid until this object is assigned to or destroyed.
    operator char const*() const;

private:
    std::string text_;
};

} // namespace orbis::factory
