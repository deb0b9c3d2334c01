#include "orbis/factory/registerModule.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/detail/arrays/NewCells.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"

#include "module/NamedClassInfo.hpp"
#include "module/PublishedClasses.hpp"
#include "module/cppName.hpp"
#include "module/publishedName.hpp"

#include "host_extensions/ErrorKind.hpp"

#include <atomic>
#include <memory>
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
    std::atomic_ref<char const*> const givenName(named.name);
    if (char const* const given = givenName.load()) {
        if (fullName != given || named.isOwnedByHost != (owner == Owner::Host))
            throw Exception("The native class " + cppName(*named.type) + " cannot be published as \"" + fullName +
                            "\": it is \"" + given + "\" in this program, with the owner that it was given there.");
        return;
    }
    char const* const kept = names.add(std::move(fullName));
    named.isOwnedByHost = owner == Owner::Host;
    givenName.store(kept, std::memory_order_release);
}

ClassDescription& Module::addClass(detail::NamedClass& named, detail::NewObject<ClassDescription> description,
                                   char const* text)
{
    std::unique_ptr<ClassDescription> owner(description.release());
    ClassDescription& result = *owner;
    PublishedClasses::ofCurrentHvm().addNamed(named);
    package_.addClass(new NamedClassInfo(named, std::move(owner), text));
    return result;
}

void Module::addErrorKind(char const* identifier, std::type_info const& type,
                          bool (*describe)(void (*text)(), std::string& result), void (*text)(), void (*throwPointer)())
{
    host_extensions::ErrorKind const kind{identifier, fullName_, &type,
                                          [describe, text](std::string& result) { return describe(text, result); }};
    detail::NewObject<ErrorInProgress> error(new ErrorInProgress{kind, throwPointer});
    host_extensions::addErrorKind(kind);
    lastError_ = std::move(error);
}

void Module::addErrorField(char const* name, bool (*isOf)(void (*throwPointer)()),
                           void (*read)(impl::Callable const& getter, COSValue& value), impl::Callable getter)
{
    auto const refuse = [&](char const* reason) {
        throw Exception(std::string("The field \"") + name + "\" cannot be added to an error: " + reason + '.');
    };
    if (!lastError_.get())
        refuse("call error<...>() first");
    if (!isOf(lastError_->throwPointer))
        refuse("its getter reads another class of exceptions");
    for (char const* const own : {"identifier", "text", "where", "cause"})
        if (std::string_view(name) == own)
            refuse("every error has one of that name");
    lastError_->kind.fields.push_back({name, [read, getter] {
                                           COSValue value;
                                           read(getter, value);
                                           return detail::toArray(value);
                                       }});
    host_extensions::addErrorKind(lastError_->kind);
}

void Module::complete()
{
    factory::publish(&package_, functions_);
}

void detail::setBase(NamedClass& named, NamedClass& given, void* (*toBase)(void*), void* (*fromBase)(void*))
{
    NamedClass& base = publishedName(given) ? given : *PublishedClasses::ofCurrentHvm().findNamed(*given.type);
    std::lock_guard const lock(namingMutex());
    if (named.isOwnedByHost != base.isOwnedByHost) // a result is known as its base only, and is what it is
        throw Exception("The class " + cppName(*named.type) + " cannot have the superclass " + cppName(*base.type) +
                        ": one is published with Owner::Host, the other with Owner::Native.");
    base.isBase = true;
    if (!named.toBase) {
        named.toBase = toBase;
        named.fromBase = fromBase;
        named.base = &base;
    } else if (named.base && named.base != &base && *named.base->type == *base.type) {
        named.base = &base; // of a module that was loaded anew
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
