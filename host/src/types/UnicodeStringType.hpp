#pragma once

#include "orbis/COSDataType.hpp"
#include "orbis/COSTypeConversion.hpp"

namespace velmara {

/// "unicodeString": the host's type of one UTF-16 text. Its values are `fl::ustring*` from `new`, instead of
/// arrays.
orbis::COSDataType* createUnicodeStringType();

/// Its conversion from "any". See `COSTypeRepository::getConversion`.
orbis::COSTypeConversion* createUnicodeStringConversion();

} // namespace velmara
