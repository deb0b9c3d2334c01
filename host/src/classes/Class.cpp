#include "classes/Class.hpp"

#include "classes/PackageTree.hpp"
#include "errors/errorTranslation.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"

#include <algorithm>
#include <utility>

namespace velmara {

namespace {

/// The class and all its superclasses, each once, each before its own superclasses, otherwise in the order in which
/// superclasses were named.
std::vector<ObjectClass*> linearize(Class& cls)
{
    std::vector<ObjectClass*> order;
    for (Class* const superclass : cls.contents().superclasses)
        order.insert(order.end(), superclass->linearization().begin(), superclass->linearization().end());
    // A class that is reached on several ways counts at its last place: behind all its subclasses.
    std::vector<ObjectClass*> reversed;
    for (auto it = order.rbegin(); it != order.rend(); ++it)
        if (std::ranges::find(reversed, *it) == reversed.end())
            reversed.push_back(*it);
    reversed.push_back(&cls);
    std::ranges::reverse(reversed);
    return reversed;
}

char const* constructionErrorOf(orbis::COSClassInfo const& info)
{
    if (info.classIsAbstract() || info.isAbstract())
        return "abstract";
    return info.getAccess() == orbis::ClassAccess::Public ? nullptr : "access";
}

} // namespace

Class::Class(std::unique_ptr<orbis::COSClassInfo> info, Name name, Machine& machine)
    : ObjectClass(std::move(info), name, machine),
      contents_(std::make_unique<ClassContents>()),
      isEnumeration_(this->info().isEnumeration())
{
    setLinearization(contents_->linearization);
}

void Class::makeReady()
{
    if (state_ == State::Closed)
        throwHostError("VELMARA:class", "unpublished", {name()->string()});
    Machine::Entry const entry(machine());
    if (!empty_)
        empty_ = std::make_unique<ClassContents>();
    state_ = State::Describing;
    try {
        describe();
    } catch (...) {
        state_ = State::Untouched;
        dropContents();
        rethrowIfOutOfMemory();
        throwHostError("VELMARA:class", "initialization", {name()->string(), currentErrorText()});
    }
    state_ = State::Ready;
}

void Class::describe()
{
    info().initializeClass(this);
    constructionError_ = constructionErrorOf(info());
    contents_->linearization = linearize(*this);
    contents_->tables = buildMemberTables(contents_->linearization);
    if (isEnumeration_ && contents_->enumerators.empty())
        throwHostError("VELMARA:enumeration", "empty", {name()->string()});
    contents_->enumerators.createObjects(*this);
}

void Class::dropContents() noexcept
{
    if (!empty_)
        return; // there are no contents
    for (Class* const superclass : contents_->superclasses)
        std::erase(superclass->subclasses_, this);
    setLinearization(empty_->linearization);
    machine().packages().countPublication();
    machine().retire(std::exchange(contents_, std::move(empty_)));
}

bool Class::isBusy() const
{
    return state_ == State::Describing || std::ranges::any_of(subclasses_, &Class::isBusy);
}

void Class::close()
{
    state_ = State::Closed;
    machine().packages().countPublication();
    while (!subclasses_.empty()) {
        Class& subclass = *subclasses_.back();
        subclass.close();
        subclass.state_ = State::Untouched;
    }
    objects().finalizeAll();
    dropContents();
}

bool Class::isA(Name ancestor) const
{
    return name() == ancestor || distanceTo(ancestor) > 0;
}

int Class::distanceTo(Name ancestor) const
{
    auto const& classes = linearization();
    auto const found = std::ranges::find(classes, ancestor, &ObjectClass::name);
    return found == classes.end() ? -1 : static_cast<int>(found - classes.begin());
}

void Class::setSuperclasses(std::span<orbis::COSNameID const> names)
{
    requireOpen(name());
    if (isEnumeration_)
        throwHostError("VELMARA:enumeration", "superclass", {name()->string()});
    std::vector<Class*> classes;
    for (orbis::COSNameID const& superclass : names) {
        Class* const cls = machine().packages().findClass(superclass.interned()->view());
        if (!cls)
            throwHostError("VELMARA:class", "unknown", {superclass.interned()->string()});
        cls->ensureReady();
        if (!cls->isReady())
            throwHostError("VELMARA:class", "cycle", {name()->string(), cls->name()->string()});
        if (cls->info().isSealed() || cls->isEnumeration())
            throwHostError("VELMARA:class", "sealed", {name()->string(), cls->name()->string()});
        if (std::ranges::find(classes, cls) == classes.end())
            classes.push_back(cls);
    }
    for (Class* const cls : classes)
        cls->subclasses_.reserve(cls->subclasses_.size() + 1);
    for (Class* const cls : contents_->superclasses)
        std::erase(cls->subclasses_, this);
    for (Class* const cls : classes)
        cls->subclasses_.push_back(this);
    contents_->superclasses = std::move(classes);
}

[[gnu::noinline]] void Class::throwUncreatable() const
{
    if (machine().isEnding())
        throwHostError("VELMARA:hvm", "ending");
    if (!isReady())
        throwHostError("VELMARA:class", "notInitialized", {name()->string()});
    requireNotEnumeration();
}

Object& Class::createObject()
{
    if (machine().isEnding() || !isReady() || isEnumeration_) [[unlikely]]
        throwUncreatable();
    return Object::create(*this);
}

orbis::COSInterfacePtr Class::newInstance()
{
    if (!machine().isEnding())
        ensureReady();
    return &createObject();
}

void Class::initializeInstance(orbis::COSInterfacePtr instance)
{
    auto* const object = static_cast<Object*>(static_cast<orbis::COSInterface*>(instance));
    if (!object || object->classOf() != this)
        throwHostError("VELMARA:object", "otherClass",
                       {name()->string(), object ? object->className()->string() : std::string("null")});
    Machine::Entry const entry(machine());
    object->initialize();
}

} // namespace velmara
