#include "samples/Adder.hpp"

#include "orbis/factory/describe.hpp"

#include <initializer_list>
#include <memory>

namespace {

/// Wraps around in two's complement: signed overflow is undefined in C++.
int wrappingSum(std::initializer_list<int> numbers)
{
    unsigned int sum = 0;
    for (int const number : numbers)
        sum += static_cast<unsigned int>(number);
    return static_cast<int>(sum);
}

} // namespace

Adder::Adder(int a, int b) : total_(wrappingSum({a, b})) {}

int Adder::getSum(int a, int b)
{
    int const sum = wrappingSum({a, b});
    total_ = wrappingSum({total_, sum});
    return sum;
}

int Adder::getSumOfTen(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j)
{
    int const sum = wrappingSum({a, b, c, d, e, f, g, h, i, j});
    total_ = wrappingSum({total_, sum});
    return sum;
}

int Adder::getSumOfTwenty(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j, int k, int l, int m,
                          int n, int o, int p, int q, int r, int s, int t)
{
    int const sum = wrappingSum({a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t});
    total_ = wrappingSum({total_, sum});
    return sum;
}

int Adder::total() const
{
    return total_;
}

void Adder::setTotal(int total)
{
    total_ = total;
}

void Adder::reset()
{
    total_ = 0;
}

int Adder::zero()
{
    return 0;
}

namespace orbis::factory::samples {

CosAdder::CosAdder() : HandleClassInfo("orbis_factory.Adder", "Adds numbers and keeps their total") {}

void CosAdder::initializeClass(COSClass* cls)
{
    publish(cls, describe<Adder>()
                     .constructor()
                     .constructor<int>("start")
                     .constructor<int, int>("a, b")
                     .method("getSum", &Adder::getSum, "a, b")
                     .method("getSumOfTen", &Adder::getSumOfTen, "a, b, c, d, e, f, g, h, i, j")
                     .method("getSumOfTwenty", &Adder::getSumOfTwenty, "a, b, c, d, e, f, g, h, i, j, rest")
                     .method("reset", &Adder::reset)
                     .staticMethod("zero", &Adder::zero)
                     .property("total", &Adder::total, &Adder::setTotal));
}

void* CosAdder::createInstanceData()
{
    static_assert(sizeof(Adder) == 4);
    return new Adder;
}

bool CosAdder::destroyInstanceData(COSInterface* object, void* data)
{
    std::unique_ptr<Adder> const adder(static_cast<Adder*>(data));
    return HandleClassInfo::destroyInstanceData(object, data);
}

} // namespace orbis::factory::samples
