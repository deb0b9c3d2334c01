#include "arrays/arrayArguments.hpp"

#include "errors/hostError.hpp"

namespace velmara {

void throwNullArray()
{
    throwHostError("VELMARA:array", "null");
}

void throwIndexOutside(Array const& array, std::size_t index)
{
    throwHostError("VELMARA:array", "index", {std::to_string(index), std::to_string(array.size())});
}

void throwWrongClass(Array const& array, char const* key)
{
    throwHostError("VELMARA:array", key, {std::string(array.className())});
}

} // namespace velmara
