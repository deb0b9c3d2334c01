#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/HostClass.hpp"

/// Adds numbers and keeps the total of everything it added.
class Adder {
public:
    Adder() = default;
    explicit Adder(int start) : total_(start) {}

    /// Starts with the sum of both.
    Adder(int a, int b);

    int getSum(int a, int b);
    int getSumOfTen(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j);
    int getSumOfTwenty(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j, int k, int l, int m, int n,
                       int o, int p, int q, int r, int s, int t);
    int total() const;
    void setTotal(int total);
    void reset();

    static int zero();

private:
    int total_ = 0;
};

template <>
struct orbis::factory::HostClass<Adder> {
    static constexpr char const* name = "orbis_factory.Adder";
};

namespace orbis::factory::samples {

/// The native object is instance data: created and deleted with its host object.
class CosAdder final : public HandleClassInfo<Adder, 0> {
public:
    CosAdder();

    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override;
    bool destroyInstanceData(COSInterface* object, void* data) override;
    char const* nativeOwner() const override { return "host"; }
};

} // namespace orbis::factory::samples
