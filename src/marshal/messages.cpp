#include "marshal/messages.hpp"

#include "orbis/factory/base/export.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwfoundation_usm/Detail.hpp"

#include <cstdint>
#include <iterator>
#include <typeinfo>

namespace {

constexpr orbis::host_extensions::Message texts[] = {
    {"must_be_cell_array", "Several strings are needed here: give a cell array with one row of text in each cell, or a "
                           "string array."},
    {"must_be_string", "Element {0} (counted from 0) is no text: put one row of text there, which may be empty."},
    {"member_not_published", "{0} cannot be published: {1}"},
    {"no_duplicates", "The text \"{0}\" is given more than once, where each may be given only once: leave out the "
                      "repetition."},
    {"null_self", "The call needs an object and was given none, or one without a native object: call it on an object "
                  "that was constructed and not deleted."},
    {"null_input", "{0} must be an object of class \"{1}\" that was constructed and not deleted, and is none."},
    {"not_convertible", "A value cannot be converted: {0}."},
    {"cannot_copy", "The object of class \"{0}\" cannot be copied: {1}."},
    {"cannot_own", "The object of class \"{0}\" cannot be owned by its host object: {1}."},
    {"cannot_share", "The object of class \"{0}\" cannot be shared: {1}."},
    {"cannot_keep", "The object of class \"{0}\" cannot be kept: {1}."},
    {"cannot_take", "The object of class \"{0}\" cannot be taken: {1}."},
    {"not_implemented", "The object of class \"{0}\" has no \"{1}\": the script that implements it must give a {2}."},
    {"null_fcn_ptr", "The property has no function for this access: it can be either read or written, not both."},
    {"no_such_class", "An object of the class {0} cannot be handed out, because no such class is published: load the "
                      "module that publishes it."},
    {"no_such_enumerator", "Enumeration {0} cannot pass on {1}, which the host and the native code do not both have: "
                           "the native code has {2}."},
    {nullptr, nullptr},
};

constexpr char const* catalog = "orbis_factory:orbis_factory";

constexpr orbis::host_extensions::MessageList catalogs[] = {{catalog, texts}, {nullptr, nullptr}};

/// A marker in the storage of virtual machines that have the texts.
struct Added {};

} // namespace

extern "C" {
ORBIS_FACTORY_API orbis::host_extensions::MessageList const* orbis_factory_messages = catalogs;
}

namespace orbis::factory {

void addMessages()
{
    using Storage = foundation::usm::Detail<foundation::usm::scope::Hvm>;
    static std::uint64_t const id = Storage::getNextID(typeid(Added));
    if (!Storage::isRequiredContextActive() || Storage::find(id, typeid(Added)))
        return;
    host_extensions::addMessages(catalog, {std::begin(texts), std::end(texts) - 1});
    Storage::insert(id, typeid(Added),
                    Storage::Holder(new Added, [](void* object) { delete static_cast<Added*>(object); }));
}

} // namespace orbis::factory
