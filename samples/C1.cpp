#include "samples/C1.hpp"

#include "orbis/factory/describe.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"

#include "libhv/libhv.hpp"
#include "orbis/COSInterfacePtr.hpp"

namespace orbis::factory::samples {

C1* C1::cloakroom()
{
    return &basic::HvmScoped<C1>::get();
}

void C1::hang(hvArrayReferenceCountedProxy const& left, hvArrayReferenceCountedProxy const& right)
{
    left_ = left;
    right_ = right;
}

std::string C1::label(hvConstArrayProxy const& array)
{
    if (!array())
        return "nothing";
    std::size_t const* const sizes = array()->get_dimensions();
    bool const isObject = COSInterfacePtr(array) != nullptr;
    return std::to_string(sizes[0]) + "-by-" + std::to_string(sizes[1]) + (isObject ? ", an object" : "");
}

hvArrayProxy C1::tailor(hvArrayProxy const& array)
{
    return array() ? hvCreateDeepCopy(array()) : nullptr;
}

C1Wrapper::C1Wrapper() : HandleClassInfo(HostClass<C1>::name, "A cloakroom for arrays of the host, as they are") {}

void C1Wrapper::initializeClass(COSClass* cls)
{
    publish(cls, describe<C1>()
                     .staticMethod("cloakroom", &C1::cloakroom)
                     .staticMethod("label", &C1::label, "array")
                     .staticMethod("tailor", &C1::tailor, "array")
                     .method("hang", &C1::hang, "left, right")
                     .method("mirrorLeft", &C1::mirrorLeft)
                     .property("left", &C1::left)
                     .property("right", &C1::right)
                     .property("isOneArray", &C1::isOneArray));
}

} // namespace orbis::factory::samples
