#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <memory>
#include <string>
#include <vector>

namespace orbis::factory::samples {

/// An apple: a plain class, bound by its own address. Its destructor retracts it.
class BasicA {
public:
    explicit BasicA(int grams) : grams_(grams) {}
    BasicA(BasicA const&) = delete;
    BasicA& operator=(BasicA const&) = delete;
    ~BasicA();

    int grams() const { return grams_; }

private:
    int grams_;
};

/// A branch, which owns its apples.
class BasicB {
public:
    BasicB() = default;
    BasicB(BasicB const&) = delete;
    BasicB& operator=(BasicB const&) = delete;
    ~BasicB();

    BasicA* bear(int grams);
    std::vector<BasicA*> apples() const;

    /// Replaces the apple by a new one, half as heavy again: the script's object represents that one from now on.
    void ripen(BasicA* apple);

    /// Destroys the apple; script objects that represent it become invalid.
    void drop(BasicA* apple);

private:
    using Apples = std::vector<std::unique_ptr<BasicA>>;

    Apples::iterator find(BasicA const* apple);

    Apples apples_;
};

/// An apple tree, which owns its branches. Scripts create trees, and each is owned by its host object.
class BasicTree {
public:
    BasicTree() = default;
    explicit BasicTree(std::string sort) : sort_(std::move(sort)) {}

    std::string const& sort() const { return sort_; }
    BasicB* grow();
    std::vector<BasicB*> branches() const;

private:
    std::string sort_ = "wild";
    std::vector<std::unique_ptr<BasicB>> branches_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::BasicA> {
    static constexpr char const* name = "orbis_factory.BasicA";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::BasicB> {
    static constexpr char const* name = "orbis_factory.BasicB";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::BasicTree> {
    static constexpr char const* name = "orbis_factory.BasicTree";
};

namespace orbis::factory::samples {

class BasicAWrapper final : public HandleClassInfo<BasicA, 0> {
public:
    BasicAWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class BasicBWrapper final : public HandleClassInfo<BasicB, 0> {
public:
    BasicBWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

/// The native tree is the instance data of its host object: created and deleted with it.
class BasicTreeWrapper final : public HandleClassInfo<BasicTree, 0> {
public:
    BasicTreeWrapper();
    void initializeClass(COSClass* cls) override;
    void* createInstanceData() override;
    bool destroyInstanceData(COSInterface* object, void* data) override;
    char const* nativeOwner() const override { return "host"; }
};

} // namespace orbis::factory::samples
