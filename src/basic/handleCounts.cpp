#include "orbis/factory/detail/handleCounts.hpp"

#include "orbis/factory/basic/registry.hpp"

#include "libkwfoundation_usm/Detail.hpp"

namespace orbis::factory::detail {

void countHandle(COSInterface* host)
{
    ++basic::registry().handleCounts[host];
}

bool uncountHandle(COSInterface* host)
{
    auto& counts = basic::registry().handleCounts;
    auto const found = counts.find(host);
    if (found == counts.end())
        return false;
    if (--found->second == 0)
        counts.erase(found);
    return true;
}

bool canLookUpBindings()
{
    return foundation::usm::Detail<foundation::usm::scope::Hvm>::isRequiredContextActive();
}

} // namespace orbis::factory::detail
