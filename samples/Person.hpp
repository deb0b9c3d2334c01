#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <string>
#include <vector>

namespace orbis::factory::samples {

class Item;
class Town;

/// Somebody who lives in the town of the virtual machine. Scripts make persons; each registers itself with the town,
/// which owns all of them: they live on when no script has them any more, until they move away.
class Person : public full::Wrappable {
public:
    /// Throws when the name is taken.
    explicit Person(std::string name);
    Person(Person const&) = delete;
    Person& operator=(Person const&) = delete;
    ~Person() override;

    std::string const& name() const { return name_; }

    /// Things that belong to somebody else: one that goes is given back first.
    std::vector<Item*> borrowed() const { return borrowed_; }
    void borrow(Item* item);
    void giveBack(Item* item);

    static Person* find(std::string const& name); ///< null when nobody is called so
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
