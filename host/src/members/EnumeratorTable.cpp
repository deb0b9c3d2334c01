#include "members/EnumeratorTable.hpp"

#include "errors/hostError.hpp"
#include "objects/Object.hpp"

#include "orbis/objectArrays.hpp"

#include <algorithm>

namespace velmara {

void EnumeratorTable::add(Name className, std::string_view name, std::int64_t value)
{
    std::string const cls(className->view());
    if (name.empty())
        throwHostError("VELMARA:enumeration", "name", {cls});
    if (byName_.findText(name))
        throwHostError("VELMARA:enumeration", "duplicate", {cls, std::string(name)});
    auto const position = positionOf(value);
    bool const isNew = position == byValue_.end() || enumerators_[*position].value != value;
    if (isNew && enumerators_.size() == Object::maxEnumerators)
        throwHostError("VELMARA:enumeration", "tooMany", {cls, std::to_string(Object::maxEnumerators)});
    std::size_t const number = isNew ? enumerators_.size() : *position;
    Name const interned = intern(name);
    if (isNew) {
        byValue_.insert(position, number);
        enumerators_.push_back({{interned->text, value, entries_.size()}, nullptr});
    }
    byName_[interned] = number;
    entries_.push_back({interned, value});
    longestName_ = std::max(longestName_, name.size());
}

void EnumeratorTable::createObjects(ObjectClass& cls)
{
    for (std::size_t i = 0; i < enumerators_.size(); ++i)
        enumerators_[i].object.reset(
            orbis::omCreateORBISScalar(orbis::COSInterfacePtr(&Object::createEnumerator(cls, i))));
}

std::vector<std::size_t>::const_iterator EnumeratorTable::positionOf(std::int64_t value) const
{
    return std::ranges::lower_bound(byValue_, value, {}, [this](std::size_t i) { return enumerators_[i].value; });
}

Enumerator const* EnumeratorTable::find(std::int64_t value) const
{
    auto const position = positionOf(value);
    return position != byValue_.end() && enumerators_[*position].value == value ? &enumerators_[*position] : nullptr;
}

std::string EnumeratorTable::names() const
{
    std::string text;
    for (Entry const& entry : entries_)
        text.append(text.empty() ? "" : ", ").append(entry.name->view());
    return text;
}

} // namespace velmara
