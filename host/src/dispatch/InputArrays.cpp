#include "dispatch/InputArrays.hpp"

#include "types/ScalarConversion.hpp"

#include "libhv/libhv.hpp"

namespace velmara {

InputArrays::InputArrays(std::span<orbis::COSValue const> values) : InputArrays()
{
    if (values.size() > inlineCapacity) {
        more_.resize(values.size());
        arrays_ = more_.data();
    }
    values_ = values.data();
    for (; count_ < values.size(); ++count_) {
        orbis::COSValue const& value = values[count_];
        arrays_[count_] = value.isArray() || value.isEmpty() ? value.array() : createScalar(value);
    }
}

InputArrays::~InputArrays()
{
    for (std::size_t i = 0; i < count_; ++i)
        if (!values_[i].isArray())
            hvDestroyArray(arrays_[i]);
}

} // namespace velmara
