#pragma once

#include "orbis/factory/types/unicodeStringVector.hpp"

#include <set>

namespace orbis::factory {

/// Ordered sets of UTF-16 strings: as their vectors, in the set's order. `fromHost` also throws
/// "orbis_factory:orbis_factory:no_duplicates" when the same text is passed twice.
template <>
struct ORBIS_FACTORY_API HostDataType<std::set<fl::ustring>> {
    static constexpr char const* name = "OrbisFactoryString vector";
    static hvArray* toHost(std::set<fl::ustring> const& strings);
    static std::set<fl::ustring> fromHost(hvArray* value);
};

} // namespace orbis::factory
