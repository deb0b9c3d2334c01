#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/types/StringPolicy.hpp"
#include "orbis/factory/types/UnicodeStringPolicy.hpp"

#include <string_view>

namespace orbis::factory {

/// `std::string_view` (UTF-8) and `std::u16string_view`, marshaled like the corresponding strings. The text of an
/// argument is freed after the call: a function that keeps it must copy it. The text of a result is copied before the
/// call returns.
class StringViewPolicy {};

template <>
class Marshaler<StringViewPolicy> : public detail::DataTypeName<Marshaler<StringViewPolicy>> {
    template <class View>
    using Text = std::basic_string<typename View::value_type>;

    template <class View>
    using TextMarshaler = detail::MarshalerOf<Text<View>>;

public:
    template <class View>
    class FromM final : public detail::ArgumentHolder {
    public:
        explicit FromM(hvArray* in)
            : text_(TextMarshaler<View>::template fromHost<Text<View>>(in)),
              view_(text_.value())
        {
        }

        View& value() { return view_; }

    private:
        typename TextMarshaler<View>::template FromM<Text<View>> text_;
        View view_;
    };

    template <class View>
    static void toHost(View value, hvArray** out)
    {
        TextMarshaler<View>::template toHost<Text<View>>(Text<View>(value), out);
    }

    template <class View>
    static FromM<View> fromHost(hvArray* in)
    {
        return FromM<View>(in);
    }

    template <class View>
    static constexpr char const* dataTypeText()
    {
        return TextMarshaler<View>::template dataTypeText<Text<View>>();
    }

    /// Does not own the text.
    template <class View>
    static consteval bool isView()
    {
        return true;
    }
};

template <>
struct MarshalingPolicy<std::string_view> {
    using Type = StringViewPolicy;
};

template <>
struct MarshalingPolicy<std::u16string_view> {
    using Type = StringViewPolicy;
};

} // namespace orbis::factory
