#include "pictures/ClassRecords.hpp"

#include <algorithm>

namespace velmara::console {

ClassRecord const* ClassRecords::find(std::string const& name)
{
    auto known = records_.find(name);
    if (known == records_.end()) {
        std::unique_ptr<ClassRecord const> record;
        if (hvm_.lookUp(name) == NameKind::Class)
            record = std::make_unique<ClassRecord const>(hvm_.describeClass(name));
        known = records_.emplace(name, std::move(record)).first;
    }
    return known->second.get();
}

std::vector<std::string> ClassRecords::lineage(std::string const& name)
{
    std::vector<std::string> names{name};
    for (std::size_t i = 0; i < names.size(); ++i)
        if (ClassRecord const* const record = find(names[i]))
            for (std::string const& superclass : record->superclasses)
                if (std::ranges::find(names, superclass) == names.end())
                    names.push_back(superclass);
    return names;
}

} // namespace velmara::console
