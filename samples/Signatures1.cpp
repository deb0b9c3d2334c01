#include "samples/Signatures1.hpp"

#include "orbis/factory/describe.hpp"

#include <array>
#include <string_view>
#include <utility>

namespace orbis::factory::samples {

namespace {

/// The names of the first `N` items, as in a literal. From the eleventh on they share a name.
template <std::size_t N>
constexpr auto firstThings = [] {
    constexpr std::string_view things = "apples,bread,cheese,dates,eggs,flour,grapes,honey,ice,jam,rest";
    std::array<char, things.size() + 1> first = {};
    std::size_t count = 0;
    for (std::size_t i = 0; i < things.size(); ++i) {
        if (things[i] == ',')
            ++count;
        if (count == N)
            break;
        first[i] = things[i];
    }
    return first;
}();

template <std::size_t>
using Price = double;

/// Adds one method, all with the same name, for each number of prices.
template <std::size_t... I>
void addTotal(ClassDescriber<Signatures1>& shop, std::index_sequence<I...>)
{
    shop.method("total", &Signatures1::total<Price<I>...>, firstThings<sizeof...(I)>.data());
}

template <std::size_t... N>
ClassDescriber<Signatures1> describeTotals(std::index_sequence<N...>)
{
    ClassDescriber<Signatures1> shop = describe<Signatures1>();
    (addTotal(shop, std::make_index_sequence<N>{}), ...);
    return shop;
}

} // namespace

Signatures1MetaData::Signatures1MetaData()
    : HandleClassInfo(HostClass<Signatures1>::name, "A shop, which adds up 0 to 20 prices")
{
}

void Signatures1MetaData::initializeClass(COSClass* cls)
{
    publish(cls, describeTotals(std::make_index_sequence<maximumInputs + 1>{})
                     .constructor<std::string>("name")
                     .property("name", &Signatures1::name)
                     .property("takings", &Signatures1::takings));
}

} // namespace orbis::factory::samples
