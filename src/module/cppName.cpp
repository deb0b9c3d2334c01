#include "module/cppName.hpp"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace orbis::factory {

std::string cppName(std::type_info const& type)
{
    std::unique_ptr<char, decltype(&std::free)> const name(abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr),
                                                           &std::free);
    return name ? name.get() : type.name();
}

} // namespace orbis::factory
