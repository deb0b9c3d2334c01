#pragma once

#include "orbis/factory/base/typeName.hpp"

#include <string_view>

namespace orbis::factory::detail {

/// Returns whether the name of `T` begins with one of the texts.
template <class T, class... Texts>
consteval bool isNamed(Texts... texts)
{
    return (typeName<T>().starts_with(texts) || ...);
}

/// Stops compilation with a sentence that names the header when `T`, which has no policy, is of a library and has one
/// there. The types are told by their names, because their own headers are heavy. Returns whether that is so.
template <class T>
consteval bool lacksHeader()
{
    constexpr bool isPair = isNamed<T>("std::pair<", "std::tuple<");
    static_assert(!isPair, "Pairs and tuples have a header of their own: include orbis/factory/types/pair.hpp.");
    constexpr bool isMap = isNamed<T>("std::map<", "std::unordered_map<");
    static_assert(!isMap, "Maps have a header of their own: include orbis/factory/types/map.hpp.");
    constexpr bool isArray = isNamed<T>("std::array<");
    static_assert(!isArray, "std::array has a header of its own: include orbis/factory/types/array.hpp.");
    constexpr bool isSet = isNamed<T>("std::set<", "std::unordered_set<");
    static_assert(!isSet, "Sets have a header of their own: include orbis/factory/types/set.hpp.");
    constexpr bool isVariant = isNamed<T>("std::variant<", "std::monostate");
    static_assert(!isVariant, "std::variant has a header of its own: include orbis/factory/types/variant.hpp.");
    constexpr bool isTime = isNamed<T>("std::chrono::");
    static_assert(!isTime, "Durations and times of the system clock have a header of their own: include "
                           "orbis/factory/types/chrono.hpp.");
    constexpr bool isPath = isNamed<T>("std::filesystem::");
    static_assert(!isPath, "Paths have a header of their own: include orbis/factory/types/path.hpp.");
    constexpr bool isWide = isNamed<T>("std::__cxx11::basic_string<wchar_t", "std::basic_string<wchar_t");
    static_assert(!isWide, "std::wstring has a header of its own: include orbis/factory/types/wstring.hpp.");
    constexpr bool isComplex = isNamed<T>("std::complex<", "std::vector<std::complex<");
    static_assert(!isComplex, "Complex numbers have a header of their own: include orbis/factory/types/complex.hpp.");
    constexpr bool isVector = isNamed<T>("std::vector<") && !isComplex;
    constexpr bool isOfObjects = isNamed<T>("std::vector<std::unique_ptr<", "std::vector<std::shared_ptr<") ||
                                 (isVector && !isNamed<T>("std::vector<std::"));
    static_assert(!isOfObjects, "Vectors of objects have a header of their own: include "
                                "orbis/factory/types/objectValues.hpp.");
    static_assert(!isVector || isOfObjects, "Vectors of vectors and of other types of the standard library have a "
                                            "header of their own: include orbis/factory/types/nestedVectors.hpp.");
    constexpr bool isMatrix = isNamed<T>("Eigen::Matrix<", "Eigen::Array<", "Eigen::Map<", "Eigen::Ref<");
    static_assert(!isMatrix, "Eigen's matrices have a header of their own: include orbis/factory/types/eigen.hpp.");
    constexpr bool isFunction = isNamed<T>("std::function<");
    static_assert(!isFunction, "std::function has a header of its own: include orbis/factory/types/function.hpp.");
    return isPair || isMap || isArray || isSet || isVariant || isTime || isPath || isWide || isComplex || isVector ||
           isMatrix || isFunction;
}

} // namespace orbis::factory::detail
