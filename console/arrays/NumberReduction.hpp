#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace velmara::console {

/// What many numbers of type `T` come to. Each of these is default-constructed for a row, column or array, and has
/// `add(number, position)` called for its elements: false when the rest cannot change the result any more.
/// `store(result)` returns false when the result does not fit its type.

/// Integers are added exactly, and come to 64 bits; so do logicals, of which the true ones are counted.
template <class T>
class Sum {
public:
    using Result = std::conditional_t<
        std::floating_point<T>, T,
        std::conditional_t<std::unsigned_integral<T> && !std::same_as<T, bool>, std::uint64_t, std::int64_t>>;

    bool add(T number, std::size_t /*position*/)
    {
        total_ += static_cast<Total>(number);
        return true;
    }

    bool store(Result& result) const
    {
        result = static_cast<Result>(total_);
        return std::floating_point<T> || static_cast<Total>(result) == total_;
    }

    double total() const { return static_cast<double>(total_); }

private:
    // Of smaller integers it takes 2^32 elements to exceed 64 bits.
    using Total = std::conditional_t<std::floating_point<T>, double,
                                     std::conditional_t<sizeof(T) == sizeof(std::int64_t), __int128, std::int64_t>>;

    Total total_ = 0;
};

template <class T>
class Mean {
public:
    using Result = std::conditional_t<std::same_as<T, float>, float, double>;

    bool add(T number, std::size_t position)
    {
        ++count_;
        return sum_.add(number, position);
    }

    bool store(Result& result) const
    {
        result = static_cast<Result>(count_ == 0 ? std::numeric_limits<double>::quiet_NaN()
                                                 : sum_.total() / static_cast<double>(count_));
        return true;
    }

private:
    Sum<T> sum_;
    std::size_t count_ = 0;
};

/// The least number, or the greatest, and the first position where it is. NaN only when there is nothing else.
template <class T, bool IsGreatest>
class Extreme {
public:
    using Result = T;

    bool add(T number, std::size_t position)
    {
        bool const isBetter = IsGreatest ? number > number_ : number < number_;
        if (isBetter || !hasNumber_) [[unlikely]]
            take(number, position);
        return true;
    }

    bool store(Result& result) const
    {
        result = number_;
        return true;
    }

    std::size_t position() const { return position_; }

private:
    void take(T number, std::size_t position)
    {
        hasNumber_ = number == number; // NOLINT(misc-redundant-expression): not NaN
        if (!hasNumber_ && position != 0)
            return;
        number_ = number;
        position_ = position;
    }

    T number_ = T();
    std::size_t position_ = 0;
    bool hasNumber_ = false;
};

template <class T>
using Least = Extreme<T, false>;

template <class T>
using Greatest = Extreme<T, true>;

/// Whether any number, or whether all, differ from zero.
template <class T, bool IsAll>
class Quantifier {
public:
    using Result = bool;

    bool add(T number, std::size_t /*position*/)
    {
        isDecided_ = isDecided_ || (number != T()) != IsAll;
        return !isDecided_;
    }

    bool store(bool& result) const
    {
        result = isDecided_ != IsAll;
        return true;
    }

private:
    bool isDecided_ = false;
};

template <class T>
using Any = Quantifier<T, false>;

template <class T>
using All = Quantifier<T, true>;

} // namespace velmara::console
