#include "module/PublishedClasses.hpp"

#include "orbis/factory/basic/BindingRegistry.hpp"
#include "orbis/factory/detail/announceMostDerived.hpp"

#include "basic/HvmScoped.hpp"

#include "orbis/COSClass.hpp"
#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <utility>

namespace orbis::factory {

namespace {

bool isPublished(char const* hostName)
{
    return COSClass::getClass(COSNameID(hostName)) != nullptr;
}

} // namespace

PublishedClasses& PublishedClasses::ofCurrentHvm()
{
    return basic::HvmScoped<PublishedClasses>::get();
}

void PublishedClasses::expect(std::string const& hostName)
{
    expected_.insert(hostName);
}

void PublishedClasses::add(NativeClassRecord const& native, std::vector<NativeClassRecord> const& superclasses)
{
    Entry entry{native, {}};
    for (NativeClassRecord const& superclass : superclasses)
        entry.superclasses.emplace_back(*superclass.type);
    entries_.insert_or_assign(*native.type, std::move(entry));
}

std::string PublishedClasses::mostDerived(void const* bound, std::type_info const& dynamicType,
                                          NativeClassRecord const& known)
{
    auto const findExact = [&]() -> Entry const* {
        auto const found = entries_.find(dynamicType);
        return found != entries_.end() && isA(found->second, *known.type) && isPublished(found->second.native.hostName)
                   ? &found->second
                   : nullptr;
    };
    Entry const* found = findExact();
    if (!found && !expected_.empty()) {
        describeExpected();
        found = findExact();
    }
    if (!found)
        found = best(bound, *known.type);
    return found ? found->native.hostName : known.hostName;
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
    for (std::string const& name : std::exchange(expected_, {})) {
        try {
            COSClass::getClass(COSNameID(name.c_str())); // has the host describe it
        } catch (...) {
            // Who asks for that class itself is told why it cannot be described.
        }
    }
}

PublishedClasses::Entry const* PublishedClasses::best(void const* bound, std::type_index known) const
{
    Entry const* best = nullptr;
    for (auto const& [type, entry] : entries_) {
        bool const isBetter = isA(entry, best ? std::type_index(*best->native.type) : known);
        if (isBetter && entry.native.isInstance && entry.native.isInstance(bound) && isPublished(entry.native.hostName))
            best = &entry;
    }
    return best;
}

namespace detail {

hvArray* announceMostDerived(void* bound, std::type_info const& dynamicType, NativeClassRecord const& staticClass)
{
    if (COSInterface* const host = basic::BindingRegistry::find(bound))
        return omCreateORBISScalar(host);
    if (!bound || dynamicType == *staticClass.type)
        return basic::BindingRegistry::announce(bound, COSNameID(staticClass.hostName));
    std::string const name = PublishedClasses::ofCurrentHvm().mostDerived(bound, dynamicType, staticClass);
    return basic::BindingRegistry::announce(bound, COSNameID(name.c_str()));
}

} // namespace detail

} // namespace orbis::factory
