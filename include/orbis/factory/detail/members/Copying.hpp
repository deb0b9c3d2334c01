#pragma once

#include "orbis/factory/detail/members/MemberRecord.hpp"
#include "orbis/factory/detail/objects/NamedClass.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

namespace orbis::factory::detail {

/// How objects of a named class are copied.
struct Copying {
    NamedClass& (*named)();
    void* (*copy)(void const* object);
    TypeText typeText; ///< of the class
};

template <NamedType T>
inline constexpr Copying copyingOf{&namedClassOf<T>,
                                   [](void const* object) -> void* { return new T(*static_cast<T const*>(object)); },
                                   &dataTypeText<T*>};

} // namespace orbis::factory::detail
