#include "system/Object.hpp"

#include "system/Class.hpp"
#include "system/HvmState.hpp"
#include "values/LiveCounters.hpp"
#include "values/hostError.hpp"

#include <algorithm>
#include <utility>

namespace velmara {

Object::Object(Class& cls) : own_{.className = cls.name()}, class_(&cls), machine_(&cls.machine())
{
    cls.objects().add(*this);
    ++liveCountsOfThisThread().objects;
}

Object::Object(Class& cls, std::size_t enumerator) : Object(cls)
{
    enumerator_ = static_cast<std::uint16_t>(enumerator + 1);
}

Object::~Object()
{
    --liveCountsOfThisThread().objects;
}

void Object::initialize()
{
    if (!isValid())
        throwHostError("VELMARA:object", "invalid", {std::string(className()->view())});
    if (isInitialized_)
        throwHostError("VELMARA:object", "initialized", {std::string(className()->view())});
    HvmState::Entry const entry(*machine_);
    isInitialized_ = true;
    try {
        auto const& classes = class_->linearization();
        std::for_each(classes.rbegin(), classes.rend(), [this](Class* cls) { createInstanceData(*cls); });
    } catch (...) {
        destroyInstanceData();
        isInitialized_ = false;
        throw;
    }
}

void Object::createInstanceData(Class& cls)
{
    slotOf(cls.name()); // room first: what the class makes must not be lost
    void* const data = cls.info().createInstanceData();
    if (isValid()) {
        Slot& slot = slotOf(cls.name());
        slot.native = data;
        slot.made = true;
        slot.recorded = data != nullptr;
        return;
    }
    try {
        cls.info().destroyInstanceData(this, data);
    } catch (...) {
    }
    throwHostError("VELMARA:object", "invalid", {std::string(className()->view())});
}

void Object::destroyInstanceData() noexcept
{
    // Destroying may retract the object, which makes it forget what is left: each slot is looked up when its
    // turn comes, and is empty from then on.
    for (Class* const cls : class_->linearization()) {
        Slot* const slot = const_cast<Slot*>(cls->name() == own_.className ? &own_ : findFurther(cls->name()));
        if (!slot || !slot->made)
            continue;
        void* const data = std::exchange(slot->native, nullptr);
        slot->made = false;
        try {
            cls->info().destroyInstanceData(this, data);
        } catch (...) {
        }
    }
}

void Object::end() noexcept
{
    if (isEnded())
        return;
    bool const hasInstanceData = isValid() && isInitialized_;
    state_ = State::Ending;
    class_->objects().remove(*this);
    {
        HvmState::Entry const entry(*machine_);
        if (hasInstanceData)
            destroyInstanceData();
        forgetNativeObjects();
        class_ = nullptr;
        machine_ = nullptr;
    }
    state_ = State::Ended;
    freeIfUnreferenced();
}

void Object::lastReferenceGone() noexcept
{
    if (isEnded())
        freeIfUnreferenced();
    else
        end();
}

void Object::freeIfUnreferenced() noexcept
{
    if (state_ == State::Ended && external_ + internal_ + weak_ == 0)
        delete this;
}

void Object::setNativeObject(orbis::COSNameID const& name, void* object)
{
    if (isValid()) {
        Slot& slot = slotOf(name.interned());
        slot.native = object;
        slot.recorded = true;
    } else if (object)
        throwHostError("VELMARA:object", "invalid", {std::string(className()->view())});
}

void* Object::getNativeObject(orbis::COSNameID const& name) const
{
    if (name.interned() == own_.className)
        return own_.native;
    Slot const* const slot = findFurther(name.interned());
    if (!slot)
        return nullptr;
    return slot->made && !slot->recorded ? own_.native : slot->native;
}

void Object::setValid(bool valid)
{
    if (!valid)
        forgetNativeObjects();
    if (!isEnded())
        state_ = valid ? State::Valid : State::Invalid;
}

void Object::forgetNativeObjects() noexcept
{
    own_.native = nullptr;
    own_.made = false;
    further_.clear();
}

Object::Slot& Object::slotOf(Name name)
{
    if (name == own_.className)
        return own_;
    if (Slot const* const slot = findFurther(name))
        return const_cast<Slot&>(*slot);
    return further_.emplace_back(Slot{.className = name});
}

Object::Slot const* Object::findFurther(Name name) const
{
    auto const slot = std::ranges::find(further_, name, &Slot::className);
    return slot == further_.end() ? nullptr : &*slot;
}

} // namespace velmara
