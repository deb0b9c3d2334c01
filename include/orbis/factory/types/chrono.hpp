#pragma once

#include "orbis/factory/detail/arrays/DataTypeName.hpp"
#include "orbis/factory/detail/arrays/notConvertible.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSValue.hpp"

#include <chrono>
#include <cmath>
#include <concepts>
#include <limits>
#include <string>

namespace orbis::factory {

/// `std::chrono` durations, in seconds, and time points of the system clock, in seconds since 1970-01-01 UTC: a double.
/// From the host, whole ticks of a second or more take whole numbers of them only; for shorter ones the number is
/// rounded to the nearest tick. What is out of their range is refused.
class ChronoPolicy {};

template <>
class Marshaler<ChronoPolicy> : public detail::DataTypeName<Marshaler<ChronoPolicy>> {
    template <class T>
    struct Parts {
        using Duration = T;
        static Duration durationOf(T value) { return value; }
    };

    template <class Clock, class D>
    struct Parts<std::chrono::time_point<Clock, D>> {
        using Duration = D;
        static Duration durationOf(std::chrono::time_point<Clock, D> value) { return value.time_since_epoch(); }
    };

public:
    template <class T>
    static void toHost(T const& value, COSValue* out)
    {
        using Period = typename Parts<T>::Duration::period;
        auto const ticks = static_cast<long double>(Parts<T>::durationOf(value).count());
        *out = COSValue(static_cast<double>(ticks * Period::num / Period::den));
    }

    template <class T>
    static T fromHost(COSValue const& in)
    {
        using Duration = typename Parts<T>::Duration;
        return T(Duration(ticksOf<typename Duration::rep, typename Duration::period>(in.scalar<double>())));
    }

    template <class T>
    static constexpr char const* dataTypeText()
    {
        return "double scalar";
    }

private:
    template <class Rep, class Period>
    static Rep ticksOf(double seconds)
    {
        long double const ticks = static_cast<long double>(seconds) * Period::den / Period::num;
        if constexpr (std::floating_point<Rep>) {
            return static_cast<Rep>(ticks);
        } else {
            constexpr bool isLong = Period::num >= Period::den;
            long double const whole = std::round(ticks);
            if (isLong && std::isfinite(seconds) && whole != ticks)
                detail::throwNotConvertible("needs a whole number of units of " +
                                            std::to_string(Period::num / Period::den) + " s, not " +
                                            std::to_string(seconds) + " s");
            // Both bounds are powers of two, so they are exact; a NaN compares false.
            auto const lowest = static_cast<long double>(std::numeric_limits<Rep>::min());
            long double const beyond = std::ldexp(1.0L, std::numeric_limits<Rep>::digits);
            if (!(whole >= lowest && whole < beyond))
                detail::throwNotConvertible(std::to_string(seconds) + " s is no duration of this type");
            return static_cast<Rep>(whole);
        }
    }
};

template <class Rep, class Period>
struct MarshalingPolicy<std::chrono::duration<Rep, Period>> {
    using Type = ChronoPolicy;
    static constexpr bool namesInput = true;
};

template <class D>
struct MarshalingPolicy<std::chrono::time_point<std::chrono::system_clock, D>> {
    using Type = ChronoPolicy;
    static constexpr bool namesInput = true;
};

} // namespace orbis::factory
