#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/messages.hpp"

namespace orbis_factory::orbis_factory {

namespace {

/// Returns the name of the catalog, after adding its texts to the current virtual machine.
char const* catalog()
{
    orbis::factory::addMessages();
    return "orbis_factory:orbis_factory";
}

} // namespace

must_be_cell_array::must_be_cell_array() : BaseMsgID(catalog(), "must_be_cell_array") {}

must_be_cell_array::~must_be_cell_array() = default;

must_be_string::must_be_string(std::size_t index) : BaseMsgID(catalog(), "must_be_string", {std::to_string(index)}) {}

must_be_string::~must_be_string() = default;

member_not_published::member_not_published(std::string const& member, std::string const& reason)
    : BaseMsgID(catalog(), "member_not_published", {member, reason})
{
}

member_not_published::~member_not_published() = default;

no_duplicates::no_duplicates(std::string const& text) : BaseMsgID(catalog(), "no_duplicates", {text}) {}

no_duplicates::~no_duplicates() = default;

null_self::null_self() : BaseMsgID(catalog(), "null_self") {}

null_self::~null_self() = default;

null_input::null_input(std::string const& what, char const* className)
    : BaseMsgID(catalog(), "null_input", {what, className})
{
}

null_input::~null_input() = default;

not_convertible::not_convertible(std::string const& reason) : BaseMsgID(catalog(), "not_convertible", {reason}) {}

not_convertible::~not_convertible() = default;

cannot_copy::cannot_copy(std::string const& className, std::string const& reason)
    : BaseMsgID(catalog(), "cannot_copy", {className, reason})
{
}

cannot_copy::~cannot_copy() = default;

cannot_own::cannot_own(std::string const& className, std::string const& reason)
    : BaseMsgID(catalog(), "cannot_own", {className, reason})
{
}

cannot_own::~cannot_own() = default;

cannot_share::cannot_share(std::string const& className, std::string const& reason)
    : BaseMsgID(catalog(), "cannot_share", {className, reason})
{
}

cannot_share::~cannot_share() = default;

cannot_keep::cannot_keep(std::string const& className, std::string const& reason)
    : BaseMsgID(catalog(), "cannot_keep", {className, reason})
{
}

cannot_keep::~cannot_keep() = default;

cannot_take::cannot_take(std::string const& className, std::string const& reason)
    : BaseMsgID(catalog(), "cannot_take", {className, reason})
{
}

cannot_take::~cannot_take() = default;

not_implemented::not_implemented(std::string const& className, std::string const& member, std::string const& type)
    : BaseMsgID(catalog(), "not_implemented", {className, member, type})
{
}

not_implemented::~not_implemented() = default;

null_fcn_ptr::null_fcn_ptr() : BaseMsgID(catalog(), "null_fcn_ptr") {}

null_fcn_ptr::~null_fcn_ptr() = default;

no_such_class::no_such_class(char const* className) : BaseMsgID(catalog(), "no_such_class", {className}) {}

no_such_class::~no_such_class() = default;

no_such_enumerator::no_such_enumerator(std::string const& className, std::string const& enumerator,
                                       std::string const& known)
    : BaseMsgID(catalog(), "no_such_enumerator", {className, enumerator, known})
{
}

no_such_enumerator::~no_such_enumerator() = default;

} // namespace orbis_factory::orbis_factory

namespace component_VELMARA::catalog_class {

key_RequireString::key_RequireString() : BaseMsgID("VELMARA:class", "RequireString") {}

key_RequireString::~key_RequireString() = default;

} // namespace component_VELMARA::catalog_class

namespace VELMARA::string {

MissingNotSupported::MissingNotSupported() : BaseMsgID("VELMARA:string", "MissingNotSupported") {}

MissingNotSupported::~MissingNotSupported() = default;

} // namespace VELMARA::string
