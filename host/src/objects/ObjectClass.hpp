#pragma once

#include "machine/Machine.hpp"
#include "objects/ObjectList.hpp"

#include "orbis/COSClassInfo.hpp"

#include <memory>
#include <vector>

namespace velmara {

/// What objects and members know of a published class. `Class` is the only kind.
class ObjectClass {
public:
    ObjectClass(ObjectClass const&) = delete;
    ObjectClass& operator=(ObjectClass const&) = delete;

    Name name() const { return name_; }

    /// The last part of the name.
    Name ownName() const { return ownName_; }

    Machine& machine() const { return machine_; }
    orbis::COSClassInfo& info() const { return *info_; }
    ObjectList& objects() { return objects_; }

    /// The class itself first, then its superclasses, each before its own. Empty before the class is described.
    std::vector<ObjectClass*> const& linearization() const { return *linearization_; }

protected:
    ObjectClass(std::unique_ptr<orbis::COSClassInfo> info, Name name, Machine& machine)
        : info_(std::move(info)),
          name_(name),
          ownName_(intern(name->view().substr(name->view().rfind('.') + 1))),
          machine_(machine)
    {
    }

    virtual ~ObjectClass() = default; // virtual, so that this is the base without an offset

    /// `order` stays the caller's.
    void setLinearization(std::vector<ObjectClass*> const& order) { linearization_ = &order; }

private:
    std::unique_ptr<orbis::COSClassInfo> info_;
    Name name_;
    Name ownName_;
    Machine& machine_;
    ObjectList objects_;
    std::vector<ObjectClass*> const* linearization_ = nullptr;
};

} // namespace velmara
