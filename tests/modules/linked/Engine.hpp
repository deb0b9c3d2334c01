#pragma once

/// Native classes that one module publishes and another one uses.
struct Machine {
    virtual ~Machine() = default;
    int serial = 7;
};

struct Engine : Machine {
    explicit Engine(double given = 70) : power(given) {}
    virtual char const* kind() const { return "engine"; }
    double power;
};
