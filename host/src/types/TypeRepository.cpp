#include "types/TypeRepository.hpp"

#include "errors/hostError.hpp"
#include "types/BuiltInType.hpp"
#include "types/UnicodeStringType.hpp"

#include <utility>

namespace velmara {

TypeRepository::TypeRepository(ClassQuery isClass) : isClass_(isClass)
{
    Name const unicodeString = intern("unicodeString");
    add(std::unique_ptr<orbis::COSDataType>(createUnicodeStringType()));
    addConversion(anyTypeName(), unicodeString,
                  std::unique_ptr<orbis::COSTypeConversion>(createUnicodeStringConversion()));
    types_[unicodeString].isPermanent = true;
}

bool TypeRepository::isPermanent(Name name) const
{
    Entry const* const entry = types_.find(name);
    return entry && entry->isPermanent;
}

orbis::COSDataType* TypeRepository::findRegistered(Name name) const
{
    Entry const* const entry = types_.find(name);
    return entry && entry->isRegistered ? entry->type.get() : nullptr;
}

orbis::COSDataType* TypeRepository::obtain(Name name)
{
    if (Entry const* const entry = types_.find(name))
        return entry->type.get();
    TypeReference const type(name);
    if (type.kind == TypeKind::Named && !isClass_(type.element ? type.element : type.name))
        return nullptr;
    if (type.kind == TypeKind::Optional && !obtain(type.value->name))
        return nullptr;
    if (Entry const* const entry = types_.find(name)) // populating packages may have registered it
        return entry->type.get();
    Held created(createBuiltInType(type));
    created->getReference();
    Entry& entry = types_[name];
    entry.type = std::move(created);
    return entry.type.get();
}

void TypeRepository::add(std::unique_ptr<orbis::COSDataType> type)
{
    char const* const typeName = type->scalarTypeName();
    if (!typeName || !*typeName)
        throwHostError("VELMARA:type", "name");
    Name const name = intern(typeName);
    if (TypeReference(name).kind != TypeKind::Named || types_.find(name))
        throwHostError("VELMARA:type", "duplicate", {name->string()});
    Entry& entry = types_[name];
    type->getReference();
    entry = {Held(type.release()), true};
}

void TypeRepository::remove(Name name)
{
    Entry* const entry = types_.find(name);
    if (!entry || !entry->isRegistered || entry->isPermanent)
        return;
    Held const removed = std::move(entry->type); // its destructor runs foreign code: the table is in order before
    types_.erase(name);
}

void TypeRepository::addConversion(Name from, Name to, std::unique_ptr<orbis::COSTypeConversion> conversion)
{
    if (findConversion(from, to))
        throwHostError("VELMARA:type", "duplicateConversion", {from->string(), to->string()});
    conversions_[to][from] = std::move(conversion);
}

void TypeRepository::removeConversion(Name from, Name to)
{
    auto* const bySource = conversions_.find(to);
    auto* const found = bySource ? bySource->find(from) : nullptr;
    if (!found || (from == anyTypeName() && isPermanent(to)))
        return;
    auto const removed = std::move(*found);
    bySource->erase(from);
}

orbis::COSTypeConversion* TypeRepository::findConversion(Name from, Name to) const
{
    auto const* const bySource = conversions_.find(to);
    auto const* const found = bySource ? bySource->find(from) : nullptr;
    return found ? found->get() : nullptr;
}

void TypeRepository::forgetClass(Name className) noexcept
{
    auto const isOfClass = [className](Name name, Entry const& entry) {
        std::string_view const type = name->view();
        if (entry.isRegistered || !type.starts_with(className->view()))
            return false;
        std::string_view const suffix = type.substr(className->view().size());
        return suffix.empty() || suffix == " vector" || suffix == " or empty";
    };
    while (Name const name = types_.findIf(isOfClass)) {
        Held const removed = std::move(types_.find(name)->type);
        types_.erase(name);
    }
}

void TypeRepository::clear()
{
    while (!conversions_.empty())
        std::exchange(conversions_, {});
    while (!types_.empty())
        std::exchange(types_, {});
}

} // namespace velmara
