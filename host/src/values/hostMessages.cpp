#include "values/hostMessages.hpp"

namespace velmara {

namespace {

constexpr HostMessage messages[] = {
    {"VELMARA:array", "null", "An array is needed here, but there is none."},
    {"VELMARA:array", "index", "Index {0} lies outside an array of {1} elements; the first element has index 0."},
    {"VELMARA:array", "notCell", "A cell array is needed here, not one of class \"{0}\"."},
    {"VELMARA:array", "notObject", "An array of objects is needed here, not one of class \"{0}\"."},
    {"VELMARA:array", "notNumeric",
     "A numeric, logical or character class is needed here; class number {0} is none of them."},
    {"VELMARA:array", "wrongClass", "An object of class \"{0}\" cannot be stored in an array of class \"{1}\"."},
    {"VELMARA:array", "cycle", "A cell array cannot be stored in itself."},
    {"VELMARA:array", "alreadyStored", "The array belongs to another cell already; store a copy of it."},
    {"VELMARA:array", "scope", "An array's scope is 0 or 1, not {0}."},
    {"VELMARA:hvm", "noVirtualMachine", "No virtual machine is current on this thread."},
    {"VELMARA:hvm", "unknownStorageID", "No storage id {0} was given out."},
};

} // namespace

std::span<HostMessage const> hostMessages()
{
    return messages;
}

} // namespace velmara
