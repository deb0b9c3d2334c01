#include "orbis/factory/detail/objects/NamedEnumeration.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/classes/OrbisFactoryClassInfo.hpp"
#include "orbis/factory/publishEnumeration.hpp"

#include "module/cppName.hpp"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace orbis::factory {

namespace {

using Entry = EnumerationRecord::Entry;

bool isSame(Entry const& a, Entry const& b)
{
    return std::string_view(a.name) == b.name && a.value == b.value;
}

/// Scripts get one object for each enumerator, and can neither create nor delete any.
class NamedEnumerationInfo final : public OrbisFactoryClassInfo {
public:
    NamedEnumerationInfo(EnumerationRecord const& record, char const* text)
        : OrbisFactoryClassInfo(record.hostName, text),
          record_(record)
    {
    }

    void initializeClass(COSClass* cls) override { factory::publish(cls, record_); }
    void* createInstanceData() override { return nullptr; }
    bool destroyInstanceData(COSInterface*, void*) override { return false; }
    bool isHandle() const override { return true; }
    bool isEnumeration() const override { return true; }

private:
    EnumerationRecord const& record_;
};

} // namespace

namespace detail {

struct NamedEnumeration::Description {
    Description(std::string fullName, std::span<Entry const> given)
        : name(std::move(fullName)),
          vectorText(name + " vector"),
          entries(given.begin(), given.end()),
          byValue(entries)
    {
        std::ranges::stable_sort(byValue, {}, &Entry::value);
    }

    bool isSame(Description const& other) const
    {
        return name == other.name && std::ranges::equal(entries, other.entries, factory::isSame);
    }

    std::string name;
    std::string vectorText;
    std::vector<Entry> entries;
    std::vector<Entry> byValue;
    EnumerationRecord record{name.c_str(), entries, byValue};
};

NamedEnumeration::~NamedEnumeration()
{
    delete description_.load();
}

NamedEnumeration::Description const& NamedEnumeration::required() const
{
    Description const* const description = description_.load(std::memory_order_acquire);
    if (!description)
        throw std::invalid_argument("the enumeration " + cppName(type_) +
                                    " is not published: publish it in the same module");
    return *description;
}

EnumerationRecord const& NamedEnumeration::record() const
{
    return required().record;
}

char const* NamedEnumeration::vectorText() const
{
    return required().vectorText.c_str();
}

void NamedEnumeration::describe(std::string fullName, std::span<Entry const> entries)
{
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        if (!entry->name || !*entry->name || std::any_of(entries.begin(), entry, [&](Entry const& e) {
                return std::string_view(e.name) == entry->name;
            }))
            throw Exception("Each enumerator of " + cppName(type_) + " needs a name of its own.");
    auto description = std::make_unique<Description>(std::move(fullName), entries);
    Description* known = nullptr; // virtual machines on several threads may publish it at the same time
    if (description_.compare_exchange_strong(known, description.get(), std::memory_order_acq_rel))
        static_cast<void>(description.release());
    else if (!known->isSame(*description))
        throw Exception("The enumeration " + cppName(type_) + " cannot be published as \"" + description->name +
                        "\": it is \"" + known->name +
                        "\" in this program, with the enumerators that it was given there.");
}

void publishEnumeration(Module& module, NamedEnumeration& named, char const* name, std::vector<Entry> const& entries,
                        char const* text)
{
    named.describe(module.fullName() + '.' + name, entries);
    module.package().addClass(new NamedEnumerationInfo(named.record(), text));
}

} // namespace detail
} // namespace orbis::factory
