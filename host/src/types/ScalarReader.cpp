#include "types/ScalarReader.hpp"

#include "host_extensions/numericClasses.hpp"

#include <concepts>
#include <limits>

namespace velmara {

ScalarReader::ScalarReader(hvClassID target) : target_(target), converters_(scalarConverters(target))
{
    orbis::host_extensions::visitNumericClass(target, [this]<class T>(T) {
        if constexpr (std::integral<T> && !std::same_as<T, bool> && sizeof(T) <= sizeof(std::int32_t)) {
            lowest_ = std::numeric_limits<T>::min();
            highest_ = std::numeric_limits<T>::max();
        }
    });
}

} // namespace velmara
