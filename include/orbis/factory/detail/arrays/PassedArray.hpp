#pragma once

#include "libhv/hvArray.hpp"

namespace orbis::factory::detail {

/// The host array that a native value carries as it is, not as a copy; null when it carries none. Policies of such
/// types specialise it.
template <class V>
struct PassedArray {
    static constexpr bool any = false;
};

/// A proxy carries its own.
template <class Proxy>
struct ProxiedArray {
    static constexpr bool any = true;

    static hvArray* of(Proxy const& proxy) { return const_cast<hvArray*>(proxy()); }
};

} // namespace orbis::factory::detail
