#include "host_extensions/NativeEquality.hpp"

namespace orbis::host_extensions {

NativeEquality::~NativeEquality() = default;

} // namespace orbis::host_extensions
