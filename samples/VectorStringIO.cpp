#include "samples/VectorStringIO.hpp"

#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/types/stringVectors.hpp"
#include "orbis/factory/types/unicodeStringContainers.hpp"

namespace orbis::factory::samples {

VectorStringIO* VectorStringIO::list()
{
    return &basic::HvmScoped<VectorStringIO>::get();
}

void VectorStringIO::invite(std::set<fl::ustring> const& names)
{
    guests_.insert(guests_.end(), names.begin(), names.end());
}

std::string VectorStringIO::sentence(std::vector<std::string> const& names)
{
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    return text.empty() ? "nobody" : text;
}

CosVectorStringIO::CosVectorStringIO()
    : HandleClassInfo(HostClass<VectorStringIO>::name, "A guest list: vectors and sets of texts, in and out")
{
}

void CosVectorStringIO::initializeClass(COSClass* cls)
{
    publish(cls, describe<VectorStringIO>()
                     .staticMethod("list", &VectorStringIO::list)
                     .staticMethod("sentence", &VectorStringIO::sentence, "names")
                     .method("invite", &VectorStringIO::invite, "names")
                     .property("guests", &VectorStringIO::guests, &VectorStringIO::setGuests)
                     .property("names", &VectorStringIO::names));
}

} // namespace orbis::factory::samples
