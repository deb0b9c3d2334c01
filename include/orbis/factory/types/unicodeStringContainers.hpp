#pragma once

#include "orbis/factory/types/unicodeStringVector.hpp"

#include <set>

namespace orbis::factory {

/// Ordered sets of UTF-16 strings: as their vectors, in the set's order. `fromHost` also throws
/// "orbis_factory:orbis_factory:no_duplicates" when the same text is passed twice.
template <>
struct ORBIS_FACTORY_API HostDataType<std::set<fl::ustring>> {
    static constexpr char const* name = "OrbisFactoryString vector"; ///< of the data type
    static hvArray* toHost(std::set<fl::ustring> const& strings);    ///< a new 1-by-n cell array, which the caller owns
    static std::set<fl::ustring> fromHost(hvArray* value);           ///< `value` stays the caller's
};

} // namespace orbis::factory
