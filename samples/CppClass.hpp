#pragma once

#include "orbis/factory/classes/HostClass.hpp"

#include "orbis/COSClassInfo.hpp"

#include <string>

namespace orbis::factory::samples {

/// A guest book, whose last entry can be read. Its class is in no package.
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

/// Derives directly from the host's base, and creates descriptors by hand: everything that descriptions do for authors.
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
