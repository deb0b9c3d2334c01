#include "orbis/factory/Module.hpp"

struct Adder {
    explicit Adder(double start) : total(start) {}
    double getSum(double a, double b)
    {
        total += a + b;
        return a + b;
    }
    double total;
};

void publishModule(orbis::factory::Module& calc)
{
    calc.publish<Adder>("Adder", "Adds numbers and keeps their total")
        .constructor<double>("start")
        .method("getSum", &Adder::getSum, "a, b", "The sum of both; it counts in the total")
        .property("total", &Adder::total, "Of all sums so far");
}
