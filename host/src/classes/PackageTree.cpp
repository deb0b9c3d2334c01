#include "classes/PackageTree.hpp"

#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "memory/reserveNext.hpp"
#include "types/TypeRepository.hpp"

#include "libkwfl/IMsgIDException.hpp"

#include <algorithm>
#include <atomic>
#include <utility>

namespace velmara {

namespace {

/// A dotted name in two: what precedes the last dot (empty without one) and what follows it.
std::pair<std::string_view, std::string_view> splitLast(std::string_view name)
{
    std::size_t const dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return {{}, name};
    return {name.substr(0, dot), name.substr(dot + 1)};
}

bool isDottedName(std::string_view name)
{
    return !name.empty() && name.front() != '.' && name.back() != '.' && name.find("..") == std::string_view::npos;
}

template <class T>
T* findByText(NameMap<T*> const& map, std::string_view fullName)
{
    T* const* const found = map.findText(fullName);
    return found ? *found : nullptr;
}

/// Far enough from those of other virtual machines.
std::uint64_t firstPublicationNumber()
{
    static std::atomic<std::uint64_t> machines = 0;
    return ++machines << 32;
}

} // namespace

PackageTree::PackageTree(Machine& machine)
    : machine_(machine),
      publicationNumber_(firstPublicationNumber()),
      root_(*this, nullptr, nullptr)
{
}

Package* PackageTree::findPublishedPackage(std::string_view fullName)
{
    return fullName.empty() ? &root_ : findByText(packages_, fullName);
}

Package* PackageTree::findPackage(std::string_view fullName)
{
    Package* package = &root_;
    for (std::size_t end = 0; package && end < fullName.size();) {
        std::size_t const begin = end == 0 ? 0 : end + 1;
        end = std::min(fullName.find('.', begin), fullName.size());
        package->populate();
        Package* found = findByText(packages_, fullName.substr(0, end));
        std::string const own(fullName.substr(begin, end - begin));
        if (!found && package->info() && package->info()->attemptToLoadSubPackage(own.c_str()))
            found = findByText(packages_, fullName.substr(0, end));
        package = found;
    }
    return package;
}

Class* PackageTree::findPublishedClass(Name fullName) const
{
    Class* const* const found = classes_.find(fullName);
    return found && !(*found)->isClosed() ? *found : nullptr;
}

Class* PackageTree::findClass(Name fullName)
{
    Class* const found = findPublishedClass(fullName);
    return found ? found : findClass(fullName->view());
}

Class* PackageTree::loadClass(std::string_view fullName)
{
    auto const [parent, own] = splitLast(fullName);
    Package* const package = findPackage(parent);
    if (!package)
        return nullptr;
    package->populate();
    Class* found = findPublishedClass(fullName);
    if (!found && package->info() && package->info()->attemptToLoadClass(std::string(own).c_str()))
        found = findPublishedClass(fullName);
    return found;
}

Class* PackageTree::findGlobalClass(std::string_view name)
{
    if (name.find('.') != std::string_view::npos)
        return nullptr;
    Class* found = findClass(name);
    for (std::size_t i = 0; i < root_.packages().size() && !found; ++i) {
        try {
            root_.packages()[i]->populate();
        } catch (foundation::core::except::IMsgIDException const& error) {
            if (error.getErrorID() != "VELMARA:package:population")
                throw;
            // Reported when that package itself is needed.
        }
        found = findClass(name);
    }
    return found;
}

MethodGroup const* PackageTree::loadFunctions(std::string_view fullName)
{
    auto const [parent, own] = splitLast(fullName);
    Package* const package = parent.empty() ? nullptr : findPackage(parent);
    if (!package)
        return nullptr;
    package->populate();
    MethodGroup const* found = findPublishedFunctions(fullName);
    if (!found && package->info() && package->info()->attemptToLoadFunction(std::string(own).c_str()))
        found = findPublishedFunctions(fullName);
    return found;
}

void PackageTree::requireFree(std::string_view fullName)
{
    if (!isDottedName(fullName))
        throwHostError(
            "VELMARA:package", "name",
            {std::string(fullName), fullName.empty() ? "the name is empty" : "a part between dots is empty"});
    if (findPublishedFunctions(fullName) || findByText(packages_, fullName) || findByText(classes_, fullName))
        throwHostError("VELMARA:package", "duplicate", {std::string(fullName)});
}

Package& PackageTree::findOrCreate(std::string_view fullName)
{
    if (Package* const found = findPublishedPackage(fullName))
        return *found;
    requireFree(fullName);
    Package& parent = findOrCreate(splitLast(fullName).first);
    return parent.add(std::make_unique<Package>(*this, &parent, intern(fullName)));
}

void PackageTree::addPackage(std::unique_ptr<orbis::COSPackageInfo> info, std::string_view fullName)
{
    Package* const existing = fullName.empty() ? nullptr : findPublishedPackage(fullName);
    if (!existing || existing->info())
        requireFree(fullName);
    transact([&] {
        Package& package = findOrCreate(fullName);
        reserveUndo();
        package.adopt(std::move(info));
        recordUndo([&package] { package.disown(); });
    });
}

void PackageTree::addClass(std::unique_ptr<orbis::COSClassInfo> info, Package& package)
{
    char const* const text = info->getName();
    std::string_view const fullName = text ? text : "";
    requireFree(fullName);
    if (package.name() && splitLast(fullName).first != package.fullName())
        throwHostError("VELMARA:class", "otherPackage", {std::string(fullName), std::string(package.fullName())});
    package.add(std::make_unique<Class>(std::move(info), intern(fullName), machine_));
}

void PackageTree::addClass(std::unique_ptr<orbis::COSClassInfo> info)
{
    requireFree(info->getName());
    transact([&] {
        Package& package = findOrCreate(splitLast(info->getName()).first);
        addClass(std::move(info), package);
    });
}

namespace {

/// Parents that were created only to hold others are removed with the last of them. All but the root have a parent.
void removeWithEmptyParents(Package& package)
{
    Package& parent = *package.parent();
    parent.remove(package);
    if (parent.name() && parent.isPlaceholder())
        removeWithEmptyParents(parent);
}

} // namespace

void PackageTree::removePackage(Name fullName)
{
    Package* const* const found = packages_.find(fullName);
    if (!found)
        return;
    Package& removed = **found;
    for (Package const* package = &removed; package; package = package->parent())
        if (package->state() == Package::State::Closed)
            return;       // it is being removed already
    if (removed.isBusy()) // NOLINT(clang-analyzer-core.CallAndMessage): a stored package is not null
        throwHostError("VELMARA:package", "busy", {fullName->string()});
    Machine::Entry const entry(machine_);
    removeWithEmptyParents(removed);
}

void PackageTree::finalizeAllObjects()
{
    root_.finalizeAllObjects();
}

void PackageTree::clear() noexcept
{
    root_.close();
    packages_ = {};
    classes_ = {};
    functions_ = {};
    root_.clear();
}

void PackageTree::erase(Package const& package) noexcept
{
    countPublication();
    Package* const* const found = packages_.find(package.name());
    if (found && *found == &package)
        packages_.erase(package.name());
    for (auto const& inner : package.packages())
        erase(*inner);
    for (auto const& cls : package.classes())
        erase(*cls);
    package.functionGroups().forEach([this](Name, auto const& group) {
        FunctionGroup const* const* const functions = functions_.find(group->fullName);
        if (functions && *functions == group.get())
            functions_.erase(group->fullName);
    });
}

void PackageTree::erase(Class const& cls) noexcept
{
    countPublication();
    Class* const* const found = classes_.find(cls.name());
    if (found && *found == &cls) {
        classes_.erase(cls.name());
        machine_.types().forgetClass(cls.name());
    }
}

void PackageTree::recordUndo(Undo undo) noexcept
{
    if (depth_ != 0 && !isUndoing_)
        undos_.push_back(std::move(undo));
}

void PackageTree::reserveUndo()
{
    reserveNext(undos_);
}

void PackageTree::transact(std::function<void()> const& change)
{
    std::size_t const before = undos_.size();
    ++depth_;
    try {
        change();
    } catch (...) {
        undoTo(before);
        --depth_;
        throw;
    }
    if (--depth_ == 0)
        undos_.clear();
}

void PackageTree::populate(std::function<void()> const& populate)
{
    std::size_t const before = undos_.size();
    transact(populate);
    undos_.resize(std::min(before, undos_.size()));
}

void PackageTree::undoTo(std::size_t recorded) noexcept
{
    bool const wasUndoing = std::exchange(isUndoing_, true);
    while (undos_.size() > recorded) {
        Undo const undo = std::move(undos_.back());
        undos_.pop_back();
        undo();
    }
    isUndoing_ = wasUndoing;
}

} // namespace velmara
