#include "host_extensions/OwnedFunction.hpp"

namespace orbis::host_extensions {

OwnedFunction::~OwnedFunction() = default;

} // namespace orbis::host_extensions
