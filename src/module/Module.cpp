#include "orbis/factory/Module.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/detail/arrays/NewCells.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "module/NamedClassInfo.hpp"
#include "module/cppName.hpp"

#include <mutex>
#include <string_view>
#include <utility>

namespace orbis::factory {

namespace {

/// Virtual machines on several threads may publish a class at the same time.
std::mutex& namingMutex()
{
    static std::mutex mutex;
    return mutex;
}

detail::NamedClass const& rootOf(detail::NamedClass const& named)
{
    return named.base ? rootOf(*named.base) : named;
}

} // namespace

struct detail::ClassNames::Name {
    std::string text;
    Name* next;
};

detail::ClassNames::~ClassNames()
{
    while (first_)
        delete std::exchange(first_, first_->next);
}

char const* detail::ClassNames::add(std::string name)
{
    first_ = new Name{std::move(name), first_};
    return first_->text.c_str();
}

/// The kind of errors that `error` has added last.
struct Module::ErrorInProgress {
    host_extensions::ErrorKind kind;
    void (*throwPointer)();
};

Module::Module(COSPackage& package, std::string fullName) : package_(package), fullName_(std::move(fullName)) {}

Module::~Module() = default;

void Module::setName(detail::NamedClass& named, detail::ClassNames& names, char const* name, Owner owner)
{
    std::string fullName = fullName_ + '.' + name;
    std::lock_guard const lock(namingMutex());
    if (char const* const given = named.name.load()) {
        if (fullName != given || named.isOwnedByHost != (owner == Owner::Host))
            throw Exception("The native class " + cppName(*named.type) + " cannot be published as \"" + fullName +
                            "\": it is \"" + given + "\" in this program, with the owner that it was given there.");
        return;
    }
    char const* const kept = names.add(std::move(fullName));
    named.isOwnedByHost = owner == Owner::Host;
    named.name.store(kept, std::memory_order_release);
}

void Module::addClass(detail::NamedClass const& named, std::unique_ptr<ClassDescription> description, char const* text)
{
    package_.addClass(new NamedClassInfo(named, std::move(description), text));
}

void Module::addErrorKind(host_extensions::ErrorKind kind, void (*throwPointer)())
{
    lastError_ = std::make_unique<ErrorInProgress>(ErrorInProgress{std::move(kind), throwPointer});
    host_extensions::addErrorKind(lastError_->kind);
}

void Module::addErrorField(char const* name, bool (*isOf)(void (*throwPointer)()), std::function<void(COSValue&)> read)
{
    auto const refuse = [&](char const* reason) {
        throw Exception(std::string("The field \"") + name + "\" cannot be added to an error: " + reason + '.');
    };
    if (!lastError_)
        refuse("call error<...>() first");
    if (!isOf(lastError_->throwPointer))
        refuse("its getter reads another class of exceptions");
    for (char const* const own : {"identifier", "text", "where", "cause"})
        if (std::string_view(name) == own)
            refuse("every error has one of that name");
    lastError_->kind.fields.push_back({name, [read = std::move(read)] {
                                           COSValue value;
                                           read(value);
                                           return detail::toArray(value);
                                       }});
    host_extensions::addErrorKind(lastError_->kind);
}

void Module::complete()
{
    factory::publish(&package_, functions_);
}

void detail::setBase(NamedClass& named, NamedClass& base, void* (*toBase)(void*), void* (*fromBase)(void*))
{
    std::lock_guard const lock(namingMutex());
    if (named.isOwnedByHost != base.isOwnedByHost) // a result is known as its base only, and is what it is
        throw Exception("The class " + cppName(*named.type) + " cannot have the superclass " + cppName(*base.type) +
                        ": one is published with Owner::Host, the other with Owner::Native.");
    base.isBase = true;
    if (!named.toBase) {
        named.toBase = toBase;
        named.fromBase = fromBase;
        named.base = &base;
    }
    bool const isBoundAlike = base.toBase && !base.base ? named.toBase && !named.base : &rootOf(named) == &rootOf(base);
    if (!isBoundAlike || (named.base != &base && named.base && !rootOf(named).dynamicType))
        throw Exception("The class " + cppName(*named.type) + " cannot have the superclass " + cppName(*base.type) +
                        ": its objects are found through the first superclass, which has another base.");
}

COSPackage* registerModule(std::string const& fullName, std::function<void(Module&)> fill)
{
    return registerOrbisPackage(fullName, [fullName, fill = std::move(fill)](COSPackage* package) {
        Module module(*package, fullName);
        fill(module);
        module.complete();
    });
}

} // namespace orbis::factory
