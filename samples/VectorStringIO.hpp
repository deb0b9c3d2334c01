#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <set>
#include <string>
#include <vector>

namespace orbis::factory::samples {

/// The guest list of a party. Every virtual machine has one, and owns it.
class VectorStringIO {
public:
    static VectorStringIO* list();

    /// In the order in which they were written down.
    std::vector<fl::ustring> const& guests() const { return guests_; }
    void setGuests(std::vector<fl::ustring> guests) { guests_ = std::move(guests); }

    /// In alphabetical order, each name once. To invite somebody twice in one go is a mistake.
    std::set<fl::ustring> names() const { return {guests_.begin(), guests_.end()}; }
    void invite(std::set<fl::ustring> const& names);

    /// UTF-8 serves as well.
    static std::string sentence(std::vector<std::string> const& names);

private:
    std::vector<fl::ustring> guests_;
};

} // namespace orbis::factory::samples

template <>
struct orbis::factory::HostClass<orbis::factory::samples::VectorStringIO> {
    static constexpr char const* name = "orbis_factory.VectorStringIO";
};

namespace orbis::factory::samples {

class CosVectorStringIO final : public HandleClassInfo<VectorStringIO, 0> {
public:
    CosVectorStringIO();
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts make none
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
