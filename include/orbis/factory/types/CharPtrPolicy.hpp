#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/detail/arrays/CharacterPointerMarshaler.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory {

/// `char*` and `char const*`: NUL-terminated UTF-8.
class CharPtrPolicy {};

template <>
class ORBIS_FACTORY_API Marshaler<CharPtrPolicy>
    : public detail::CharacterPointerMarshaler<Marshaler<CharPtrPolicy>, char> {
public:
    Marshaler& operator=(Marshaler const&);
    Marshaler& operator=(Marshaler&&);
};

template <>
struct MarshalingPolicy<char*> {
    using Type = CharPtrPolicy;
};

template <>
struct MarshalingPolicy<char const*> {
    using Type = CharPtrPolicy;
};

} // namespace orbis::factory
