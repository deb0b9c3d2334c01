#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/marshaling/StaticCastPolicy.hpp"

#include <string>
#include <vector>

namespace orbis::factory::samples {

/// A sauce, made by the virtual machine's kitchen, which owns it until it is poured away. Scripts cannot create sauces
/// themselves.
class Sauce {
public:
    Sauce() = default;
    Sauce(Sauce const&) = delete;
    Sauce& operator=(Sauce const&) = delete;
    virtual ~Sauce();

    virtual std::string taste() const;
    int servings() const { return servings_; }
    void serve();

    /// Creates the sauce with that name on the menu.
    static Sauce* cook(std::string const& recipe);
    static std::vector<Sauce*> pots();

    /// Destroys the sauce: script objects that represent it become invalid.
    static void pourAway(Sauce const* sauce);

private:
    int servings_ = 4;
};

/// A sauce for pasta.
class Pasta : public Sauce {
public:
    std::string taste() const override;
    virtual std::string shape() const;
};

class Alfredo : public Pasta {
public:
    std::string taste() const override;
    std::string shape() const override;
};

class Marinara : public Pasta {
public:
    std::string taste() const override;
    int cloves() const { return cloves_; }

    /// Adds the garlic of the other one. Returns this object, so that calls can be chained.
    Marinara* blend(Marinara* other);

private:
    int cloves_ = 2;
};

} // namespace orbis::factory::samples

// All are bound as one base. Objects passed as `Marinara` are known to be one, so it needs no dynamic cast.
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Sauce> {
    static constexpr char const* name = "orbis_factory.Sauce";
    using Root = samples::Sauce;
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Pasta> {
    static constexpr char const* name = "orbis_factory.Pasta";
    using Root = samples::Sauce;
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Alfredo> {
    static constexpr char const* name = "orbis_factory.Alfredo";
    using Root = samples::Sauce;
};
template <>
struct orbis::factory::HostClass<orbis::factory::samples::Marinara> {
    static constexpr char const* name = "orbis_factory.Marinara";
    using Root = samples::Sauce;
    using Policy = StaticCastPolicy;
};

namespace orbis::factory::samples {

class COSSauce final : public HandleClassInfo<Sauce, 0> {
public:
    COSSauce();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class COSPasta final : public HandleClassInfo<Sauce, 0> {
public:
    COSPasta();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class COSAlfredo final : public HandleClassInfo<Sauce, 0> {
public:
    COSAlfredo();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

class COSMarinara final : public HandleClassInfo<Sauce, 0> {
public:
    COSMarinara();
    ClassAccess getAccess() const override { return ClassAccess::Private; }
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
