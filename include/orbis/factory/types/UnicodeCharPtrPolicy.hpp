#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/CharacterPointerMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory {

/// `char16_t*` and `char16_t const*`: NUL-terminated UTF-16. Ill-formed text passes unchanged in both directions.
class UnicodeCharPtrPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<UnicodeCharPtrPolicy>
    : public detail::CharacterPointerMarshaler<Marshaler<UnicodeCharPtrPolicy>, char16_t> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

template <>
struct MarshalingPolicy<char16_t*> {
    using Type = UnicodeCharPtrPolicy;
};

template <>
struct MarshalingPolicy<char16_t const*> {
    using Type = UnicodeCharPtrPolicy;
};

} // namespace orbis::factory
