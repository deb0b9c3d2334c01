#pragma once

#include "libhv/hvArray.hpp"

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace orbis {

/// The kinds of native scalar that travel in a value record: `bool`, the floating types of 32 and 64 bits, and
/// integers of 8 to 64 bits.
template <class T>
concept COSScalar = std::same_as<T, bool> || std::same_as<T, float> || std::same_as<T, double> ||
                    (std::integral<T> && !std::same_as<T, char> && !std::same_as<T, wchar_t> &&
                     !std::same_as<T, char8_t> && !std::same_as<T, char16_t> && !std::same_as<T, char32_t>);

/// The host's tagged value record: empty, a native scalar, or a host array. The data type that goes with it says
/// which of them it holds. It owns nothing: whoever hands a value over says who gives its array back.
class COSValue {
public:
    COSValue() = default;

    /// Null gives an empty record.
    explicit COSValue(hvArray_tag* array) : kind_(array ? arrayKind : emptyKind) { payload_.array = array; }

    /// A scalar of the class that suits `T`.
    template <COSScalar T>
    explicit COSValue(T scalar) : kind_(classOf<T>())
    {
        *reinterpretPayload<T>(&payload_) = scalar;
    }

    /// A scalar of a class that is known when it is made, in the low bytes of `bits`.
    COSValue(hvClassID scalarClass, std::uint64_t bits) : payload_{.bits = bits}, kind_(scalarClass) {}

    bool isEmpty() const { return kind_ == emptyKind; } ///< neither a scalar nor an array
    bool isArray() const { return kind_ == arrayKind; } ///< false for null, which is empty

    /// True when it holds a scalar of just this class.
    bool isScalarOf(hvClassID scalarClass) const { return kind_ == scalarClass; }

    /// The class of the scalar, `hvUNKNOWN_CLASS` when the record holds none.
    hvClassID scalarClass() const { return isArray() ? hvUNKNOWN_CLASS : static_cast<hvClassID>(kind_); }

    /// The array; null when the record holds none.
    hvArray_tag* array() const
    {
        if (!isArray())
            return nullptr;
        if (!payload_.array)
            __builtin_unreachable(); // so that callers that test for null pay for one test
        return payload_.array;
    }

    /// The scalar. The record must hold one of exactly that kind; it is not tested here.
    template <COSScalar T>
    T scalar() const
    {
        return *reinterpretPayload<T>(&payload_);
    }

    /// The class of the scalars of a native type, by its width and signedness.
    template <COSScalar T>
    static constexpr hvClassID classOf();

private:
    static constexpr std::uint64_t emptyKind = hvUNKNOWN_CLASS;
    static constexpr std::uint64_t arrayKind = ~std::uint64_t{0};

    union Payload {
        hvArray_tag* array;
        std::uint64_t bits;
    };

    template <class T>
    struct Alias {
        using Type [[gnu::may_alias]] = T;
    };

    template <class T>
    static auto reinterpretPayload(Payload* payload)
    {
        return reinterpret_cast<typename Alias<T>::Type*>(payload);
    }

    template <class T>
    static auto reinterpretPayload(Payload const* payload)
    {
        return reinterpret_cast<typename Alias<T>::Type const*>(payload);
    }

    Payload payload_{.bits = 0};
    std::uint64_t kind_ = emptyKind; ///< the scalar's class, or `arrayKind`
};

template <COSScalar T>
constexpr hvClassID COSValue::classOf()
{
    if constexpr (std::same_as<T, bool>)
        return hvLOGICAL_CLASS;
    else if constexpr (std::same_as<T, double>)
        return hvDOUBLE_CLASS;
    else if constexpr (std::same_as<T, float>)
        return hvSINGLE_CLASS;
    else if constexpr (sizeof(T) == 1)
        return std::is_signed_v<T> ? hvINT8_CLASS : hvUINT8_CLASS;
    else if constexpr (sizeof(T) == 2)
        return std::is_signed_v<T> ? hvINT16_CLASS : hvUINT16_CLASS;
    else if constexpr (sizeof(T) == 4)
        return std::is_signed_v<T> ? hvINT32_CLASS : hvUINT32_CLASS;
    else
        return std::is_signed_v<T> ? hvINT64_CLASS : hvUINT64_CLASS;
}

} // namespace orbis
