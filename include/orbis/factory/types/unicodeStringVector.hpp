#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/types/DataTypePolicy.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <vector>

namespace orbis::factory {

/// Vectors of UTF-16 strings. Passed to the host as a column of cells; each text ends at its first zero. From the host
/// they take a string array, whose missing elements are omitted, or a cell array of character arrays; embedded zeros
/// are kept. Null converts to an empty vector.
///
/// `fromHost` throws "orbis_factory:orbis_factory:must_be_cell_array" for other arrays, and ":must_be_string" for a
/// cell that is empty or of another class.
template <>
struct ORBIS_FACTORY_API HostDataType<std::vector<fl::ustring>> {
    static constexpr char const* name = "OrbisFactoryString vector"; ///< of the data type
    static hvArray* toHost(std::vector<fl::ustring> const& strings); ///< a new 1-by-n cell array, which the caller owns
    static std::vector<fl::ustring> fromHost(hvArray* value);        ///< `value` stays the caller's
};

} // namespace orbis::factory
