#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include <memory>
#include <string>
#include <vector>

namespace orbis::factory::samples {

/// A vehicle. Its base `Wrappable` retracts it when it is destroyed, at whatever offset that base is.
class A : public full::Wrappable {
public:
    explicit A(std::string name) : name_(std::move(name)) {}
    A(A const&) = delete;
    A& operator=(A const&) = delete;

    std::string const& name() const { return name_; }
    virtual std::string kind() const { return "vehicle"; }

private:
    std::string name_;
};

/// A boat.
class B : public virtual A {
public:
    explicit B(std::string name) : A(std::move(name)) {}
    std::string kind() const override { return "boat"; }
    std::string sail() const { return name() + " sails"; }
};

/// A car.
class C : public virtual A {
public:
    explicit C(std::string name) : A(std::move(name)) {}
    std::string kind() const override { return "car"; }
    std::string drive() const { return name() + " drives"; }
    std::string tow(A const* other) const;
};

/// A boat that is a car: one vehicle, not two, as `A` is a virtual base.
class D : public B, public C {
public:
    explicit D(std::string const& name) : A(name), B(name), C(name) {}
    std::string kind() const override { return "amphibian"; }
};

/// The depot of the virtual machine, which owns all vehicles. There is only one.
class Z : public full::Wrappable {
public:
    static Z* depot();

    A* build(std::string const& kind, std::string const& name);
    std::vector<A*> fleet() const;
    std::vector<B*> boats() const;

    /// Destroys the vehicle: script objects that represent it become invalid.
    void scrap(A const* vehicle);

private:
    std::vector<std::unique_ptr<A>> vehicles_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::A> {
    static constexpr char const* name = "orbis_factory.A";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::B> {
    static constexpr char const* name = "orbis_factory.B";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::C> {
    static constexpr char const* name = "orbis_factory.C";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::D> {
    static constexpr char const* name = "orbis_factory.D";
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Z> {
    static constexpr char const* name = "orbis_factory.Z";
};

namespace orbis::factory::samples {

class AWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    AWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class BWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    BWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class CWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    CWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class DWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    DWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class ZWrapper final : public HandleClassInfo<full::Wrappable, 0> {
public:
    ZWrapper();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
