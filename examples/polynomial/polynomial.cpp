#include "orbis/factory.hpp"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// A polynomial by its coefficients, that of the constant term first.
class Polynomial {
public:
    explicit Polynomial(std::vector<double> coefficients) : coefficients_(std::move(coefficients)) {}

    friend Polynomial operator+(Polynomial const& a, Polynomial const& b)
    {
        Polynomial sum = a;
        sum.coefficients_.resize(std::max(a.coefficients_.size(), b.coefficients_.size()));
        for (std::size_t i = 0; i < b.coefficients_.size(); ++i)
            sum.coefficients_[i] += b.coefficients_[i];
        return sum;
    }

    Polynomial operator*(double factor) const
    {
        Polynomial product = *this;
        for (double& coefficient : product.coefficients_)
            coefficient *= factor;
        return product;
    }

    bool operator==(Polynomial const&) const = default;

    double operator()(double x) const
    {
        double value = 0;
        for (std::size_t i = coefficients_.size(); i-- > 0;)
            value = value * x + coefficients_[i];
        return value;
    }

    int size() const { return static_cast<int>(coefficients_.size()); }
    double coefficient(int number) const { return coefficients_.at(index(number)); }
    void setCoefficient(int number, double value) { coefficients_.at(index(number)) = value; }

    std::string text() const
    {
        std::string sum;
        for (std::size_t i = 0; i < coefficients_.size(); ++i)
            sum += (i ? " + " : "") + std::to_string(static_cast<int>(coefficients_[i])) + (i ? "x^" : "") +
                   (i ? std::to_string(i) : "");
        return sum;
    }

private:
    static std::size_t index(int number)
    {
        if (number < 1)
            throw std::out_of_range("coefficients are counted from 1");
        return static_cast<std::size_t>(number - 1);
    }

    std::vector<double> coefficients_;
};

void publishModule(orbis::factory::Module& polynomial)
{
    polynomial.publish<Polynomial>("Polynomial", "A polynomial in x")
        .constructor<std::vector<double>>("coefficients (the constant term first)")
        .method(
            "plus", [](Polynomial const* a, Polynomial const& b) { return *a + b; }, "this, other")
        .method("times", &Polynomial::operator*, "factor")
        .staticMethod(
            "times", [](double factor, Polynomial const& p) { return p * factor; }, "factor, polynomial")
        .method("call", &Polynomial::operator(), "x")
        .method("length", &Polynomial::size)
        .method("item", &Polynomial::coefficient, "number (from 1)")
        .method("setItem", &Polynomial::setCoefficient, "number, value")
        .method("text", &Polynomial::text);
}
