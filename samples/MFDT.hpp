#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// A bank account; shows every attribute of a method. Each virtual machine has a bank, which owns the accounts: one
/// that no script refers to still exists, and can be found by its number.
class MFDT {
public:
    static constexpr int maxAccounts = 1000;

    explicit MFDT(int number) : number_(number) {}
    MFDT(MFDT const&) = delete;
    MFDT& operator=(MFDT const&) = delete;

    /// Returns the account with that number, from 1 to `maxAccounts`, and creates it if necessary.
    static MFDT* open(int number);

    int number() const { return number_; }
    std::int64_t cents() const { return cents_; }

    /// Both throw for negative amounts; `pay` also when the account is full, `withdraw` also when the balance does not
    /// suffice.
    void pay(std::int32_t cents);
    void withdraw(std::int32_t cents);

    std::string statement() const;

private:
    int number_;
    std::int64_t cents_ = 0;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::MFDT> {
    static constexpr char const* name = "orbis_factory.MFDT";
};

namespace orbis::factory::samples {

class MFDTCI final : public HandleClassInfo<MFDT, 0> {
public:
    MFDTCI();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
