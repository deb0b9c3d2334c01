#pragma once

#include <string_view>

namespace orbis::factory::detail {

/// Returns the function's own signature, which names `T`.
template <class T>
consteval std::string_view signatureNaming()
{
    return __PRETTY_FUNCTION__;
}

/// The name of a type in C++, as the compiler writes it.
template <class T>
consteval std::string_view typeName()
{
    constexpr std::string_view intName = signatureNaming<int>();
    constexpr std::size_t before = intName.find("int");
    constexpr std::size_t after = intName.size() - before - 3;
    std::string_view const name = signatureNaming<T>();
    return name.substr(before, name.size() - before - after);
}

template <class T>
inline constexpr bool isOfStandardLibrary = typeName<T>().starts_with("std::") || typeName<T>().starts_with("boost::");

} // namespace orbis::factory::detail
