#pragma once

#include "orbis/factory/base/export.hpp"

#include <string>

namespace orbis::factory::detail {

/// The names that a module has given to its classes. They are constants of the program: `NamedClass` refers to them, in
/// every virtual machine and on every thread, as long as the module's code is loaded.
class ORBIS_FACTORY_API ClassNames {
public:
    constexpr ClassNames() = default;
    ClassNames(ClassNames const&) = delete;
    ClassNames& operator=(ClassNames const&) = delete;
    ~ClassNames();

    /// Returns the name as it is kept. Threading: on one thread at a time.
    char const* add(std::string name);

private:
    struct Name;

    Name* first_ = nullptr;
};

/// Those of this module.
inline ClassNames& classNames()
{
    static ClassNames names;
    return names;
}

} // namespace orbis::factory::detail
