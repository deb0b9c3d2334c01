#pragma once

#include "orbis_host_export.hpp"

#include <string>
#include <vector>

/// Messages of the host, by their identities.
namespace resource_core {

/// The identity of a message: a catalog ("component:catalog"), a key in it, and the arguments that fill the
/// text's places {0}, {1}, ... An identity is a class of its own, derived from this one and named by its key.
class ORBIS_HOST_API BaseMsgID {
public:
    /// The two texts must outlive the identity (string literals do); the arguments are UTF-8.
    BaseMsgID(char const* catalog, char const* key, std::vector<std::string> arguments = {});
    BaseMsgID(BaseMsgID const&);
    BaseMsgID& operator=(BaseMsgID const&);
    virtual ~BaseMsgID();

    char const* getCatalog() const;                       ///< "component:catalog"
    char const* getKey() const;                           ///< the key in the catalog
    std::vector<std::string> const& getArguments() const; ///< in the order of the places, in UTF-8

private:
    char const* catalog_;
    char const* key_;
    std::vector<std::string> arguments_;
};

} // namespace resource_core
