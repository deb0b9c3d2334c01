#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <cstdint>
#include <string>

namespace orbis::factory::samples {

/// An account of the bank that every virtual machine has. The bank owns its accounts: one that no script has any more
/// is still there, and is found again by its number. Shows every attribute of a method.
class MFDT {
public:
    static constexpr int maxAccounts = 1000;

    explicit MFDT(int number) : number_(number) {}
    MFDT(MFDT const&) = delete;
    MFDT& operator=(MFDT const&) = delete;

    /// The account of that number, from 1 to `maxAccounts`, which is opened when there is none.
    static MFDT* open(int number);

    int number() const { return number_; }
    std::int64_t cents() const { return cents_; }

    /// Nothing is paid when it would be less than nothing, or would leave less than nothing.
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
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts make none
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
