#pragma once

#include "orbis/factory/export.hpp"

#include "libkwfl/BaseMsgID.hpp"

/// The identities of the library's errors, in the catalog "orbis_factory:orbis_factory". Each is thrown as
/// `foundation::core::except::Exception<Identity, std::exception, void>`.
namespace orbis_factory::orbis_factory {

/// A member was called without an object.
class ORBIS_FACTORY_API null_self : public resource_core::BaseMsgID {
public:
    null_self();
    ~null_self() override;
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

} // namespace orbis_factory::orbis_factory
