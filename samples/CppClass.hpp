#pragma once

#include "orbis/factory/classes/HostClass.hpp"

#include "orbis/COSClassInfo.hpp"

#include <string>

namespace orbis::factory::samples {

/// A guest book, in which the last entry can be read. Its class belongs to no package.
class CppClass {
public:
    std::string entry = "(empty)";
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::CppClass> {
    static constexpr char const* name = "CppClass";
};

namespace orbis::factory::samples {

/// Written directly on the host's base, with descriptors made by hand: what descriptions spare their authors.
class CppCCI final : public COSClassInfo {
public:
    char const* getName() const override { return HostClass<CppClass>::name; }
    char const* getDescription() const override { return "Demonstrate stuff"; }
    bool isHandle() const override { return true; }
    bool isSealed() const override { return true; }
    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override { return new CppClass; }
    bool destroyInstanceData(COSInterface* object, void* data) override;
};

} // namespace orbis::factory::samples
