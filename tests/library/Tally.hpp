#pragma once

#include "library/publishClass.hpp"

/// A native class that counts how many of it are alive.
class Tally {
public:
    Tally() { ++alive; }
    explicit Tally(int start) : value_(start) { ++alive; }
    Tally(Tally const& other) : value_(other.value_) { ++alive; }
    Tally& operator=(Tally const&) = default;
    virtual ~Tally() { --alive; }

    int add(int a, int b)
    {
        value_ += a + b;
        return value_;
    }
    int value() const noexcept { return value_; }
    void reset() { value_ = 0; }
    Tally* self() { return this; }
    double mean(float x, double y, bool twice) const { return (x + y) / 2 * (twice ? 2 : 1); }

    inline static int alive = 0;

private:
    int value_ = 0;
};

PUBLISHED_IN_TESTS(Tally)

inline int plus(int a, int b)
{
    return a + b;
}

inline int valueOrMinusOne(Tally const* tally)
{
    return tally ? tally->value() : -1;
}

struct TallyInfo {
    static void describe(orbis::factory::ClassDescriber<Tally>& tally)
    {
        tally.constructor()
            .constructor<int>("start")
            .method("add", &Tally::add, "a, b")
            .method("value", &Tally::value, orbis::factory::MethodAttributes::Sealed())
            .method("reset", &Tally::reset)
            .method("self", &Tally::self)
            .method("mean", &Tally::mean)
            .method("forced", &valueOrMinusOne)
            .method(
                "doubled", [](Tally* self, int by) { return self->value() * by; }, "tally, by")
            .staticMethod("plus", &plus, "a, b")
            .staticMethod("optional", &valueOrMinusOne);
    }

    static void publishIn(std::string const& package)
    {
        orbis::factory::registerOrbisPackage(
            package, [](orbis::COSPackage* made) { made->addClass(new Described<Tally>(&describe)); });
    }
};
