#include "arrays/ElementConversion.hpp"

#include "host_extensions/convertNumber.hpp"
#include "host_extensions/host_extensions.hpp"
#include "host_extensions/numericClasses.hpp"

namespace velmara::console {

std::size_t convertElements(hvArray_tag const& source, hvArray_tag* target)
{
    using orbis::host_extensions::visitNumericClass;
    std::size_t const count = source.get_number_of_elements();
    void const* const data = orbis::host_extensions::getData(&source);
    void* const out = orbis::host_extensions::getWritableData(target);
    return visitNumericClass(source._get_class_id_non_trivial(), [&]<class Source>(Source) {
        return visitNumericClass(target->_get_class_id_non_trivial(), [&]<class T>(T) {
            for (std::size_t i = 0; i < count; ++i) {
                // Promoted: a logical is 0 or 1.
                auto const converted = orbis::host_extensions::convertNumber<T>(+static_cast<Source const*>(data)[i]);
                if (!converted)
                    return i;
                static_cast<T*>(out)[i] = *converted;
            }
            return count;
        });
    });
}

} // namespace velmara::console
