#include "types/TypeReference.hpp"

#include "names/NameMap.hpp"

#include <string_view>

namespace velmara {

namespace {

struct BuiltInType {
    std::string_view name;
    TypeKind kind;
    hvClassID scalarClass = hvUNKNOWN_CLASS;
};

constexpr BuiltInType builtInTypes[] = {
    {"void", TypeKind::Void},
    {"any", TypeKind::Any},
    {"char", TypeKind::Text},
    {"char vector", TypeKind::Text},
    {"double scalar", TypeKind::Scalar, hvDOUBLE_CLASS},
    {"single scalar", TypeKind::Scalar, hvSINGLE_CLASS},
    {"int8 scalar", TypeKind::Scalar, hvINT8_CLASS},
    {"uint8 scalar", TypeKind::Scalar, hvUINT8_CLASS},
    {"int16 scalar", TypeKind::Scalar, hvINT16_CLASS},
    {"uint16 scalar", TypeKind::Scalar, hvUINT16_CLASS},
    {"int32 scalar", TypeKind::Scalar, hvINT32_CLASS},
    {"uint32 scalar", TypeKind::Scalar, hvUINT32_CLASS},
    {"int64 scalar", TypeKind::Scalar, hvINT64_CLASS},
    {"uint64 scalar", TypeKind::Scalar, hvUINT64_CLASS},
    {"logical scalar", TypeKind::Scalar, hvLOGICAL_CLASS},
    {"double vector", TypeKind::Elements, hvDOUBLE_CLASS},
    {"single vector", TypeKind::Elements, hvSINGLE_CLASS},
    {"int8 vector", TypeKind::Elements, hvINT8_CLASS},
    {"uint8 vector", TypeKind::Elements, hvUINT8_CLASS},
    {"int16 vector", TypeKind::Elements, hvINT16_CLASS},
    {"uint16 vector", TypeKind::Elements, hvUINT16_CLASS},
    {"int32 vector", TypeKind::Elements, hvINT32_CLASS},
    {"uint32 vector", TypeKind::Elements, hvUINT32_CLASS},
    {"int64 vector", TypeKind::Elements, hvINT64_CLASS},
    {"uint64 vector", TypeKind::Elements, hvUINT64_CLASS},
    {"logical vector", TypeKind::Elements, hvLOGICAL_CLASS},
};

BuiltInType const* findBuiltIn(Name name)
{
    static NameMap<BuiltInType const*> const table = [] {
        NameMap<BuiltInType const*> made;
        for (BuiltInType const& type : builtInTypes)
            made[intern(type.name)] = &type;
        return made;
    }();
    BuiltInType const* const* const found = table.find(name);
    return found ? *found : nullptr;
}

/// The name before the suffix; null when it does not end so.
Name withoutSuffix(Name name, std::string_view suffix)
{
    std::string_view const text = name->view();
    return text.ends_with(suffix) ? intern(text.substr(0, text.size() - suffix.size())) : nullptr;
}

} // namespace

TypeReference::TypeReference(Name typeName) : name(typeName)
{
    if (BuiltInType const* const builtIn = findBuiltIn(name)) {
        kind = builtIn->kind;
        scalarClass = builtIn->scalarClass;
        if (kind == TypeKind::Scalar)
            scalar = ScalarReader(scalarClass);
    } else if (Name const valueName = withoutSuffix(name, " or empty")) {
        kind = TypeKind::Optional;
        value = std::make_shared<TypeReference const>(valueName);
    } else {
        element = withoutSuffix(name, " vector");
    }
}

Name anyTypeName()
{
    static Name const name = intern("any");
    return name;
}

} // namespace velmara
