#pragma once

#include "classes/Class.hpp"
#include "members/Method.hpp"
#include "memory/Retirable.hpp"

#include "orbis/COSPackage.hpp"
#include "orbis/COSPackageInfo.hpp"

#include <memory>
#include <string_view>
#include <vector>

namespace velmara {

class PackageTree;

/// The functions of one name in a package.
struct FunctionGroup : MethodGroup {
    explicit FunctionGroup(Name full) : fullName(full) {}
    Name fullName;
};

/// A package of the tree: the packages, classes and functions that it owns. Without an info, as at first, it only holds
/// others.
class Package final : public orbis::COSPackage, public Retirable {
public:
    enum class State { Untouched, Populating, Populated, Closed };

    /// `name` is the full dotted one; null for the tree's root.
    Package(PackageTree& tree, Package* parent, Name name);

    Name name() const { return name_; }
    std::string_view fullName() const { return name_ ? name_->view() : std::string_view(); }
    Package* parent() const { return parent_; }
    orbis::COSPackageInfo* info() const { return info_ ? info_->info.get() : nullptr; }
    State state() const { return state_; }

    /// True when it was created only to hold others and holds none.
    bool isPlaceholder() const { return !info_ && packages_.empty() && classes_.empty() && functions_.empty(); }

    /// Has the package populated when it is not yet. When that fails, all that was added is dropped, and the error
    /// names the package. Does nothing while the package is being populated.
    void populate();

    /// Gives an info to a package that was created only to hold others; `disown` takes it away again.
    void adopt(std::unique_ptr<orbis::COSPackageInfo> info);
    void disown() noexcept;

    /// True while the package, or a package or class in it, is being described: it cannot be removed now.
    bool isBusy() const;

    /// Finalizes all objects of its classes and closes everything in it.
    void close();
    void finalizeAllObjects();

    /// Closes the package and removes everything from it.
    void clear() noexcept;

    std::vector<std::unique_ptr<Package>> const& packages() const { return packages_; }
    std::vector<std::unique_ptr<Class>> const& classes() const { return classes_; }
    std::vector<std::unique_ptr<Method>> const& functions() const { return functions_; }

    /// By own name, also those that have no functions any more.
    NameMap<std::unique_ptr<FunctionGroup>> const& functionGroups() const { return functionGroups_; }

    Package& add(std::unique_ptr<Package> package);
    Class& add(std::unique_ptr<Class> cls);

    /// Removes a package or a class from the tree. It is closed at once, and destroyed when nothing uses it.
    void remove(Package& package);
    void remove(Class& cls);

    void addSubPackage(orbis::COSPackageInfo* info) override;
    void addClass(orbis::COSClassInfo* info) override;
    void addFunction(orbis::COSMethodInfo* function) override;

private:
    struct Info : Retirable {
        explicit Info(std::unique_ptr<orbis::COSPackageInfo> given) : info(std::move(given)) {}
        std::unique_ptr<orbis::COSPackageInfo> info;
    };

    /// Throws "VELMARA:package:closed" once the package is being removed.
    void requireOpen() const;

    void remove(Method& function);

    PackageTree& tree_;
    Package* parent_;
    Name name_;
    std::unique_ptr<Info> info_;
    std::vector<std::unique_ptr<Package>> packages_;
    std::vector<std::unique_ptr<Class>> classes_;
    std::vector<std::unique_ptr<Method>> functions_;
    NameMap<std::unique_ptr<FunctionGroup>> functionGroups_;
    State state_ = State::Populated;
};

} // namespace velmara
