#include "system/TypeReference.hpp"

#include "system/NameMap.hpp"

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

} // namespace

TypeReference::TypeReference(Name typeName) : name(typeName)
{
    constexpr std::string_view suffix = " vector";
    if (BuiltInType const* const builtIn = findBuiltIn(name)) {
        kind = builtIn->kind;
        scalarClass = builtIn->scalarClass;
        if (kind == TypeKind::Scalar)
            scalar = ScalarReader(scalarClass);
    } else if (name->view().ends_with(suffix)) {
        element = intern(name->view().substr(0, name->length - suffix.size()));
    }
}

Name anyTypeName()
{
    static Name const name = intern("any");
    return name;
}

} // namespace velmara
