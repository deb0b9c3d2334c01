#pragma once

#include "memory/BlockPool.hpp"
#include "names/InternedName.hpp"
#include "origins/OriginTable.hpp"

#include "orbis/COSInterface.hpp"

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <vector>

namespace velmara {

class Machine;
class ObjectClass;

/// A host object. It is finalized (destroys its instance data and becomes invalid) with its last reference, when it is
/// deleted, when its class is unpublished, and when its virtual machine is destroyed. Its memory is freed when no
/// handle, strong or weak, and no array is left.
class Object final : public orbis::COSInterface {
public:
    /// A new object without a reference, in the list of its class. It has no instance data until `initialize`.
    static Object& create(ObjectClass& cls);

    /// The object of an enumerator, whose number in the class's table is `enumerator`. It is never initialized.
    static Object& createEnumerator(ObjectClass& cls, std::size_t enumerator);

    static constexpr std::size_t maxEnumerators = std::numeric_limits<std::uint16_t>::max();

    void addExternal() { ++external_; }
    void addInternal() { ++internal_; }
    void addWeak() { ++weak_; }

    void removeExternal()
    {
        if (--external_ + internal_ == 0)
            onLastReference();
    }

    void removeInternal()
    {
        if (external_ + --internal_ == 0)
            onLastReference();
    }

    void removeWeak()
    {
        if (--weak_ == 0)
            freeIfUnreferenced();
    }

    /// The name of its class, which may have been unpublished.
    Name className() const { return own_.className; }

    /// Null once the object is finalized; so is `machine`.
    ObjectClass* classOf() const { return class_; }
    Machine* machine() const { return machine_; }

    bool isValid() const { return state_ == State::Valid; }

    /// Each enumerator is one object, which scripts neither create nor delete.
    bool isEnumerator() const { return enumerator_ != 0; }

    std::size_t enumerator() const { return enumerator_ - std::size_t(1); }

    /// True from the beginning of its finalization on: weak handles to it are null.
    bool isFinalized() const { return state_ >= State::Finalizing; }

    /// Creates the instance data of the class and its superclasses, superclasses first. When one fails, what was
    /// created is destroyed again and the object stays uninitialized. To be called inside an entry of its machine.
    void initialize();

    /// Destroys the instance data, the most derived class's first, and leaves the object invalid, without class and
    /// virtual machine. Nothing escapes; a second call does nothing.
    void finalize() noexcept
    {
        if (!isFinalized())
            finalizeOnce();
    }
    void finalizeIfUnreferenced() noexcept;

    void setNativeObject(orbis::COSNameID const& className, void* object) override;
    void* getNativeObject(orbis::COSNameID const& className) const override;
    void setValid(bool valid) override;
    void addReference() override { addExternal(); }
    void removeReference() override { removeExternal(); }
    int getExternalReferenceCount() const override { return external_; }
    int getInternalReferenceCount() const override { return internal_; }
    int weakReferenceCount() const { return weak_; }

    /// Throws "VELMARA:object:invalid" or "VELMARA:object:otherVirtualMachine" when the object cannot be used.
    void requireUsable(Machine const& machine) const
    {
        if (!isValid() || machine_ != &machine) [[unlikely]]
            throwUnusable();
    }
    [[noreturn]] void throwUnusable() const;

    /// The same for each of the objects that is not null.
    static void requireUsable(Machine const& machine, std::span<Object* const> objects)
    {
        for (Object const* const object : objects)
            if (object)
                object->requireUsable(machine);
    }

    std::uint32_t& embedderNumber() { return own_.embedderNumber; }

    /// The native object for its own class, null when there is none.
    void const* ownNativeObject() const { return own_.native; }

    /// Where it was created, as its virtual machine's table knows it.
    OriginTable::Number origin() const { return own_.origin; }

    /// The bytes that the host has allocated for it.
    std::size_t memory() const
    {
        return BlockPool::blockSize + (further_ ? sizeof(std::vector<Slot>) + further_->capacity() * sizeof(Slot) : 0);
    }

    /// Calls `visit(className, native)` for each native object that is recorded.
    template <class Visit>
    void forEachNativeObject(Visit const& visit) const
    {
        if (own_.native)
            visit(own_.className, own_.native);
        if (!further_)
            return;
        for (Slot const& slot : *further_)
            if (slot.native)
                visit(slot.className, slot.native);
    }

private:
    friend class ObjectList;

    enum class State : std::uint8_t { Valid, Invalid, Finalizing, Finalized };

    /// The native object for one class name. A superclass that created none and for which none was recorded has that of
    /// the object's own class.
    struct Slot {
        bool created = false;             ///< by the class's `createInstanceData`, which may have given null
        bool recorded = false;            ///< by that, or by `setNativeObject` since
        OriginTable::Number origin = 0;   ///< of the object: it needs no room here
        std::uint32_t embedderNumber = 0; ///< likewise
        Name className = nullptr;
        void* native = nullptr;

        void record(void* object)
        {
            native = object;
            recorded = true;
        }
    };

    Object(ObjectClass& cls, std::size_t enumerator);
    ~Object() = default;

    /// `enumerator` is counted from 1 here.
    static Object& create(ObjectClass& cls, std::size_t enumerator);

    /// The same when the thread has no cache: its origin is recorded where that is wanted.
    [[gnu::noinline]] static Object& createWithoutCache(ObjectClass& cls, std::size_t enumerator);

    static void operator delete(void* block) noexcept;

    void finalizeOnce() noexcept;
    void onLastReference() noexcept;
    void freeIfUnreferenced() noexcept;

    Slot& furtherSlotOf(Name className);
    Slot* findFurther(Name className) const;
    void requireNull(void const* object) const;
    void recordFurther(Name className, void* object);
    void createInstanceData(ObjectClass& cls);
    void destroyInstanceData() noexcept;
    void destroyInstanceData(ObjectClass& cls) noexcept;
    void forgetNativeObjects() noexcept;
    void notifyObserver() noexcept;

    std::int32_t external_ = 0;
    std::int32_t internal_ = 0;
    std::int32_t weak_ = 0;
    State state_ = State::Valid;
    bool isInitialized_ = false;
    std::uint16_t enumerator_ = 0; ///< its number counted from 1, 0 for other objects
    Slot own_;
    ObjectClass* class_;
    Machine* machine_;
    std::unique_ptr<std::vector<Slot>> further_; ///< few objects have any
    Object* previous_ = nullptr;
    Object* next_ = nullptr;
};

} // namespace velmara
