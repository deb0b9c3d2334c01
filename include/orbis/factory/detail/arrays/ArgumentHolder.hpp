#pragma once

namespace orbis::factory::detail {

/// Base of the holders of native arguments (`Marshaler<Policy>::FromM<T>`). A holder lives for one call, is the sole
/// owner of whatever its conversion allocated, and returns the argument from `value()`.
class ArgumentHolder {
public:
    ArgumentHolder() = default;
    ArgumentHolder(ArgumentHolder const&) = delete;
    ArgumentHolder& operator=(ArgumentHolder const&) = delete;
    virtual ~ArgumentHolder() = default;
};

/// The holder of an argument that owns its memory.
template <class T>
class ValueHolder : public ArgumentHolder {
public:
    explicit ValueHolder(T&& value) : value_(static_cast<T&&>(value)) {}

    T& value() { return value_; }

private:
    T value_;
};

} // namespace orbis::factory::detail
