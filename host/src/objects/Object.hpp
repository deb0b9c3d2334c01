#pragma once

#include "names/InternedName.hpp"

#include "orbis/COSInterface.hpp"

#include <cstdint>
#include <limits>

#include <memory>
#include <vector>

namespace velmara {

class Machine;
class ObjectClass;

/// A host object. It lives while it is referred to; it ends (gives up its instance data and becomes invalid) with
/// its last reference, when it is deleted, when its class is unpublished, and when its virtual machine ends. Its
/// storage goes when no handle, strong or weak, and no array is left.
class Object final : public orbis::COSInterface {
public:
    /// A new object of `cls` with no reference yet, entered in the class's list. It has no instance data until
    /// `initialize`.
    static Object& make(ObjectClass& cls);

    /// The object of an enumerator of `cls`: it is never initialized, so it has no instance data.
    static Object& makeEnumerator(ObjectClass& cls, std::size_t enumerator);

    static constexpr std::size_t mostEnumerators = std::numeric_limits<std::uint16_t>::max();

    void addExternal() { ++external_; }
    void addInternal() { ++internal_; }
    void addWeak() { ++weak_; }

    void removeExternal()
    {
        if (--external_ + internal_ == 0)
            lastReferenceGone();
    }

    void removeInternal()
    {
        if (external_ + --internal_ == 0)
            lastReferenceGone();
    }

    void removeWeak()
    {
        if (--weak_ == 0)
            freeIfUnreferenced();
    }

    /// The name of its class, also when the class is gone.
    Name className() const { return own_.className; }

    /// Null once the object has ended.
    ObjectClass* classOf() const { return class_; }
    Machine* machine() const { return machine_; }

    bool isValid() const { return state_ == State::Valid; }

    /// Enumerators are one object each, which scripts neither make nor end.
    bool isEnumerator() const { return enumerator_ != 0; }

    /// The number of the enumerator in its class's table.
    std::size_t enumerator() const { return enumerator_ - std::size_t(1); }

    /// True when the object's life is over: weak handles to it are null.
    bool isFinalized() const { return state_ >= State::Finalizing; }

    /// Makes the instance data of the class and its superclasses, superclasses first. When one fails, what was
    /// made is destroyed again and the object stays uninitialised.
    void initialize();

    /// Gives up the instance data, the most derived class's first, and leaves the object invalid, without class
    /// and virtual machine. Nothing escapes; a second call does nothing.
    void finalize() noexcept;
    void finalizeIfUnreferenced() noexcept;

    void setNativeObject(orbis::COSNameID const& className, void* object) override;
    void* getNativeObject(orbis::COSNameID const& className) const override;
    void setValid(bool valid) override;
    void addReference() override { addExternal(); }
    void removeReference() override { removeExternal(); }
    int getExternalReferenceCount() const override { return external_; }
    int getInternalReferenceCount() const override { return internal_; }
    int weakReferenceCount() const { return weak_; }

    /// The native object for its own class, null when there is none.
    void const* ownNativeObject() const { return own_.native; }

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

    /// The native object for one class name; `made` when the class's `createInstanceData` ran for it, `recorded` when
    /// that or someone since gave one. For a superclass without one of its own, that of the object's class counts.
    struct Slot {
        bool made = false;
        bool recorded = false;
        Name className = nullptr;
        void* native = nullptr;

        void record(void* object)
        {
            native = object;
            recorded = true;
        }
    };

    explicit Object(ObjectClass& cls, std::size_t enumerator = 0);
    ~Object();

    static void* operator new(std::size_t size);
    static void operator delete(void* memory) noexcept;

    void lastReferenceGone() noexcept;
    void freeIfUnreferenced() noexcept;

    Slot& furtherSlotOf(Name className);
    Slot* findFurther(Name className) const;
    void refuseNativeObject(void const* object) const;
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
