#pragma once

namespace orbis::factory::detail {

/// Base of the holders of native arguments (`Marshaler<Policy>::FromM<T>`): each lives for one call, is the only owner
/// of what its conversion allocated, and gives the argument as `value()`.
class ArgumentHolder {
public:
    ArgumentHolder() = default;
    ArgumentHolder(ArgumentHolder const&) = delete;
    ArgumentHolder& operator=(ArgumentHolder const&) = delete;
    virtual ~ArgumentHolder() = default;
};

/// The holder of an argument that owns its own memory.
template <class T>
class ValueHolder : public ArgumentHolder {
public:
    explicit ValueHolder(T&& value) : value_(static_cast<T&&>(value)) {}

    T& value() { return value_; }

private:
    T value_;
};

} // namespace orbis::factory::detail
