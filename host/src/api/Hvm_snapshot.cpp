#include "velmara/Hvm.hpp"

#include "account/Account.hpp"
#include "api/HvmCall.hpp"

#include <utility>

namespace velmara {

void Hvm::recordOrigins(OriginSource source)
{
    state_->recordOrigins(std::move(source));
}

Snapshot Hvm::snapshot() const
{
    return callInto(*state_, [&] { return Account(*state_).snapshot(); });
}

} // namespace velmara
