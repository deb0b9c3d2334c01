#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/NewArray.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/detail/arrays/numericArrays.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

#include <complex>
#include <string>
#include <vector>

namespace orbis::factory {

/// `std::complex<float>` and `std::complex<double>`, and vectors of them: an array of two columns, the real and the
/// imaginary parts, with a row for each number. From the host it also takes one column, of real numbers.
class ComplexPolicy {};

template <>
class Marshaler<ComplexPolicy> : public detail::DataTypeName<Marshaler<ComplexPolicy>> {
    template <class T>
    struct Parts {
        using Real = typename T::value_type;
        static constexpr bool isVector = false;
    };

    template <class R>
    struct Parts<std::vector<std::complex<R>>> {
        using Real = R;
        static constexpr bool isVector = true;
    };

    template <class T>
    using Real = typename Parts<T>::Real;

public:
    template <class T>
    static void toHost(T const& value, hvArray** out)
    {
        std::size_t count = 1;
        std::complex<Real<T>> const* numbers = nullptr;
        if constexpr (Parts<T>::isVector) {
            count = value.size();
            numbers = value.data();
        } else {
            numbers = &value;
        }
        *out = host_extensions::createMatrix(count, 2, COSValue::classOf<Real<T>>());
        auto* const parts = static_cast<Real<T>*>(host_extensions::getWritableData(*out));
        for (std::size_t i = 0; i < count; ++i) {
            parts[i] = numbers[i].real();
            parts[count + i] = numbers[i].imag();
        }
    }

    template <class T>
    static T fromHost(hvArray_tag const* in)
    {
        Real<T> const* const parts = detail::elementsOf<Real<T>>(in).data();
        std::size_t const elements = in ? in->get_number_of_elements() : 0;
        std::size_t const count = elements == 0 ? 0 : in->get_dimensions()[0];
        if (elements != count && elements != 2 * count)
            detail::throwNotConvertible("needs two columns, the real and the imaginary parts, not " +
                                        std::to_string(elements / count));
        auto const number = [&](std::size_t i) {
            return std::complex<Real<T>>(parts[i], elements == count ? 0 : parts[count + i]);
        };
        if constexpr (Parts<T>::isVector) {
            T numbers;
            numbers.reserve(count);
            for (std::size_t i = 0; i < count; ++i)
                numbers.push_back(number(i));
            return numbers;
        } else {
            if (count != 1)
                detail::throwNotConvertible("needs one complex number, not " + std::to_string(count));
            return number(0);
        }
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return host_extensions::numericClassOf<Real<T>>.vectorType;
    }
};

template <>
struct MarshalingPolicy<std::complex<float>> {
    using Type = ComplexPolicy;
    static constexpr bool namesInput = true;
};

template <>
struct MarshalingPolicy<std::complex<double>> {
    using Type = ComplexPolicy;
    static constexpr bool namesInput = true;
};

template <class R>
    requires requires { typename MarshalingPolicy<std::complex<R>>::Type; }
struct MarshalingPolicy<std::vector<std::complex<R>>> {
    using Type = ComplexPolicy;
    static constexpr bool namesInput = true;
};

} // namespace orbis::factory
