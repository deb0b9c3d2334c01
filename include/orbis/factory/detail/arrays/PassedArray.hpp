#pragma once

#include "libhv/hvArray.hpp"

namespace orbis::factory::detail {

/// For native types that pass a host array through uncopied: the array in a value, or null. Policies of such types
/// specialise it.
template <class V>
struct PassedArray {
    static constexpr bool any = false;
};

/// Specialisation base for the array proxies.
template <class Proxy>
struct ProxiedArray {
    static constexpr bool any = true;

    static hvArray* of(Proxy const& proxy) { return const_cast<hvArray*>(proxy()); }
};

} // namespace orbis::factory::detail
