#include "module/PublishedClasses.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "module/cppName.hpp"
#include "module/publishedName.hpp"

#include "libkwfl/IMsgIDException.hpp"
#include "orbis/COSClass.hpp"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace orbis::factory {

namespace {

/// Returns the class of that name, or null when there is none. Returns no value when that is unknown, because the class
/// could not be described or its package not be populated: the error is reported to whoever asks for the class by name.
/// Other errors propagate.
std::optional<COSClass*> findDescribed(char const* hostName)
{
    try {
        return COSClass::getClass(COSNameID(hostName));
    } catch (foundation::core::except::IMsgIDException const& error) {
        std::string const& identifier = error.getErrorID();
        if (identifier != "VELMARA:class:initialization" && identifier != "VELMARA:package:population")
            throw;
        return std::nullopt;
    }
}

bool isPublished(char const* hostName)
{
    return findDescribed(hostName).value_or(nullptr) != nullptr;
}

/// Looks up each class, and removes the names whose look-up succeeded; the others are tried again next time. Works on a
/// separate set, because a look-up may add names, and merges the rest back even if it throws.
void lookUp(std::set<std::string>& names, char const* suffix)
{
    struct Pending {
        explicit Pending(std::set<std::string>& all) : outer(all) { names.swap(outer); }
        Pending(Pending const&) = delete;
        Pending& operator=(Pending const&) = delete;
        ~Pending() { outer.merge(names); }

        std::set<std::string>& outer;
        std::set<std::string> names;
    } pending(names);
    for (auto name = pending.names.begin(); name != pending.names.end();)
        name = findDescribed((*name + suffix).c_str()) ? pending.names.erase(name) : std::next(name);
}

} // namespace

PublishedClasses& PublishedClasses::ofCurrentHvm()
{
    return basic::HvmScoped<PublishedClasses>::get();
}

void PublishedClasses::addNamed(detail::NamedClass& named)
{
    detail::NamedClass* const other = named_.try_emplace(*named.type, &named).first->second;
    if (other != &named)
        throw Exception("The native class " + cppName(*named.type) + " cannot be published as \"" +
                        publishedName(named) + "\": another module publishes it, as \"" + publishedName(*other) +
                        "\".");
}

detail::NamedClass* PublishedClasses::findNamed(std::type_info const& type)
{
    auto found = named_.find(type);
    if (found == named_.end()) {
        // Not their classes: one that is being published just now has no members yet.
        lookUp(expectedPackages_, ".*");
        found = named_.find(type);
    }
    return found == named_.end() ? nullptr : found->second;
}

void PublishedClasses::expect(std::string const& hostName)
{
    expected_.insert(hostName);
}

void PublishedClasses::expectPackage(std::string const& fullName)
{
    expectedPackages_.insert(fullName);
}

void PublishedClasses::add(NativeClassRecord const& native, std::vector<NativeClassRecord> const& superclasses)
{
    Entry entry{native, {}};
    for (NativeClassRecord const& superclass : superclasses)
        entry.superclasses.emplace_back(*superclass.type);
    unpublished_.clear();
    entries_.insert_or_assign(*native.type, std::move(entry));
}

char const* PublishedClasses::mostDerived(void const* bound, std::type_info const& dynamicType,
                                          NativeClassRecord const& known)
{
    auto const findExact = [&]() -> Entry const* {
        auto const found = entries_.find(dynamicType);
        return found != entries_.end() && isA(found->second, *known.type) && isPublished(found->second.native.hostName)
                   ? &found->second
                   : nullptr;
    };
    Entry const* found = findExact();
    if (!found && !(expected_.empty() && expectedPackages_.empty())) {
        describeExpected();
        found = findExact();
    }
    return found ? found->native.hostName : bestOfUnpublished(bound, dynamicType, known);
}

char const* PublishedClasses::bestOfUnpublished(void const* bound, std::type_info const& dynamicType,
                                                NativeClassRecord const& known)
{
    std::pair<std::type_index, std::type_index> const key(dynamicType, *known.type);
    auto const remembered = unpublished_.find(key);
    char const* name = remembered == unpublished_.end() ? nullptr : remembered->second;
    if (!name || !isPublished(name)) {
        name = best(bound, known);
        unpublished_[key] = name;
    }
    return name;
}

bool PublishedClasses::isA(Entry const& entry, std::type_index ancestor) const
{
    if (std::type_index(*entry.native.type) == ancestor)
        return true;
    return std::ranges::any_of(entry.superclasses, [&](std::type_index superclass) {
        auto const found = entries_.find(superclass);
        return superclass == ancestor || (found != entries_.end() && isA(found->second, ancestor));
    });
}

void PublishedClasses::describeExpected()
{
    unpublished_.clear();
    // A look-up makes the host populate the class's package, even if the class does not exist, and describe the class.
    lookUp(expectedPackages_, ".*");
    lookUp(expected_, "");
}

char const* PublishedClasses::best(void const* bound, NativeClassRecord const& known) const
{
    // A copy, because checking whether a class is published may describe it, which adds to the entries.
    std::vector<NativeClassRecord> candidates;
    for (auto const& [type, entry] : entries_)
        if (entry.native.isInstance && isA(entry, *known.type) && entry.native.isInstance(bound))
            candidates.push_back(entry.native);
    NativeClassRecord best = known;
    for (NativeClassRecord const& candidate : candidates)
        if (isA(entries_.at(*candidate.type), *best.type) && isPublished(candidate.hostName))
            best = candidate;
    return best.hostName;
}

} // namespace orbis::factory
