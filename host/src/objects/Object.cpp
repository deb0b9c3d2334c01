#include "objects/Object.hpp"

#include "errors/hostError.hpp"
#include "memory/ThreadCache.hpp"
#include "memory/allocate.hpp"
#include "objects/DeferredFinalizer.hpp"
#include "objects/ObjectClass.hpp"

#include "host_extensions/ObjectObserver.hpp"

#include <algorithm>
#include <utility>

namespace velmara {

inline void Object::operator delete(void* block) noexcept
{
    ThreadCache& cache = currentThreadCache();
    --cache.counts.objects;
    BlockPool::release(block, cache);
}

inline Object::Object(ObjectClass& cls, std::size_t enumerator)
    : enumerator_(static_cast<std::uint16_t>(enumerator)),
      own_{.className = cls.name()},
      class_(&cls),
      machine_(&cls.machine())
{
    cls.objects().add(*this);
}

inline Object& Object::create(ObjectClass& cls, std::size_t enumerator)
{
    static_assert(sizeof(Object) <= BlockPool::blockSize);
    ThreadCache* const cache = threadCache;
    if (!cache) [[unlikely]]
        return createWithoutCache(cls, enumerator);
    void* block = BlockPool::acquire(*cache);
    if (!block) [[unlikely]]
        block = allocate(BlockPool::blockSize);
    ++cache->counts.objects;
    return *new (block) Object(cls, enumerator);
}

Object& Object::createWithoutCache(ObjectClass& cls, std::size_t enumerator)
{
    auto& object = *new (allocate(BlockPool::blockSize)) Object(cls, enumerator);
    ++currentThreadCache().counts.objects;
    if (Machine* const machine = Machine::recording(); machine == &cls.machine())
        object.own_.origin = machine->origins().current();
    return object;
}

Object& Object::create(ObjectClass& cls)
{
    return create(cls, 0);
}

Object& Object::createEnumerator(ObjectClass& cls, std::size_t enumerator)
{
    return create(cls, enumerator + 1);
}

[[gnu::flatten]] void Object::initialize()
{
    if (!isValid() || isInitialized_) [[unlikely]]
        throwHostError("VELMARA:object", isValid() ? "initialized" : "invalid", {className()->string()});
    isInitialized_ = true;
    try {
        auto const& classes = class_->linearization();
        std::for_each(classes.rbegin(), classes.rend(), [this](ObjectClass* cls) { createInstanceData(*cls); });
    } catch (...) {
        if (!isFinalized()) // else it has neither class nor instance data
            destroyInstanceData();
        isInitialized_ = false;
        throw;
    }
}

void Object::createInstanceData(ObjectClass& cls)
{
    if (&cls != class_)
        furtherSlotOf(cls.name()); // reserved first: what the class creates must not be lost
    void* const data = cls.info().createInstanceData();
    if (isValid()) [[likely]] {
        Slot& slot = &cls == class_ ? own_ : furtherSlotOf(cls.name());
        slot.native = data;
        slot.created = true;
        slot.recorded = data != nullptr;
        return;
    }
    try {
        cls.info().destroyInstanceData(this, data);
    } catch (...) {
    }
    throwHostError("VELMARA:object", "invalid", {className()->string()});
}

void Object::destroyInstanceData() noexcept
{
    for (ObjectClass* const cls : class_->linearization())
        destroyInstanceData(*cls);
}

void Object::destroyInstanceData(ObjectClass& cls) noexcept
{
    // Destructors may invalidate the object, which clears all slots: each is looked up when its turn comes.
    Slot* const slot = cls.name() == own_.className ? &own_ : findFurther(cls.name());
    if (!slot || !slot->created)
        return;
    void* const data = std::exchange(slot->native, nullptr);
    slot->created = false;
    bool isReleased = false;
    try {
        isReleased = cls.info().destroyInstanceData(this, data);
    } catch (...) {
    }
    if (data && !isReleased && machine_->observer())
        machine_->observer()->nativeForgotten(this, data, true);
}

void Object::freeIfUnreferenced() noexcept
{
    if (state_ == State::Finalized && external_ + internal_ + weak_ == 0)
        delete this;
}

[[gnu::flatten]] void Object::finalizeOnce() noexcept
{
    bool const hasInstanceData = isValid() && isInitialized_;
    state_ = State::Finalizing;
    class_->objects().remove(*this);
    {
        Machine::Entry const entry(*machine_);
        DeferredFinalizer::Scope const nesting(machine_->deferredFinalizer());
        if (hasInstanceData)
            destroyInstanceData();
        notifyObserver();
        forgetNativeObjects();
        class_ = nullptr;
        machine_ = nullptr;
    }
    state_ = State::Finalized;
    freeIfUnreferenced();
}

void Object::onLastReference() noexcept
{
    if (isFinalized())
        freeIfUnreferenced();
    else if (!machine_->deferredFinalizer().defer(*this))
        finalizeOnce();
}

void Object::throwUnusable() const
{
    throwHostError("VELMARA:object", isValid() ? "otherVirtualMachine" : "invalid", {className()->string()});
}

void Object::finalizeIfUnreferenced() noexcept
{
    if (external_ + internal_ == 0)
        finalize();
}

void Object::setNativeObject(orbis::COSNameID const& name, void* object)
{
    if (!isValid()) [[unlikely]]
        return requireNull(object);
    if (name.interned() == own_.className) [[likely]]
        own_.record(object);
    else
        recordFurther(name.interned(), object);
}

[[gnu::noinline]] void Object::recordFurther(Name className, void* object)
{
    furtherSlotOf(className).record(object);
}

/// An invalid object has no native objects, and gets none.
[[gnu::noinline]] void Object::requireNull(void const* object) const
{
    if (object)
        throwHostError("VELMARA:object", "invalid", {className()->string()});
}

void* Object::getNativeObject(orbis::COSNameID const& name) const
{
    if (name.interned() == own_.className)
        return own_.native;
    Slot const* const slot = findFurther(name.interned());
    if (!slot)
        return nullptr;
    return slot->created && !slot->recorded ? own_.native : slot->native;
}

void Object::setValid(bool valid)
{
    if (!isFinalized())
        state_ = valid ? State::Valid : State::Invalid;
    if (valid || !machine_)
        return;
    addExternal(); // the observer may release the last reference
    {
        Machine::Entry const entry(*machine_);
        notifyObserver();
    }
    forgetNativeObjects();
    removeExternal();
}

void Object::notifyObserver() noexcept
{
    orbis::host_extensions::ObjectObserver* const observer = machine_->observer();
    if (!observer)
        return;
    forEachNativeObject([&](Name, void* native) { observer->nativeForgotten(this, native, isFinalized()); });
    observer->objectGone(this);
}

void Object::forgetNativeObjects() noexcept
{
    own_.native = nullptr;
    own_.created = false;
    if (further_)
        further_->clear();
}

Object::Slot& Object::furtherSlotOf(Name name)
{
    if (Slot* const slot = findFurther(name))
        return *slot;
    if (!further_)
        further_ = std::make_unique<std::vector<Slot>>();
    return further_->emplace_back(Slot{.className = name});
}

Object::Slot* Object::findFurther(Name name) const
{
    if (!further_)
        return nullptr;
    auto const slot = std::ranges::find(*further_, name, &Slot::className);
    return slot == further_->end() ? nullptr : &*slot;
}

} // namespace velmara
