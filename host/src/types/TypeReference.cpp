#include "types/TypeReference.hpp"

#include "names/NameMap.hpp"

#include "host_extensions/numericClasses.hpp"

#include <string_view>

namespace velmara {

namespace {

struct BuiltIn {
    TypeKind kind = TypeKind::Named;
    hvClassID scalarClass = hvUNKNOWN_CLASS;
};

BuiltIn const* findBuiltIn(Name name)
{
    static NameMap<BuiltIn> const table = [] {
        NameMap<BuiltIn> types;
        types[intern("void")] = {TypeKind::Void};
        types[anyTypeName()] = {TypeKind::Any};
        types[intern("char")] = {TypeKind::Text};
        types[intern("char vector")] = {TypeKind::Text};
        types[intern("function")] = {TypeKind::Function};
        for (orbis::host_extensions::NumericClass const& numeric : orbis::host_extensions::numericClasses) {
            types[intern(numeric.scalarType)] = {TypeKind::Scalar, numeric.classID};
            types[intern(numeric.vectorType)] = {TypeKind::Elements, numeric.classID};
        }
        return types;
    }();
    return table.find(name);
}

/// The name before the suffix; null for names without it.
Name withoutSuffix(Name name, std::string_view suffix)
{
    std::string_view const text = name->view();
    return text.ends_with(suffix) ? intern(text.substr(0, text.size() - suffix.size())) : nullptr;
}

} // namespace

TypeReference::TypeReference(Name typeName) : name(typeName)
{
    if (BuiltIn const* const builtIn = findBuiltIn(name)) {
        kind = builtIn->kind;
        scalarClass = builtIn->scalarClass;
        if (kind == TypeKind::Scalar)
            scalar = ScalarReader(scalarClass);
    } else if (Name const valueName = withoutSuffix(name, " or empty")) {
        kind = TypeKind::Optional;
        value = std::make_shared<TypeReference const>(valueName);
    } else if (name->view().starts_with("function(")) {
        kind = TypeKind::Function;
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
