#pragma once

#include "orbis/factory/base/extractString.hpp"
#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/host_extensions.hpp"
#include "libkwi18n/libkwi18n.hpp"

#include <filesystem>

namespace orbis::factory {

/// `std::filesystem::path`: a text. Where paths are bytes, they are UTF-8, and ill-formed parts of a result become
/// U+FFFD. A text with an embedded zero is refused.
class PathPolicy {};

template <>
class Marshaler<PathPolicy> : public detail::DataTypeName<Marshaler<PathPolicy>> {
    using Native = std::filesystem::path::string_type;
    static constexpr bool areBytes = sizeof(Native::value_type) == 1;

public:
    template <class Path>
    static void toHost(Path const& path, hvArray** out)
    {
        if constexpr (areBytes)
            *out = host_extensions::createText(fl::i18n::to_ustring(path.native()));
        else
            *out = host_extensions::createText(fl::ustring(path.native().begin(), path.native().end()));
    }

    template <class Path>
    static Path fromHost(hvArray* in)
    {
        fl::ustring const text = in ? extractString(in) : fl::ustring();
        if (text.find(u'\0') != text.npos)
            detail::throwNotConvertible("a path has no zero character");
        if constexpr (areBytes)
            return Path(fl::i18n::to_string(text));
        else
            return Path(Native(text.begin(), text.end()));
    }

    template <class Path>
    static constexpr char const* dataTypeText()
    {
        return "char vector";
    }
};

template <>
struct MarshalingPolicy<std::filesystem::path> {
    using Type = PathPolicy;
    static constexpr bool namesInput = true;
};

} // namespace orbis::factory
