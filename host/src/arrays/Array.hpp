#pragma once

#include "arrays/ArrayClass.hpp"
#include "arrays/Payload.hpp"
#include "arrays/StringElement.hpp"
#include "memory/SmallMemory.hpp"
#include "names/InternedName.hpp"
#include "objects/Object.hpp"

#include "libhv/hvArray.hpp"

#include <cstring>
#include <new>
#include <span>
#include <string_view>
#include <utility>

namespace velmara {

/// What stands behind every `hvArray_tag`: class, sizes, and elements. Few plain elements (a scalar, a short text) and
/// the one element of an object array stand in the array itself; other elements stand in a payload that copies share
/// until one of them writes. Elements are numbers, characters, `Array*` (cells, null when empty), `StringElement`s or
/// `Object*` (null allowed).
///
/// It keeps one allocation in all for what calls pass around most. Functions that make, copy or write throw
/// `bad_alloc` without memory, and leave everything as it was.
class Array final : public hvArray_tag {
public:
    /// Of the place in the array itself, in bytes.
    static constexpr std::size_t sizeOfPlace = 40;

    /// A new array of zeros, empty cells or missing strings, of any class but objects, with one reference.
    static Array* create(hvClassID classID, std::size_t rows, std::size_t columns)
    {
        bool const isScalar = rows == 1 && columns == 1 && isPlain(classID);
        return isScalar ? createScalar(classID, 0) : createZeroed(classID, rows, columns, nullptr);
    }

    /// A new 1-by-1 array of a plain class from the element's bytes, the first of the eight.
    static Array* createScalar(hvClassID classID, std::uint64_t bytes)
    {
        Array* const array = createHeader(classID, 1, 1, nullptr);
        std::memcpy(array->place_, &bytes, sizeof bytes);
        return array;
    }

    /// A new array of `size` characters: one row, or 0-by-0 when there are none. They are yet to be written to
    /// `newText`.
    static Array* createText(std::size_t size)
    {
        if (size > sizeOfPlace / sizeof(char16_t))
            return createLongText(size);
        return createHeader(hvCHAR_CLASS, size != 0, size, nullptr);
    }

    char16_t* newText() { return static_cast<char16_t*>(elements_); }

    /// A new array of a plain class with a copy of `elements`, which are as many as it has.
    static Array* createCopy(hvClassID classID, std::size_t rows, std::size_t columns, void const* elements);

    /// A new array of null objects, typed by a class name.
    static Array* createObjects(Name className, std::size_t rows, std::size_t columns)
    {
        if (rows != 1 || columns != 1)
            return createZeroed(hvOBJECT_CLASS, rows, columns, className);
        Array* const array = createHeader(hvOBJECT_CLASS, 1, 1, className);
        *array->objectSlots() = nullptr;
        return array;
    }

    static Array* of(hvArray_tag* array) { return static_cast<Array*>(array); }
    static Array const* of(hvArray_tag const* array) { return static_cast<Array const*>(array); }

    hvClassID classID() const { return classID_; }
    std::size_t rows() const { return dimensions_[0]; }
    std::size_t columns() const { return dimensions_[1]; }
    std::size_t size() const { return dimensions_[0] * dimensions_[1]; }
    std::size_t const* dimensions() const { return dimensions_; }

    /// The name of the class: "double", "cell", ..., a published class's full name.
    std::string_view className() const;

    /// The class name of an object array, null for others.
    Name objectClass() const { return objectClass_; }
    void setObjectClass(Name className) { objectClass_ = className; }

    /// The elements in column order; valid until the array is written to or freed.
    void const* elements() const { return elements_; }
    std::u16string_view text() const { return {static_cast<char16_t const*>(elements_), size()}; }
    std::span<Array* const> cells() const { return {static_cast<Array* const*>(elements_), size()}; }
    std::span<StringElement const> strings() const { return {static_cast<StringElement const*>(elements_), size()}; }
    std::span<Object* const> objects() const { return {static_cast<Object* const*>(elements_), size()}; }

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

    /// Sets the one object of a 1-by-1 array of just its class, where none is yet; otherwise does nothing and gives
    /// false. What every object that crosses passes through.
    bool takeFirstObject(std::size_t index, Object& object);

    /// A new array of the same elements: one that shares the payload, or one that owns copies of all that it holds.
    /// What shares data inside the source shares it in a deep copy, too, so that a copy never outgrows its source.
    Array* shareData() const;
    Array* copyDeep() const;

    void setTemporary(bool isTemporary) { flags_ = isTemporary ? flags_ | temporaryFlag : flags_ & ~temporaryFlag; }

    /// The place for an element in the array itself. Arrays of cells and of strings keep none there, so it is free for
    /// what is worked out about them.
    void* freePlace() const { return place_; }

    /// Gives one reference back; the last one frees the array.
    void release() noexcept
    {
        if (--references_ == 0)
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

    /// An array whose elements, if it has any, stand in the array itself, and are yet to be written.
    static Array* createHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    /// The same where the thread keeps no memory.
    static Array* createFirstHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    /// Takes over `payload`, also when it throws.
    static Array* createAround(Payload& payload, hvClassID classID, std::size_t rows, std::size_t columns,
                               Name objectClass);
    Array* createSharing(Payload& payload) const;
    static Array* createLongText(std::size_t size);
    static Array* createZeroed(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass);

    bool hasPayload() const { return elements_ != place_; }
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
    Object** objectSlots() const { return static_cast<Object**>(elements_); }

    /// True when no one but cells holds the array.
    bool belongsToCells() const { return references_ == cellsAround_; }

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
    void destroyPlain() noexcept;
    [[gnu::noinline]] void destroyPlainPayload() noexcept;
    void freeHeader() noexcept;
    void freeHeaderWithoutShare() noexcept;

    hvClassID classID_;
    std::uint32_t cellsAround_ = 0; ///< how many of the references are held by cells
    std::size_t dimensions_[2];
    Name objectClass_;
    void* elements_ = place_;
    alignas(8) mutable std::byte place_[sizeOfPlace]; ///< for elements that stand in the array itself
};

static_assert(sizeof(Array) == SmallMemory::size);

inline Array* Array::createHeader(hvClassID classID, std::size_t rows, std::size_t columns, Name objectClass)
{
    ThreadShare* const share = shareOfThisThread;
    void* const memory = share ? SmallMemory::takeKept(*share) : nullptr;
    if (!memory) [[unlikely]]
        return createFirstHeader(classID, rows, columns, objectClass);
    ++share->counts.arrays;
    return new (memory) Array(classID, rows, columns, objectClass);
}

inline void Array::freeHeader() noexcept
{
    ThreadShare* const share = shareOfThisThread;
    if (!share) [[unlikely]]
        return freeHeaderWithoutShare();
    --share->counts.arrays;
    SmallMemory::giveBack(this, *share);
}

inline bool Array::takeFirstObject(std::size_t index, Object& object)
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
    // Last, because an object that ends runs native code, which may use this array.
    if (Object* const old = std::exchange(objectSlots()[index], object))
        old->removeInternal();
}

} // namespace velmara
