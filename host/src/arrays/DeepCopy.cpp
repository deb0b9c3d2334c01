#include "arrays/DeepCopy.hpp"

#include "arrays/Array.hpp"

namespace velmara {

void DeepCopy::Release::operator()(Array* array) const noexcept
{
    array->release();
}

Array* DeepCopy::create(Array const& source)
{
    Owner outermost = copy(source);
    while (!open_.empty()) {
        auto const [from, to] = open_.back();
        open_.pop_back();
        for (std::size_t index = 0; index < from.size(); ++index) {
            if (!from[index])
                continue;
            to[index] = copy(*from[index]).release();
            ++to[index]->cellsAround_;
            to[index]->setTemporary(false);
        }
    }
    return outermost.release();
}

DeepCopy::Owner DeepCopy::copy(Array const& source)
{
    if (!source.hasPayload())
        return Owner(source.shareData());
    auto const known = copies_.find(source.payload());
    return known == copies_.end() ? copyPayload(source) : Owner(source.createSharing(*known->second));
}

DeepCopy::Owner DeepCopy::copyPayload(Array const& source)
{
    bool const isCell = source.classID_ == hvCELL_CLASS;
    Payload* const payload =
        isCell ? Payload::createZeroed(source.size(), source.elementSize()) : source.createPayloadCopy();
    Owner copy(Array::createAround(*payload, source.classID_, source.rows(), source.columns(), source.objectClass_));
    if (isCell)
        open_.push_back({source.cells(), copy->cellSlots()});
    else
        copy->retainElements();
    if (source.referenceCount() > 1 || source.payload()->isShared())
        copies_.emplace(source.payload(), payload);
    return copy;
}

} // namespace velmara
