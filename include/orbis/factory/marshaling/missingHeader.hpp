#pragma once

#include "orbis/factory/base/refusals.hpp"
#include "orbis/factory/base/typeName.hpp"

#include <string_view>

namespace orbis::factory::detail {

/// Returns whether the name of `T` begins with one of the texts.
template <class T, class... Texts>
consteval bool isNamed(Texts... texts)
{
    return (typeName<T>().starts_with(texts) || ...);
}

/// Returns the refusal that names the header in which the policy of `T` is, a type of a library that has none here;
/// `None` for other types. The types are told by their names, because their own headers are heavy.
template <class T>
consteval Refusal missingHeader()
{
    using enum Refusal;
    if (isNamed<T>("std::pair<", "std::tuple<"))
        return PairHeader;
    if (isNamed<T>("std::map<", "std::unordered_map<"))
        return MapHeader;
    if (isNamed<T>("std::array<"))
        return ArrayHeader;
    if (isNamed<T>("std::set<", "std::unordered_set<"))
        return SetHeader;
    if (isNamed<T>("std::variant<", "std::monostate"))
        return VariantHeader;
    if (isNamed<T>("std::chrono::"))
        return TimeHeader;
    if (isNamed<T>("std::filesystem::"))
        return PathHeader;
    if (isNamed<T>("std::__cxx11::basic_string<wchar_t", "std::basic_string<wchar_t"))
        return WideHeader;
    if (isNamed<T>("std::complex<", "std::vector<std::complex<"))
        return ComplexHeader;
    if (isNamed<T>("std::vector<"))
        return isNamed<T>("std::vector<std::") &&
                       !isNamed<T>("std::vector<std::unique_ptr<", "std::vector<std::shared_ptr<")
                   ? NestedHeader
                   : ObjectsHeader;
    if (isNamed<T>("Eigen::Matrix<", "Eigen::Array<", "Eigen::Map<", "Eigen::Ref<"))
        return EigenHeader;
    return isNamed<T>("std::function<") ? FunctionHeader : None;
}

} // namespace orbis::factory::detail
