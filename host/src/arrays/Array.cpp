#include "arrays/Array.hpp"

#include "arrays/CellNest.hpp"
#include "arrays/DeepCopy.hpp"
#include "errors/hostError.hpp"
#include "machine/Machine.hpp"
#include "memory/allocate.hpp"

#include "libkwfl/bad_alloc.hpp"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace velmara {

Array* Array::createUncachedHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
{
    ThreadCache* const cache = threadCache;
    if (!cache) [[unlikely]]
        return createWithoutCache(classID, rows, columns, objectClass);
    auto* const array = new (allocate(BlockPool::blockSize)) Array(classID, rows, columns, objectClass);
    ++cache->counts.arrays;
    return array;
}

Array* Array::createWithoutCache(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
{
    if (Machine* const machine = Machine::recording())
        return createRecorded(*machine, classID, rows, columns, objectClass);
    auto* const array = new (allocate(BlockPool::blockSize)) Array(classID, rows, columns, objectClass);
    ++currentThreadCache().counts.arrays;
    return array;
}

Array* Array::createRecorded(Machine& machine, hvClassID classID, std::size_t rows, std::size_t columns,
                             Name objectClass)
{
    static_assert(sizeof(Array) % alignof(OriginLink) == 0);
    auto* const block = static_cast<std::byte*>(allocate(sizeof(Array) + sizeof(OriginLink)));
    auto* const array = new (block) Array(classID, rows, columns, objectClass);
    array->references_ |= recordedFlag;
    machine.recordedArrays().add(*new (block + sizeof(Array)) OriginLink(machine.origins().current()));
    ++currentThreadCache().counts.arrays;
    return array;
}

bool Array::removeLastRecorded() noexcept
{
    if (referenceCount() != 0)
        return false;
    references_ = 0;
    auto* const link = reinterpret_cast<OriginLink*>(reinterpret_cast<std::byte*>(this) + sizeof(Array));
    std::destroy_at(std::launder(link));
    return true;
}

Array* Array::createAround(Payload& payload, hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
{
    try {
        Array* const array = createHeader(classID, rows, columns, objectClass);
        array->elements_ = payload.elements();
        return array;
    } catch (...) {
        if (classID == hvSTRING_CLASS)
            std::destroy_n(static_cast<StringElement*>(payload.elements()), rows * columns);
        payload.free();
        throw;
    }
}

Array* Array::createSharing(Payload& payload) const
{
    Array* const array = createHeader(classID_, rows(), columns(), objectClass_);
    payload.addReference();
    array->elements_ = payload.elements();
    return array;
}

Array* Array::createLongText(std::size_t size)
{
    Payload* const payload = Payload::create(size, sizeof(char16_t));
    return createAround(*payload, hvCHAR_CLASS, 1, size, nullptr);
}

namespace {

std::size_t elementCount(std::size_t rows, std::size_t columns)
{
    std::size_t count;
    if (__builtin_mul_overflow(rows, columns, &count)) [[unlikely]]
        throw foundation::core::except::bad_alloc();
    return count;
}

} // namespace

Array* Array::createCopy(hvClassID classID, std::size_t rows, std::size_t columns, void const* elements)
{
    std::size_t const count = elementCount(rows, columns);
    std::size_t const elementSize = arrayClass(classID).elementSize;
    if (count > inlineCapacity / elementSize) {
        Payload* const payload = Payload::createCopy(elements, count, elementSize);
        return createAround(*payload, classID, rows, columns, nullptr);
    }
    Array* const array = createHeader(classID, rows, columns, nullptr);
    if (count != 0)
        std::memcpy(array->inlineStorage_, elements, count * elementSize);
    return array;
}

Array* Array::createZeroed(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
{
    std::size_t const count = elementCount(rows, columns);
    std::size_t const elementSize = arrayClass(classID).elementSize;
    if (count == 0 || (hasPlainElements(classID) && count <= inlineCapacity / elementSize)) {
        Array* const array = createHeader(classID, rows, columns, objectClass);
        std::memset(array->inlineStorage_, 0, inlineCapacity);
        return array;
    }
    // A single cell has a payload, too: by it a deep copy knows what was shared.
    Payload* const payload = Payload::createZeroed(count, elementSize);
    return createAround(*payload, classID, rows, columns, objectClass);
}

std::string_view Array::className() const
{
    return objectClass_ ? objectClass_->view() : arrayClass(classID_).name;
}

std::string Array::sizeText() const
{
    return std::to_string(rows()) + "-by-" + std::to_string(columns());
}

void* Array::writableElements()
{
    makeUnshared();
    return elements_;
}

StringElement& Array::writableString(std::size_t index)
{
    makeUnshared();
    return stringSlots()[index];
}

void Array::setCellWithCare(std::size_t index, Array* value)
{
    if (value && value->belongsToCells()) {
        if (value == cellSlots()[index])
            return;
        throwHostError("VELMARA:array", "alreadyStored");
    }
    // Only an array that is in a cell already, or the value itself, can be inside the value.
    if (value && (value == this || cellsAround_ > 0) && CellNest::contains(*value, *this))
        throwHostError("VELMARA:array", "cycle");
    makeUnshared();
    putCell(index, value);
}

std::size_t Array::payloadMemory() const
{
    if (!hasPayload())
        return 0;
    std::size_t bytes = sizeof(Payload) + size() * elementSize();
    if (classID_ == hvSTRING_CLASS)
        for (StringElement const& element : strings())
            bytes += element.memory();
    return bytes;
}

Array* Array::shareData() const
{
    if (hasPayload())
        return createSharing(*payload());
    Array* const copy = createHeader(classID_, rows(), columns(), objectClass_);
    std::memcpy(copy->inlineStorage_, inlineStorage_, sizeof inlineStorage_);
    copy->retainElements();
    return copy;
}

Array* Array::copyDeep() const
{
    return DeepCopy().create(*this);
}

void Array::copyPayload()
{
    Payload* const own = createPayloadCopy();
    payload()->removeReference();
    elements_ = own->elements();
    retainElements();
}

Payload* Array::createPayloadCopy() const
{
    return classID_ == hvSTRING_CLASS ? copyStrings() : Payload::createCopy(elements_, size(), elementSize());
}

Payload* Array::copyStrings() const
{
    Payload* const copy = Payload::createZeroed(size(), elementSize());
    auto* const begin = static_cast<StringElement*>(copy->elements());
    try {
        std::ranges::copy(strings(), begin);
    } catch (...) {
        std::destroy_n(begin, size());
        copy->free();
        throw;
    }
    return copy;
}

/// Takes references for elements that were copied byte by byte.
void Array::retainElements() const noexcept
{
    if (classID_ == hvCELL_CLASS) {
        for (Array* const cell : cells()) {
            if (cell) {
                ++cell->references_;
                ++cell->cellsAround_;
            }
        }
    } else if (HeldFunction* const held = function()) {
        held->addReference();
    } else if (classID_ == hvOBJECT_CLASS) {
        for (Object* const object : objects()) {
            if (object)
                object->addInternal();
        }
    }
}

void Array::destroy() noexcept
{
    if (hasPlainElements(classID_)) [[likely]]
        destroyPlain();
    else if (classID_ == hvOBJECT_CLASS)
        destroyObjects();
    else if (classID_ == hvCELL_CLASS)
        CellNest::destroy(this);
    else if (classID_ == hvSTRING_CLASS)
        destroyStrings();
    else
        destroyFunction();
}

// The array itself is freed first: finalizing objects runs native code.
void Array::destroyObjects() noexcept
{
    if (!hasPayload()) {
        Object* const object = *objectSlots();
        freeHeader();
        if (object)
            object->removeInternal();
        return;
    }
    Payload* const held = payload();
    std::span const objects = this->objects();
    freeHeader();
    if (!held->removeReference())
        return;
    for (Object* const object : objects) {
        if (object)
            object->removeInternal();
    }
    held->free();
}

void Array::destroyStrings() noexcept
{
    if (hasPayload() && payload()->removeReference()) {
        std::destroy_n(stringSlots(), size());
        payload()->free();
    }
    freeHeader();
}

// The array itself is freed first: destroying the function runs foreign code.
void Array::destroyFunction() noexcept
{
    HeldFunction* const held = *functionSlot();
    freeHeader();
    held->release();
}

void Array::destroyPlain() noexcept
{
    if (hasPayload()) [[unlikely]]
        destroyPlainPayload();
    else
        freeHeader();
}

void Array::destroyPlainPayload() noexcept
{
    if (payload()->removeReference())
        payload()->free();
    freeHeader();
}

void Array::freeUncachedHeader() noexcept
{
    ThreadCache& cache = acquireThreadCache();
    --cache.counts.arrays;
    BlockPool::release(this, cache);
}

} // namespace velmara
