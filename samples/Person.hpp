#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <string>
#include <vector>

namespace orbis::factory::samples {

class Item;
class Town;

/// An inhabitant of the virtual machine's town. Scripts create persons, and each registers with the town, which owns
/// it: it lives on when no script refers to it any more, until it moves away.
class Person : public full::Wrappable {
public:
    /// Throws if the name is taken.
    explicit Person(std::string name);
    Person(Person const&) = delete;
    Person& operator=(Person const&) = delete;
    ~Person() override;

    std::string const& name() const { return name_; }

    /// Items owned by somebody else. An item that is destroyed is returned first.
    std::vector<Item*> borrowed() const { return borrowed_; }
    void borrow(Item* item);
    void giveBack(Item* item);

    static Person* find(std::string const& name); ///< null if nobody has that name
    static int count();
    static void moveAway(Person* person);

private:
    Town& town_;
    std::string name_;
    std::vector<Item*> borrowed_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Person> {
    static constexpr char const* name = "orbis_factory.Person";
};

namespace orbis::factory::samples {

class PersonWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    PersonWrapper();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
