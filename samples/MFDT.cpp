#include "samples/MFDT.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "samples/attributeNames.hpp"

#include <map>

namespace orbis::factory::samples {

namespace {

struct Bank {
    std::map<int, MFDT> accounts;
};

std::int32_t amount(std::int32_t cents)
{
    if (cents < 0)
        throw Exception("An amount is not negative.");
    return cents;
}

ClassDescriber<MFDT> describeAccount()
{
    using A = MethodAttributes;
    return describe<MFDT>()
        .staticMethod("open", &MFDT::open, "number", A::Static())
        .method("pay", &MFDT::pay, "cents", A::Sealed())
        .method("withdraw", &MFDT::withdraw, "cents", A::OverridesAll())
        .method("statement", &MFDT::statement, A::Unlocked() + A::Indestructable())
        .method(
            "isEmpty", [](MFDT* account) { return account->cents() == 0; }, A::ForceMembership())
        .method("audit", &MFDT::statement, A::Hidden())
        .method("seize", &MFDT::withdraw, "cents", A::Private())
        .method("lend", &MFDT::pay, "cents", A::Protected())
        .method("forge", &MFDT::statement, A::NoAccess())
        .method("interest", &MFDT::cents, A::Abstract())
        .property("number", &MFDT::number)
        .property("cents", &MFDT::cents);
}

/// Inspects the description, which needs no host.
std::string attributesOfMethod(std::string const& method)
{
    ClassDescriber<MFDT> const description = describeAccount();
    for (MemberRecord const& member : description.members())
        if (member.name && member.name == method)
            return attributeNames(member.attributes);
    throw Exception("There is no method \"" + method + "\".");
}

} // namespace

MFDT* MFDT::open(int number)
{
    if (number < 1 || number > maxAccounts)
        throw Exception("Accounts are numbered from 1 to " + std::to_string(maxAccounts) + ".");
    return &basic::HvmScoped<Bank>::get().accounts.try_emplace(number, number).first->second;
}

void MFDT::pay(std::int32_t cents)
{
    constexpr std::int64_t maxBalance = 1'000'000'000'000;
    if (amount(cents) > maxBalance - cents_)
        throw Exception("The account is full.");
    cents_ += cents;
}

void MFDT::withdraw(std::int32_t cents)
{
    if (amount(cents) > cents_)
        throw Exception("There are only " + std::to_string(cents_) + " cents in account " + std::to_string(number_) +
                        ".");
    cents_ -= cents;
}

std::string MFDT::statement() const
{
    return "account " + std::to_string(number_) + ": " + std::to_string(cents_) + " cents";
}

MFDTCI::MFDTCI() : HandleClassInfo(HostClass<MFDT>::name, "An account, owned by a bank; methods with every attribute")
{
}

void MFDTCI::initializeClass(COSClass* cls)
{
    publish(cls, describeAccount().staticMethod("attributesOf", &attributesOfMethod, "method"));
}

} // namespace orbis::factory::samples
