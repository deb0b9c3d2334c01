#pragma once

#include "arrays/ArrayClass.hpp"
#include "arrays/Payload.hpp"
#include "arrays/StringElement.hpp"
#include "machine/HeldFunction.hpp"
#include "memory/BlockPool.hpp"
#include "names/InternedName.hpp"
#include "objects/Object.hpp"
#include "origins/OriginRing.hpp"

#include "libhv/hvArray.hpp"

#include <cstring>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace velmara {

/// What every `hvArray_tag` is: class, sizes, and elements. Elements are numbers, characters, `Array*` (cells, null
/// when empty), `StringElement`s, `Object*` (null allowed) or one `HeldFunction*`. Few plain elements (a scalar, a
/// short text) and the one element of an object array are in the array itself, so that what calls pass most is one
/// allocation; other elements are in a payload, which copies share until one of them writes.
///
/// Functions that create, copy or write throw `bad_alloc` without memory, and leave everything as it was.
class Array final : public hvArray_tag {
public:
    /// How many bytes of elements fit in the array itself.
    static constexpr std::size_t inlineCapacity = 40;

    /// A new array of zeros, empty cells or missing strings, of any class but objects, with one reference.
    static Array* create(hvClassID classID, std::size_t rows, std::size_t columns)
    {
        bool const isScalar = rows == 1 && columns == 1 && hasPlainElements(classID);
        return isScalar ? createScalar(classID, 0) : createZeroed(classID, rows, columns, nullptr);
    }

    /// A new 1-by-1 array of a plain class from the element's bytes, the first of the eight.
    static Array* createScalar(hvClassID classID, std::uint64_t bytes)
    {
        Array* const array = createHeader(classID, 1, 1, nullptr);
        std::memcpy(array->inlineStorage_, &bytes, sizeof bytes);
        return array;
    }

    /// A new array of `size` characters, which are yet to be written to `writableText`: one row, or 0-by-0 when there
    /// are none.
    static Array* createText(std::size_t size)
    {
        if (size > inlineCapacity / sizeof(char16_t))
            return createLongText(size);
        return createHeader(hvCHAR_CLASS, size != 0, size, nullptr);
    }

    char16_t* writableText() { return static_cast<char16_t*>(elements_); }

    /// A new array of a plain class with a copy of its elements.
    static Array* createCopy(hvClassID classID, std::size_t rows, std::size_t columns, void const* elements);

    /// A new array of null objects, typed by a class name.
    [[gnu::always_inline]] static Array* createObjects(Name className, std::size_t rows, std::size_t columns)
    {
        if (rows != 1 || columns != 1)
            return createZeroed(hvOBJECT_CLASS, rows, columns, className);
        Array* const array = createHeader(hvOBJECT_CLASS, 1, 1, className);
        *array->objectSlots() = nullptr;
        return array;
    }

    /// A new array that holds the function, with a reference of its own.
    static Array* createFunction(HeldFunction& function)
    {
        Array* const array = createHeader(orbis::host_extensions::functionClass, 1, 1, nullptr);
        function.addReference();
        *array->functionSlot() = &function;
        return array;
    }

    static Array* of(hvArray_tag* array) { return static_cast<Array*>(array); }
    static Array const* of(hvArray_tag const* array) { return static_cast<Array const*>(array); }

    bool isScalar() const { return dimensions_[0] == 1 && dimensions_[1] == 1; }

    /// One row of characters, or none.
    bool isText() const { return classID_ == hvCHAR_CLASS && (rows() == 1 || size() == 0); }

    /// "[]", a double array of 0-by-0, means no object and no value.
    bool isEmptyDouble() const { return classID_ == hvDOUBLE_CLASS && rows() == 0 && columns() == 0; }

    /// One string, which is missing, means no value, too.
    bool isMissingString() const { return classID_ == hvSTRING_CLASS && size() == 1 && strings().front().isMissing(); }

    hvClassID classID() const { return classID_; }
    std::size_t rows() const { return dimensions_[0]; }
    std::size_t columns() const { return dimensions_[1]; }
    std::size_t size() const { return dimensions_[0] * dimensions_[1]; }
    std::size_t const* dimensions() const { return dimensions_; }

    /// The name of the class: "double", "cell", ..., a published class's full name.
    std::string_view className() const;

    /// "2-by-3"
    std::string sizeText() const;

    /// The class name of an object array, null for others.
    Name objectClass() const { return objectClass_; }
    void setObjectClass(Name className) { objectClass_ = className; }

    /// The elements in column order; valid until the array is written to or freed.
    void const* elements() const { return elements_; }
    std::u16string_view text() const { return {static_cast<char16_t const*>(elements_), size()}; }
    std::span<Array* const> cells() const { return {static_cast<Array* const*>(elements_), size()}; }
    std::span<StringElement const> strings() const { return {static_cast<StringElement const*>(elements_), size()}; }
    std::span<Object* const> objects() const { return {static_cast<Object* const*>(elements_), size()}; }

    /// The function of a function array, null for others.
    HeldFunction* function() const
    {
        return classID_ == orbis::host_extensions::functionClass ? *functionSlot() : nullptr;
    }

    /// The elements of numbers and characters for writing, shared with no other array.
    void* writableElements();

    /// An element of a string array for writing, shared with no other array.
    StringElement& writableString(std::size_t index);

    /// Takes over the reference to `value`; null empties the cell.
    void setCell(std::size_t index, Array* value)
    {
        bool const isFirst = value && !value->cellsAround_ && !cellsAround_ && value != this && !payload()->isShared();
        if (!isFirst) [[unlikely]]
            return setCellWithCare(index, value);
        putCell(index, value);
    }

    void setObject(std::size_t index, Object* object);

    /// Sets the one object of a 1-by-1 array of just its class that has none yet, as for every object that a call
    /// passes; otherwise does nothing and returns false.
    bool setFirstObject(std::size_t index, Object& object);

    /// A new array of the same elements: one that shares the payload, or one that owns copies of all that it holds.
    /// Arrays that share data inside the source do so in a deep copy, too, so that a copy never outgrows its source.
    Array* shareData() const;
    Array* copyDeep() const;

    void setTemporary(bool isTemporary) { flags_ = isTemporary ? flags_ | temporaryFlag : flags_ & ~temporaryFlag; }

    /// The bytes that the host has allocated for it, without its payload.
    static constexpr std::size_t memory() { return BlockPool::blockSize; }

    /// The same for the payload, which other arrays may share: 0 where the elements are in the array.
    std::size_t payloadMemory() const;

    /// The recorded array of which the link is.
    static Array const& of(OriginLink const& link)
    {
        return *reinterpret_cast<Array const*>(reinterpret_cast<std::byte const*>(&link) - sizeof(Array));
    }

    /// The inline storage of arrays of cells or strings, whose elements are never there.
    void* scratch() const { return inlineStorage_; }

    /// Releases one reference; the last one destroys the array.
    void release() noexcept
    {
        if (removeReference())
            destroy();
    }

private:
    friend class CellNest;
    friend class DeepCopy;

    Array(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
        : classID_(classID),
          dimensions_{rows, columns},
          objectClass_(objectClass)
    {
    }

    ~Array() = default;

    /// An array whose elements, if it has any, are in the array itself, and are yet to be written.
    static Array* createHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    /// The same when the thread's cache has no block.
    static Array* createUncachedHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    /// The same when the thread has no cache: its origin is recorded where that is wanted.
    [[gnu::noinline]] static Array* createWithoutCache(hvClassID classID, std::size_t rows, std::size_t columns,
                                                       Name objectClass);
    static Array* createRecorded(Machine& machine, hvClassID classID, std::size_t rows, std::size_t columns,
                                 Name objectClass);

    /// Takes over `payload`, also when it throws.
    static Array* createAround(Payload& payload, hvClassID classID, std::size_t rows, std::size_t columns,
                               Name objectClass);
    Array* createSharing(Payload& payload) const;
    static Array* createLongText(std::size_t size);
    static Array* createZeroed(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    bool hasPayload() const { return elements_ != inlineStorage_; }
    Payload* payload() const { return Payload::of(elements_); }
    std::size_t elementSize() const { return arrayClass(classID_).elementSize; }
    void setCellWithCare(std::size_t index, Array* value);

    void putCell(std::size_t index, Array* value)
    {
        if (value) {
            ++value->cellsAround_;
            value->setTemporary(false);
        }
        if (Array* const old = std::exchange(cellSlots()[index], value)) [[unlikely]]
            old->releaseFromCell();
    }

    void releaseFromCell() noexcept
    {
        --cellsAround_;
        release();
    }

    Array** cellSlots() { return static_cast<Array**>(elements_); }
    StringElement* stringSlots() const { return static_cast<StringElement*>(elements_); }
    HeldFunction** functionSlot() const { return static_cast<HeldFunction**>(elements_); }
    Object** objectSlots() const { return static_cast<Object**>(elements_); }

    /// True when no one but cells holds the array.
    bool belongsToCells() const { return referenceCount() == cellsAround_; }

    /// Beside the number of references: an `OriginLink` is in the memory behind the array. So the last reference of
    /// such an array leaves no zero, and others need no test of it.
    static constexpr std::uint32_t recordedFlag = 0x80000000;

    std::uint32_t referenceCount() const { return references_ & ~recordedFlag; }

    /// True when it was the last one.
    bool removeReference() noexcept
    {
        if (--references_ == 0)
            return true;
        return (references_ & recordedFlag) != 0 && removeLastRecorded();
    }

    [[gnu::noinline]] bool removeLastRecorded() noexcept;

    void makeUnshared()
    {
        if (hasPayload() && payload()->isShared())
            copyPayload();
    }

    void copyPayload();

    /// A copy of the payload. Cells and objects in it are not retained yet.
    Payload* createPayloadCopy() const;
    Payload* copyStrings() const;
    void retainElements() const noexcept;
    void destroy() noexcept;
    void destroyObjects() noexcept;
    void destroyStrings() noexcept;
    void destroyFunction() noexcept;
    void destroyPlain() noexcept;
    [[gnu::noinline]] void destroyPlainPayload() noexcept;
    void freeHeader() noexcept;
    [[gnu::noinline]] void freeUncachedHeader() noexcept;

    hvClassID classID_;
    std::uint32_t cellsAround_ = 0; ///< how many of the references are held by cells
    std::size_t dimensions_[2];
    Name objectClass_;
    void* elements_ = inlineStorage_;
    alignas(8) mutable std::byte inlineStorage_[inlineCapacity];
};

static_assert(sizeof(Array) == BlockPool::blockSize);

[[gnu::always_inline]] inline Array* Array::createHeader(hvClassID classID, std::size_t rows, std::size_t columns,
                                                         Name objectClass)
{
    ThreadCache* const cache = threadCache;
    void* const block = cache ? BlockPool::acquire(*cache) : nullptr;
    if (!block) [[unlikely]]
        return createUncachedHeader(classID, rows, columns, objectClass);
    ++cache->counts.arrays;
    return new (block) Array(classID, rows, columns, objectClass);
}

inline void Array::freeHeader() noexcept
{
    ThreadCache* const cache = threadCache;
    if (!cache) [[unlikely]]
        return freeUncachedHeader();
    --cache->counts.arrays;
    BlockPool::release(this, *cache);
}

inline bool Array::setFirstObject(std::size_t index, Object& object)
{
    bool const isFirst = classID_ == hvOBJECT_CLASS && index < size() && !hasPayload() && !*objectSlots() &&
                         objectClass_ == object.className();
    if (isFirst) [[likely]] {
        object.addInternal();
        *objectSlots() = &object;
    }
    return isFirst;
}

inline void Array::setObject(std::size_t index, Object* object)
{
    makeUnshared();
    if (object)
        object->addInternal();
    // Last, because finalizing the object runs native code, which may use this array.
    if (Object* const old = std::exchange(objectSlots()[index], object))
        old->removeInternal();
}

} // namespace velmara
