#include "orbis/factory.hpp"
#include "orbis/factory/types/function.hpp"

#include <functional>
#include <stdexcept>
#include <utility>

/// Reports each reading.
class Thermometer {
public:
    void onReading(std::optional<std::function<void(double)>> listener)
    {
        listener_ = listener ? std::move(*listener) : nullptr;
    }

    void read(double celsius)
    {
        auto const listener = listener_; // which may replace itself
        if (listener)
            listener(celsius);
    }

private:
    std::function<void(double)> listener_;
};

/// Halves an interval at whose ends the function has different signs.
double findRoot(std::function<double(double)> const& function, double low, double high)
{
    bool const rises = function(low) < 0;
    if ((function(high) < 0) == rises)
        throw std::invalid_argument("the function has the same sign at both ends");
    while (high - low > 1e-9) {
        double const middle = (low + high) / 2;
        ((function(middle) < 0) == rises ? low : high) = middle;
    }
    return low;
}

std::function<double(double)> line(double slope, double offset)
{
    return [=](double x) { return slope * x + offset; };
}

void publishModule(orbis::factory::Module& callbacks)
{
    callbacks.publish<Thermometer>("Thermometer", "Reports each reading")
        .constructor<>()
        .method("onReading", &Thermometer::onReading, "listener")
        .method("read", &Thermometer::read, "celsius");
    callbacks.function("findRoot", &findRoot, "function, low, high");
    callbacks.function("line", &line, "slope, offset");
}
