#pragma once

#include "orbis/factory/base/export.hpp"

#include "libkwfl/BaseMsgID.hpp"

#include <cstddef>
#include <string>

/// The identities of the library's errors, in the catalog "orbis_factory:orbis_factory". Each is thrown as
/// `foundation::core::except::Exception<Identity, std::exception, void>`.
namespace orbis_factory::orbis_factory {

/// A container of strings was given a value that is neither a cell array nor a string array.
class ORBIS_FACTORY_API must_be_cell_array : public resource_core::BaseMsgID {
public:
    must_be_cell_array();
    ~must_be_cell_array() override;
};

/// A cell of a cell array of strings is empty or holds no character array. Argument: the cell's zero-based position.
class ORBIS_FACTORY_API must_be_string : public resource_core::BaseMsgID {
public:
    explicit must_be_string(std::size_t index);
    ~must_be_string() override;
};

/// A member of a description could not be handed to the host. Arguments: the member's full name, and the reason.
class ORBIS_FACTORY_API member_not_published : public resource_core::BaseMsgID {
public:
    member_not_published(std::string const& member, std::string const& reason);
    ~member_not_published() override;
};

/// A set of strings was given one text twice. Argument: the text, in UTF-8.
class ORBIS_FACTORY_API no_duplicates : public resource_core::BaseMsgID {
public:
    explicit no_duplicates(std::string const& text);
    ~no_duplicates() override;
};

/// A member was called without an object.
class ORBIS_FACTORY_API null_self : public resource_core::BaseMsgID {
public:
    null_self();
    ~null_self() override;
};

/// An input, or a value to be written, is needed as an object and holds none, or one without a native object.
/// Arguments: what it is, as the beginning of a sentence; the class's name.
class ORBIS_FACTORY_API null_input : public resource_core::BaseMsgID {
public:
    null_input(std::string const& what, char const* className);
    ~null_input() override;
};

/// A property was used through a getter or setter that it does not have.
class ORBIS_FACTORY_API null_fcn_ptr : public resource_core::BaseMsgID {
public:
    null_fcn_ptr();
    ~null_fcn_ptr() override;
};

/// A native object of a class that is not published was to be handed to the host. Argument: the class's name.
class ORBIS_FACTORY_API no_such_class : public resource_core::BaseMsgID {
public:
    explicit no_such_class(char const* className);
    ~no_such_class() override;
};

/// An enumerator was to cross that the host and the native code do not both have. Arguments: the host class's name; the
/// enumerator's name, or the native value where it has none; the names that the native code has.
class ORBIS_FACTORY_API no_such_enumerator : public resource_core::BaseMsgID {
public:
    no_such_enumerator(std::string const& className, std::string const& enumerator, std::string const& known);
    ~no_such_enumerator() override;
};

} // namespace orbis_factory::orbis_factory

/// The identities of the host's catalog "VELMARA:class" that the library throws.
namespace component_VELMARA::catalog_class {

/// A string was asked for, and the value is neither a host string nor a character array.
class ORBIS_FACTORY_API key_RequireString : public resource_core::BaseMsgID {
public:
    key_RequireString();
    ~key_RequireString() override;
};

} // namespace component_VELMARA::catalog_class

/// The identities of the host's catalog "VELMARA:string" that the library throws.
namespace VELMARA::string {

/// An element of a host string array was asked for that is missing.
class ORBIS_FACTORY_API MissingNotSupported : public resource_core::BaseMsgID {
public:
    MissingNotSupported();
    ~MissingNotSupported() override;
};

} // namespace VELMARA::string
