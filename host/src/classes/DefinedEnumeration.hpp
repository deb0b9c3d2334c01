#pragma once

#include "velmara/Listing.hpp"

#include "orbis/COSClassInfo.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmara {

/// The class info of an enumeration that no module publishes: it was defined from outside.
class DefinedEnumeration final : public orbis::COSClassInfo {
public:
    DefinedEnumeration(std::string_view name, std::span<EnumeratorRecord const> enumerators);

    char const* getName() const override { return name_.c_str(); }
    void initializeClass(orbis::COSClass* cls) override;
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(orbis::COSInterface*, void*) override { return false; }
    bool isHandle() const override { return true; }
    bool isEnumeration() const override { return true; }

private:
    std::string name_;
    std::vector<EnumeratorRecord> enumerators_;
};

} // namespace velmara
