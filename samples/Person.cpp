#include "samples/Person.hpp"

#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"
#include "samples/Container.hpp"

#include <algorithm>
#include <map>

namespace orbis::factory::samples {

/// Owns its inhabitants, who register in their constructor and unregister in their destructor.
class Town {
public:
    Town() = default;
    Town(Town const&) = delete;
    Town& operator=(Town const&) = delete;

    ~Town()
    {
        while (!inhabitants.empty())
            delete inhabitants.begin()->second;
    }

    static Town& ofThisMachine() { return basic::HvmScoped<Town>::get(); }

    std::map<std::string, Person*> inhabitants;
};

Person::Person(std::string name) : town_(Town::ofThisMachine()), name_(std::move(name))
{
    if (!town_.inhabitants.emplace(name_, this).second)
        throw Exception("Somebody is called \"" + name_ + "\" already.");
}

Person::~Person()
{
    for (Item* const item : borrowed_)
        item->borrower_ = nullptr;
    town_.inhabitants.erase(name_);
}

void Person::borrow(Item* item)
{
    if (!item)
        throw Exception("There is nothing to borrow.");
    if (item->borrower_)
        throw Exception(item->borrower_->name_ + " has borrowed the " + item->name_ + ".");
    borrowed_.push_back(item);
    item->borrower_ = this;
}

void Person::giveBack(Item* item)
{
    auto const found = std::ranges::find(borrowed_, item);
    if (found == borrowed_.end())
        throw Exception(name_ + " has not borrowed that.");
    item->borrower_ = nullptr;
    borrowed_.erase(found);
}

Person* Person::find(std::string const& name)
{
    auto const& inhabitants = Town::ofThisMachine().inhabitants;
    auto const found = inhabitants.find(name);
    return found == inhabitants.end() ? nullptr : found->second;
}

int Person::count()
{
    return static_cast<int>(Town::ofThisMachine().inhabitants.size());
}

void Person::moveAway(Person* person)
{
    if (!person)
        throw Exception("There is nobody to move away.");
    delete person;
}

PersonWrapper::PersonWrapper() : HandleClassInfo(HostClass<Person>::name, "Somebody who lives in the town") {}

void PersonWrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<Person>()
                     .constructor<std::string>("name")
                     .method("borrow", &Person::borrow, "item")
                     .method("giveBack", &Person::giveBack, "item")
                     .staticMethod("find", &Person::find, "name")
                     .staticMethod("count", &Person::count)
                     .staticMethod("moveAway", &Person::moveAway, "person")
                     .property("name", &Person::name)
                     .property("borrowed", &Person::borrowed));
}

} // namespace orbis::factory::samples
