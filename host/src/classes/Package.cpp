#include "classes/Package.hpp"

#include "classes/PackageTree.hpp"
#include "errors/errorTranslation.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "memory/reserveNext.hpp"

#include <algorithm>
#include <utility>

namespace velmara {

Package::Package(PackageTree& tree, Package* parent, Name name) : tree_(tree), parent_(parent), name_(name) {}

void Package::populate()
{
    if (state_ != State::Untouched)
        return;
    Machine::Entry const entry(tree_.machine());
    state_ = State::Populating;
    try {
        tree_.populate([this] { info()->initializePackage(this); });
    } catch (...) {
        state_ = State::Untouched;
        rethrowIfOutOfMemory();
        throwHostError("VELMARA:package", "population", {std::string(fullName()), currentErrorText()});
    }
    state_ = State::Populated;
}

void Package::adopt(std::unique_ptr<orbis::COSPackageInfo> info)
{
    info_ = std::make_unique<Info>(std::move(info));
    state_ = State::Untouched;
}

void Package::disown() noexcept
{
    tree_.machine().retire(std::move(info_));
    state_ = State::Populated;
}

bool Package::isBusy() const
{
    return state_ == State::Populating || std::ranges::any_of(packages_, [](auto const& p) { return p->isBusy(); }) ||
           std::ranges::any_of(classes_, [](auto const& c) { return c->isBusy(); });
}

void Package::close()
{
    state_ = State::Closed;
    tree_.countPublication();
    for (std::size_t i = 0; i < packages_.size(); ++i)
        packages_[i]->close();
    for (std::size_t i = 0; i < classes_.size(); ++i)
        classes_[i]->close();
}

void Package::clear() noexcept
{
    close();
    for (auto& cls : std::exchange(classes_, {}))
        tree_.machine().retire(std::move(cls));
    for (auto& package : std::exchange(packages_, {}))
        tree_.machine().retire(std::move(package));
    state_ = State::Populated;
}

void Package::finalizeAllObjects()
{
    // By index: finalizing runs foreign code, which may publish more.
    for (std::size_t i = 0; i < packages_.size(); ++i)
        packages_[i]->finalizeAllObjects();
    for (std::size_t i = 0; i < classes_.size(); ++i)
        classes_[i]->objects().finalizeAll();
}

void Package::requireOpen() const
{
    if (state_ == State::Closed)
        throwHostError("VELMARA:package", "closed", {std::string(fullName())});
}

Package& Package::add(std::unique_ptr<Package> package)
{
    requireOpen();
    reserveNext(packages_);
    tree_.insert(*package, [this, added = package.get()] { remove(*added); });
    return *packages_.emplace_back(std::move(package));
}

Class& Package::add(std::unique_ptr<Class> cls)
{
    requireOpen();
    reserveNext(classes_);
    tree_.insert(*cls, [this, added = cls.get()] { remove(*added); });
    return *classes_.emplace_back(std::move(cls));
}

namespace {

/// Removes the element from the list that owns it. Null when it is no longer there.
template <class T>
std::unique_ptr<T> extract(std::vector<std::unique_ptr<T>>& owners, T const& element)
{
    auto const found = std::ranges::find(owners, &element, &std::unique_ptr<T>::get);
    if (found == owners.end())
        return nullptr;
    std::unique_ptr<T> extracted = std::move(*found);
    owners.erase(found);
    return extracted;
}

} // namespace

void Package::remove(Package& package)
{
    package.close();
    tree_.erase(package);
    tree_.machine().retire(extract(packages_, package));
}

void Package::remove(Class& cls)
{
    cls.close();
    tree_.erase(cls);
    tree_.machine().retire(extract(classes_, cls));
}

void Package::remove(Method& function)
{
    std::unique_ptr<Method> taken = extract(functions_, function);
    if (!taken)
        return;
    tree_.countPublication();
    (*functionGroups_.find(function.name))->remove(function);
    tree_.machine().retire(std::move(taken));
}

void Package::addSubPackage(orbis::COSPackageInfo* info)
{
    std::unique_ptr<orbis::COSPackageInfo> owned(info);
    requireOpen();
    if (!owned)
        throwHostError("VELMARA:package", "null");
    char const* const name = owned->getName();
    std::string const own = name ? name : "";
    std::string const full = std::string(fullName()) + "." + own;
    if (own.find('.') != std::string::npos)
        throwHostError("VELMARA:package", "name", {own, "the name of a package in another one holds no dot"});
    tree_.addPackage(std::move(owned), full);
}

void Package::addClass(orbis::COSClassInfo* info)
{
    std::unique_ptr<orbis::COSClassInfo> owned(info);
    requireOpen();
    if (!owned)
        throwHostError("VELMARA:class", "null");
    tree_.addClass(std::move(owned), *this);
}

void Package::addFunction(orbis::COSMethodInfo* function)
{
    auto added = std::make_unique<Method>(std::unique_ptr<orbis::COSMethodInfo>(function), nullptr);
    requireOpen();
    std::string const full = std::string(fullName()) + "." + added->name->string();
    MethodGroup const* const existing = tree_.findPublishedFunctions(full);
    auto const isSame = [&added](Method const* other) { return other->hasSameInputs(*added); };
    if (!existing)
        tree_.requireFree(full);
    else if (std::ranges::any_of(existing->methods, isSame))
        throwHostError("VELMARA:package", "duplicate", {full});
    reserveNext(functions_);
    tree_.reserveUndo();
    std::unique_ptr<FunctionGroup>* group = functionGroups_.find(added->name);
    if (!group) {
        auto created = std::make_unique<FunctionGroup>(intern(full));
        *(group = &functionGroups_[added->name]) = std::move(created);
    }
    tree_.insert(**group);
    (*group)->add(*added);
    Method& recorded = *functions_.emplace_back(std::move(added));
    tree_.recordUndo([this, &recorded] { remove(recorded); });
}

} // namespace velmara
