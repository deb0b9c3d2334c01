#include "samples/Sauce.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/BindingRegistry.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"

#include <algorithm>
#include <memory>

namespace orbis::factory::samples {

namespace {

/// Owns the sauces. Destroyed with the virtual machine.
struct Kitchen {
    std::vector<std::unique_ptr<Sauce>> pots;
};

std::unique_ptr<Sauce> follow(std::string const& recipe)
{
    if (recipe == "sauce")
        return std::make_unique<Sauce>();
    if (recipe == "pasta sauce")
        return std::make_unique<Pasta>();
    if (recipe == "alfredo")
        return std::make_unique<Alfredo>();
    if (recipe == "marinara")
        return std::make_unique<Marinara>();
    throw Exception("There is no recipe for \"" + recipe + "\": cook sauce, pasta sauce, alfredo or marinara.");
}

} // namespace

/// Retracted by hand, because the class has no base of the library.
Sauce::~Sauce()
{
    basic::BindingRegistry::retract(this);
}

std::string Sauce::taste() const
{
    return "plain";
}

void Sauce::serve()
{
    if (servings_ == 0)
        throw Exception("The pot is empty.");
    --servings_;
}

Sauce* Sauce::cook(std::string const& recipe)
{
    return basic::HvmScoped<Kitchen>::get().pots.emplace_back(follow(recipe)).get();
}

std::vector<Sauce*> Sauce::pots()
{
    std::vector<Sauce*> sauces;
    for (auto const& pot : basic::HvmScoped<Kitchen>::get().pots)
        sauces.push_back(pot.get());
    return sauces;
}

void Sauce::pourAway(Sauce const* sauce)
{
    auto& pots = basic::HvmScoped<Kitchen>::get().pots;
    auto const found = std::ranges::find(pots, sauce, &std::unique_ptr<Sauce>::get);
    if (found == pots.end())
        throw Exception("There is nothing to pour away.");
    pots.erase(found);
}

std::string Pasta::taste() const
{
    return "mild";
}

std::string Pasta::shape() const
{
    return "penne";
}

std::string Alfredo::taste() const
{
    return "creamy";
}

std::string Alfredo::shape() const
{
    return "fettuccine";
}

std::string Marinara::taste() const
{
    return cloves_ > 4 ? "of garlic" : "of tomatoes";
}

Marinara* Marinara::blend(Marinara* other)
{
    if (!other || other == this)
        throw Exception("Blend a marinara with another one.");
    if (cloves_ > 1000 - other->cloves_)
        throw Exception("That is too much garlic.");
    cloves_ += other->cloves_;
    return this;
}

COSSauce::COSSauce() : HandleClassInfo(HostClass<Sauce>::name, "A sauce of the kitchen, which cooks and owns it") {}

void COSSauce::initializeClass(COSClass* cls)
{
    publish(cls, describe<Sauce>()
                     .method("taste", &Sauce::taste)
                     .method("serve", &Sauce::serve)
                     .staticMethod("cook", &Sauce::cook, "recipe")
                     .staticMethod("pots", &Sauce::pots)
                     .staticMethod("pourAway", &Sauce::pourAway, "sauce")
                     .property("servings", &Sauce::servings));
}

COSPasta::COSPasta() : HandleClassInfo(HostClass<Pasta>::name, "A sauce for pasta") {}

void COSPasta::initializeClass(COSClass* cls)
{
    publish(cls, describe<Pasta>().inherits<Sauce>().method("shape", &Pasta::shape));
}

COSAlfredo::COSAlfredo() : HandleClassInfo(HostClass<Alfredo>::name, "A sauce of cream and cheese, for pasta") {}

void COSAlfredo::initializeClass(COSClass* cls)
{
    publish(cls, describe<Alfredo>().inherits<Pasta>());
}

COSMarinara::COSMarinara() : HandleClassInfo(HostClass<Marinara>::name, "A sauce of tomatoes and garlic, for pasta") {}

void COSMarinara::initializeClass(COSClass* cls)
{
    publish(cls, describe<Marinara>()
                     .inherits<Pasta>()
                     .method("blend", &Marinara::blend, "other")
                     .property("cloves", &Marinara::cloves));
}

} // namespace orbis::factory::samples
