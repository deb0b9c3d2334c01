#include "samples/Container.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"
#include "samples/Person.hpp"

#include <algorithm>
#include <cmath>

namespace orbis::factory::samples {

Item::Item(std::string name, double kilograms) : name_(std::move(name)), kilograms_(kilograms)
{
    if (!(kilograms >= 0) || std::isinf(kilograms))
        throw Exception("An item weighs 0 kilograms or more.");
}

Item::Item(Item const& other) : Wrappable(other), name_("copy of " + other.name_), kilograms_(other.kilograms_) {}

Item::~Item()
{
    if (borrower_)
        borrower_->giveBack(this);
}

Container::Container(std::string name) : name_(std::move(name)) {}

Container::~Container() = default;

std::vector<Item*> Container::items() const
{
    std::vector<Item*> items;
    items.reserve(items_.size());
    for (auto const& item : items_)
        items.push_back(item.get());
    return items;
}

double Container::weight() const
{
    double sum = 0;
    for (auto const& item : items_)
        sum += item->kilograms();
    return sum;
}

Item* Container::heaviest() const
{
    auto const found = std::ranges::max_element(items_, {}, [](auto const& item) { return item->kilograms(); });
    return found == items_.end() ? nullptr : found->get();
}

Item* Container::add(std::string name, double kilograms)
{
    return items_.emplace_back(std::make_unique<Item>(std::move(name), kilograms)).get();
}

Item* Container::addCopy(Item const* item)
{
    if (!item)
        throw Exception("There is nothing to copy.");
    return items_.emplace_back(std::make_unique<Item>(*item)).get();
}

void Container::discard(Item* item)
{
    auto const found = std::ranges::find(items_, item, &std::unique_ptr<Item>::get);
    if (found == items_.end())
        throw Exception("This is not in \"" + name_ + "\".");
    items_.erase(found);
}

ItemWrapper::ItemWrapper() : HandleClassInfo(HostClass<Item>::name, "A thing in a container, which owns it") {}

void ItemWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<Item>()
                     .property("name", &Item::name)
                     .property("kilograms", &Item::kilograms)
                     .property("borrower", &Item::borrower));
}

ContainerWrapper::ContainerWrapper() : HandleClassInfo(HostClass<Container>::name, "A container, which owns its items")
{
}

void ContainerWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<Container>()
                     .constructor<std::string>("name")
                     .method("add", &Container::add, "name, kilograms")
                     .method("addCopy", &Container::addCopy, "item")
                     .method("discard", &Container::discard, "item")
                     .method("weight", &Container::weight)
                     .property("name", &Container::name)
                     .property("items", &Container::items)
                     .property("heaviest", &Container::heaviest));
}

} // namespace orbis::factory::samples
