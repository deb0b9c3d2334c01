#pragma once

#include "system/NameMap.hpp"
#include "system/Package.hpp"
#include "system/RecentClasses.hpp"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace velmara {

class HvmState;

/// All that one virtual machine has published, by full dotted name. The root holds the global classes.
class PackageTree {
public:
    explicit PackageTree(HvmState& machine);

    HvmState& machine() const { return machine_; }
    Package& root() { return *root_; }

    /// Null when there is none. The parents are populated when they were not yet, and asked to load the package.
    Package* findPackage(std::string_view fullName);

    /// Null when there is none; the class is not described by this.
    Class* findClass(std::string_view fullName);
    Class* findClass(Name fullName);

    /// The class if it was found lately under this name. It may have been closed since.
    Class* recentClass(std::string_view fullName) const { return recentClasses_.find(fullName); }

    /// A class without a package. Packages publish these as they are populated, so those at the top level are, but for
    /// what cannot be.
    Class* findGlobalClass(std::string_view name);

    /// The class if it is published already; nothing is populated.
    Class* findPublishedClass(Name fullName) const;

    MethodGroup const* findFunctions(std::string_view fullName);

    void addPackage(std::unique_ptr<orbis::COSPackageInfo> info, std::string_view fullName);
    void addClass(std::unique_ptr<orbis::COSClassInfo> info, Package& package);

    /// Adds the class to the package that its name tells, which is made when there is none.
    void addClass(std::unique_ptr<orbis::COSClassInfo> info);
    void removePackage(Name fullName);

    void endAllObjects();

    /// Removes everything.
    void clear();

    /// For packages, which own what is published: what is found under its full name from now on, and no longer.
    void enter(Package& package) { packages_[package.name()] = &package; }
    void enter(Class& cls) { classes_[cls.name()] = &cls; }
    void leave(Package const& package);
    void leave(Class const& cls);

    /// Throws "VELMARA:package:name" for what is no dotted name, and "VELMARA:package:duplicate" for one that is
    /// taken.
    void requireFree(std::string_view fullName) const;

    using Undo = std::function<void()>;

    /// Keeps `undo` for the case that the population that is under way fails.
    void record(Undo undo);

    /// Runs `populate`; when it throws, all that was recorded meanwhile is undone, last things first.
    void recording(std::function<void()> const& populate);

private:
    Package& findOrMake(std::string_view fullName);
    Package* findPublishedPackage(std::string_view fullName) const;

    HvmState& machine_;
    NameMap<Package*> packages_;
    NameMap<Class*> classes_;
    RecentClasses recentClasses_;
    std::vector<Undo>* record_ = nullptr;
    std::unique_ptr<Package> root_;
};

} // namespace velmara
