#pragma once

#include "classes/Package.hpp"
#include "names/NameMap.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace velmara {

class Machine;

/// All that one virtual machine has published, by full dotted name. The root holds the global classes.
class PackageTree {
public:
    explicit PackageTree(Machine& machine);

    Machine& machine() const { return machine_; }
    Package& root() { return root_; }

    /// See `Hvm::publicationNumber`.
    std::uint64_t const& publicationNumber() const { return publicationNumber_; }
    void countPublication() noexcept { ++publicationNumber_; }

    /// Null when there is none. Parents are populated when they were not yet, and may load the package.
    Package* findPackage(std::string_view fullName);

    /// Null when there is none; the class is not described by this.
    [[gnu::always_inline]] Class* findClass(std::string_view fullName)
    {
        Class* const found = findPublishedClass(fullName);
        return found ? found : loadClass(fullName);
    }
    Class* findClass(Name fullName);

    /// A class without a package. Packages publish these as they are populated, so those at the top level are, but for
    /// what cannot be.
    Class* findGlobalClass(std::string_view name);

    /// The class if it is published already; nothing is populated.
    Class* findPublishedClass(Name fullName) const;

    /// The functions of one name; null when there is none.
    [[gnu::always_inline]] MethodGroup const* findFunctions(std::string_view fullName)
    {
        MethodGroup const* const found = findPublishedFunctions(fullName);
        return found ? found : loadFunctions(fullName);
    }

    /// Those that are published already; nothing is populated.
    [[gnu::always_inline]] MethodGroup const* findPublishedFunctions(std::string_view fullName) const
    {
        FunctionGroup const* const* const found = functions_.findText(fullName);
        return found && !(*found)->methods.empty() ? *found : nullptr;
    }

    void addPackage(std::unique_ptr<orbis::COSPackageInfo> info, std::string_view fullName);
    void addClass(std::unique_ptr<orbis::COSClassInfo> info, Package& package);

    /// Adds the class to the package of its full name, which is created when there is none.
    void addClass(std::unique_ptr<orbis::COSClassInfo> info);
    void removePackage(Name fullName);

    void finalizeAllObjects();

    /// Removes everything. Needs no memory.
    void clear() noexcept;

    using Undo = std::function<void()>;

    /// For packages, which own what is published: makes it known under its full name, and no longer. `undo` is
    /// recorded. A failure changes nothing.
    template <class T>
    void insert(T& published, Undo undo)
    {
        reserveUndo();
        entriesOf(published)[published.name()] = &published;
        recordUndo(std::move(undo));
        countPublication();
    }
    void insert(FunctionGroup const& functions)
    {
        functions_[functions.fullName] = &functions;
        countPublication();
    }
    void erase(Package const& package) noexcept;
    void erase(Class const& cls) noexcept;

    /// Throws "VELMARA:package:name" for what is no dotted name, and "VELMARA:package:duplicate" for one that is
    /// taken.
    void requireFree(std::string_view fullName);

    /// Keeps `undo` in case the current transaction fails. `reserveUndo` must have been called for it.
    void recordUndo(Undo undo) noexcept;
    void reserveUndo();

    /// Runs `change`; when it throws, all that was recorded meanwhile is undone, the last first. When it succeeds, it
    /// is undone with the transaction that it is part of.
    void transact(std::function<void()> const& change);

    /// The same, but what has succeeded stays when the transaction around it fails.
    void populate(std::function<void()> const& populate);

private:
    NameMap<Package*>& entriesOf(Package const&) { return packages_; }
    NameMap<Class*>& entriesOf(Class const&) { return classes_; }
    [[gnu::always_inline]] Class* findPublishedClass(std::string_view fullName) const
    {
        Class* const* const found = classes_.findText(fullName);
        return found && !(*found)->isClosed() ? *found : nullptr;
    }

    /// Has the packages on the way populated, and the last one load what it does not publish yet.
    Class* loadClass(std::string_view fullName);
    MethodGroup const* loadFunctions(std::string_view fullName);

    void undoTo(std::size_t recorded) noexcept;
    Package& findOrCreate(std::string_view fullName);
    Package* findPublishedPackage(std::string_view fullName);

    Machine& machine_;
    NameMap<Package*> packages_;
    NameMap<Class*> classes_;
    NameMap<FunctionGroup const*> functions_;
    std::vector<Undo> undos_;
    std::uint64_t publicationNumber_;
    int depth_ = 0; ///< of transactions
    bool isUndoing_ = false;
    Package root_;
};

} // namespace velmara
