#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <memory>
#include <string>
#include <vector>

namespace orbis::factory::samples {

class Person;

/// A thing in a container, which owns it. When it is destroyed, script objects that represent it become invalid.
class Item : public full::Wrappable {
public:
    Item(std::string name, double kilograms);

    /// The copy is not borrowed and has no host object.
    Item(Item const& other);
    Item& operator=(Item const&) = delete;
    ~Item() override;

    std::string const& name() const { return name_; }
    double kilograms() const { return kilograms_; }
    Person* borrower() const { return borrower_; }

private:
    friend class Person;

    std::string name_;
    double kilograms_;
    Person* borrower_ = nullptr;
};

/// A parent that owns its children, and is itself owned by its host object.
class Container : public full::Wrappable {
public:
    explicit Container(std::string name);
    Container(Container const&) = delete;
    Container& operator=(Container const&) = delete;
    ~Container() override;

    std::string const& name() const { return name_; }
    std::vector<Item*> items() const;
    double weight() const;
    Item* heaviest() const; ///< null if there are none

    Item* add(std::string name, double kilograms);
    Item* addCopy(Item const* item);
    void discard(Item* item);

private:
    std::string name_;
    std::vector<std::unique_ptr<Item>> items_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::Item> {
    static constexpr char const* name = "orbis_factory.Item";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Container> {
    static constexpr char const* name = "orbis_factory.Container";
};

namespace orbis::factory::samples {

class ItemWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    ItemWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class ContainerWrapper final : public HandleClassInfo<full::Wrappable, 1> {
public:
    ContainerWrapper();
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
