#include "additions/NativeOwner.hpp"

namespace orbis::additions {

NativeOwner::~NativeOwner() = default;

} // namespace orbis::additions
