#include "orbis/factory/export.hpp"

#include "additions/additions.hpp"

namespace {

constexpr orbis::additions::Message texts[] = {
    {"must_be_cell_array", "Several strings are needed here: give a cell array with one row of text in each cell, or a "
                           "string array."},
    {"must_be_string", "Element {0} (counted from 0) is no text: put one row of text there, which may be empty."},
    {"member_not_published", "{0} cannot be published: {1}"},
    {"no_duplicates", "The text \"{0}\" is given more than once, where each may be given only once: leave out the "
                      "repetition."},
    {"null_self", "The call needs an object and was given none, or one without a native object: call it on an object "
                  "that was constructed and not deleted."},
    {"null_fcn_ptr", "The property has no function for this access: it can be either read or written, not both."},
    {"no_such_class", "An object of the class {0} cannot be handed out, because no such class is published: load the "
                      "module that publishes it."},
    {"no_such_enumerator", "Enumeration {0} cannot pass on {1}, which the host and the native code do not both have: "
                           "the native code has {2}."},
    {nullptr, nullptr},
};

constexpr orbis::additions::MessageList catalogs[] = {{"orbis_factory:orbis_factory", texts}, {nullptr, nullptr}};

} // namespace

extern "C" {
ORBIS_FACTORY_API orbis::additions::MessageList const* orbis_factory_messages = catalogs;
}
