#pragma once

#include "orbis/factory/classes/HandleClassInfo.hpp"

#include "libkwi18n/libkwi18n.hpp"

#include <set>
#include <string>
#include <vector>

namespace orbis::factory::samples {

/// The guest list of a party. Each virtual machine owns one.
class VectorStringIO {
public:
    static VectorStringIO* list();

    /// In the order in which they were added.
    std::vector<fl::ustring> const& guests() const { return guests_; }
    void setGuests(std::vector<fl::ustring> guests) { guests_ = std::move(guests); }

    /// In alphabetical order, without duplicates. Inviting somebody twice in one call throws.
    std::set<fl::ustring> names() const { return {guests_.begin(), guests_.end()}; }
    void invite(std::set<fl::ustring> const& names);

    /// Texts can be passed in UTF-8 as well.
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
    ClassAccess getAccess() const override { return ClassAccess::Private; } // scripts cannot create any
    void initializeClass(COSClass* cls) override;
};

} // namespace orbis::factory::samples
