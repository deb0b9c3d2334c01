#pragma once

#include "arrays/Array.hpp"

namespace velmara {

/// "[]", a double array of 0-by-0, stands for no object and for no value.
inline bool isNothing(Array const& input)
{
    return input.classID() == hvDOUBLE_CLASS && input.rows() == 0 && input.columns() == 0;
}

/// One string, which is missing, stands for no value, too.
inline bool isMissingString(Array const& input)
{
    return input.classID() == hvSTRING_CLASS && input.size() == 1 && input.strings().front().isMissing();
}

} // namespace velmara
