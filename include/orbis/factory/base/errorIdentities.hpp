#pragma once

#include "orbis/factory/base/export.hpp"

#include "libkwfl/BaseMsgID.hpp"

#include <cstddef>
#include <string>

/// The identities of the library's errors, in the catalog "orbis_factory:orbis_factory". Each is thrown as
/// `foundation::core::except::Exception<Identity, std::exception, void>`.
namespace orbis_factory::orbis_factory {

/// A value passed for a container of strings is neither a cell array nor a string array.
class ORBIS_FACTORY_API must_be_cell_array : public resource_core::BaseMsgID {
public:
    must_be_cell_array();
    ~must_be_cell_array() override;
};

/// A cell in a cell array of strings is empty or holds no character array. Argument: the cell's zero-based index.
class ORBIS_FACTORY_API must_be_string : public resource_core::BaseMsgID {
public:
    explicit must_be_string(std::size_t index); ///< takes the argument
    ~must_be_string() override;
};

/// A described member could not be published. Arguments: the member's full name, and the reason.
class ORBIS_FACTORY_API member_not_published : public resource_core::BaseMsgID {
public:
    member_not_published(std::string const& member, std::string const& reason); ///< takes the arguments
    ~member_not_published() override;
};

/// A value passed for a set of strings contains a duplicate. Argument: the text, in UTF-8.
class ORBIS_FACTORY_API no_duplicates : public resource_core::BaseMsgID {
public:
    explicit no_duplicates(std::string const& text); ///< takes the argument
    ~no_duplicates() override;
};

/// A member was called without an object, or on one without a native object.
class ORBIS_FACTORY_API null_self : public resource_core::BaseMsgID {
public:
    null_self();
    ~null_self() override;
};

/// An input, or a value to be written, must be an object and is null or has no native object. Arguments: a noun phrase
/// that begins the sentence; the class's name.
class ORBIS_FACTORY_API null_input : public resource_core::BaseMsgID {
public:
    null_input(std::string const& what, char const* className); ///< takes the arguments
    ~null_input() override;
};

/// A value, or an element of one, does not convert to the native type. Argument: the reason, after the places of the
/// elements that have it.
class ORBIS_FACTORY_API not_convertible : public resource_core::BaseMsgID {
public:
    explicit not_convertible(std::string const& reason); ///< takes the argument
    ~not_convertible() override;
};

/// An object was to be copied, owned by its host object, or shared, kept or taken by native code, and cannot be.
/// Arguments: the class's name; the reason.
class ORBIS_FACTORY_API cannot_copy : public resource_core::BaseMsgID {
public:
    cannot_copy(std::string const& className, std::string const& reason); ///< takes the arguments
    ~cannot_copy() override;
};

/// See `cannot_copy`.
class ORBIS_FACTORY_API cannot_own : public resource_core::BaseMsgID {
public:
    cannot_own(std::string const& className, std::string const& reason); ///< takes the arguments
    ~cannot_own() override;
};

/// See `cannot_copy`.
class ORBIS_FACTORY_API cannot_share : public resource_core::BaseMsgID {
public:
    cannot_share(std::string const& className, std::string const& reason); ///< takes the arguments
    ~cannot_share() override;
};

/// See `cannot_copy`.
class ORBIS_FACTORY_API cannot_keep : public resource_core::BaseMsgID {
public:
    cannot_keep(std::string const& className, std::string const& reason); ///< takes the arguments
    ~cannot_keep() override;
};

/// See `cannot_copy`.
class ORBIS_FACTORY_API cannot_take : public resource_core::BaseMsgID {
public:
    cannot_take(std::string const& className, std::string const& reason); ///< takes the arguments
    ~cannot_take() override;
};

/// Native code called a member that a script implements, and the script has not. Arguments: the class's name; the
/// member's; what the function takes and returns.
class ORBIS_FACTORY_API not_implemented : public resource_core::BaseMsgID {
public:
    not_implemented(std::string const& className, std::string const& member,
                    std::string const& type); ///< takes the arguments
    ~not_implemented() override;
};

/// A property was read without a getter, or written without a setter.
class ORBIS_FACTORY_API null_fcn_ptr : public resource_core::BaseMsgID {
public:
    null_fcn_ptr();
    ~null_fcn_ptr() override;
};

/// A native object was to be passed to the host, but its class is not published. Argument: the class's name.
class ORBIS_FACTORY_API no_such_class : public resource_core::BaseMsgID {
public:
    explicit no_such_class(char const* className); ///< takes the argument
    ~no_such_class() override;
};

/// An enumerator was to be marshaled that the host and the native code do not both have. Arguments: the host class's
/// name; the enumerator's name, or the native value if it has none; the names that the native code has.
class ORBIS_FACTORY_API no_such_enumerator : public resource_core::BaseMsgID {
public:
    no_such_enumerator(std::string const& className, std::string const& enumerator,
                       std::string const& known); ///< takes the arguments
    ~no_such_enumerator() override;
};

} // namespace orbis_factory::orbis_factory

/// Identities of the host's catalog "VELMARA:class" that the library throws.
namespace component_VELMARA::catalog_class {

/// A string was expected, and the value is neither a host string nor a character array.
class ORBIS_FACTORY_API key_RequireString : public resource_core::BaseMsgID {
public:
    key_RequireString();
    ~key_RequireString() override;
};

} // namespace component_VELMARA::catalog_class

/// Identities of the host's catalog "VELMARA:string" that the library throws.
namespace VELMARA::string {

/// A host string was read whose element is missing.
class ORBIS_FACTORY_API MissingNotSupported : public resource_core::BaseMsgID {
public:
    MissingNotSupported();
    ~MissingNotSupported() override;
};

} // namespace VELMARA::string
