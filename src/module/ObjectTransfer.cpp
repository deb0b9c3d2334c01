#include "orbis/factory/marshaling/ObjectTransfer.hpp"

#include "orbis/factory/base/errorIdentities.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"

#include "basic/HostDependents.hpp"
#include "marshal/throwError.hpp"
#include "module/NamedClassInfo.hpp"
#include "module/objectShares.hpp"

#include "host_extensions/NativeOwner.hpp"
#include "orbis/COSInterfacePtr.hpp"
#include "orbis/objectArrays.hpp"

#include <algorithm>
#include <exception>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orbis::factory::detail {

namespace {

using ObjectShare = std::shared_ptr<void>;
using basic::KeptObjects;

COSInterface* hostOf(hvArray_tag const* array)
{
    return array && array->get_number_of_elements() != 0 ? static_cast<COSInterface*>(omGetArrayElement(array, 0))
                                                         : nullptr;
}

/// The host object of what a part is inside of, at last; the given one if that is no part.
COSInterface* outermost(COSInterface* host)
{
    for (;;) {
        auto const* const share = objectShares().find(host);
        auto const* const part = share ? std::get_if<basic::PartOf>(share) : nullptr;
        if (!part)
            return host;
        host = part->whole;
    }
}

bool isSame(ObjectShare const& a, ObjectShare const& b)
{
    return !a.owner_before(b) && !b.owner_before(a);
}

/// Returns whether an object is `object`, or keeps it, itself or through others.
bool keeps(ObjectShare const& keeper, ObjectShare const& object)
{
    std::vector<ObjectShare const*> open{&keeper};
    KeptObjects seen;
    while (!open.empty()) {
        ObjectShare const& next = *open.back();
        open.pop_back();
        if (isSame(next, object))
            return true;
        Destroyer const* const destroyer = destroyerOf(next);
        if (!destroyer || destroyer->kept.empty() || !seen.insert(next).second)
            continue;
        for (ObjectShare const& kept : destroyer->kept)
            open.push_back(&kept);
    }
    return false;
}

/// What the object of a share keeps; without one it is native code's.
KeptObjects& keptBy(ObjectShare const& share)
{
    Destroyer* const destroyer = share ? destroyerOf(share) : nullptr;
    return destroyer ? destroyer->kept : basic::registry().requireDependents().keptForNative.of(share);
}

} // namespace

struct ObjectTransfer::State {
    COSInterfacePtr self;          ///< the object that the call is on
    COSInterfacePtr whole;         ///< what that is inside of, at last
    ObjectShare share;             ///< in the whole, or in the constructed object
    KeptObjects* list = nullptr;   ///< what the whole keeps
    std::vector<ObjectShare> kept; ///< by this call
    std::vector<COSInterfacePtr> newlyShared;
    std::vector<COSInterfacePtr> taken;
    NamedClass const* constructed = nullptr;

    bool isTaken(COSInterface const* host) const
    {
        return std::ranges::any_of(taken, [=](COSInterface const* other) { return other == host; });
    }

    /// A share in the object, which gets shared if its host object owned it alone; empty if it is native code's.
    ObjectShare shareOf(COSInterface* host, NamedClass const& wanted)
    {
        if (auto const* const known = objectShares().find(host))
            return std::holds_alternative<ObjectShare>(*known) ? std::get<ObjectShare>(*known) : nullptr;
        auto* const owner = host_extensions::nativeOwnerOf(host);
        if (owner && owner->nativeOwner() == std::string_view("native"))
            return nullptr;
        auto const* const info = dynamic_cast<NamedClassInfo const*>(owner);
        if (!info)
            throwError(orbis_factory::orbis_factory::cannot_keep(className(wanted),
                                                                 "no Module has published the class of its owner"));
        newlyShared.reserve(newlyShared.size() + 1);
        NamedClass const& owned = info->named();
        ObjectShare result = shareOwned(owned, host, nativeOf(owned, static_cast<COSInterface const*>(host)));
        newlyShared.emplace_back(host);
        return result;
    }

    void undo() noexcept
    {
        for (ObjectShare const& object : kept)
            if (list)
                list->erase(object);
        kept.clear();
        share = nullptr;
        for (COSInterfacePtr const& host : newlyShared)
            unshare(host);
    }
};

ObjectTransfer::ObjectTransfer(COSInterface* whole) : state_(new State)
{
    state_->self = whole;
    if (whole)
        state_->whole = outermost(whole);
}

ObjectTransfer::~ObjectTransfer()
{
    if (state_.get())
        state_->undo();
}

void ObjectTransfer::keep(NamedClass const& named, hvArray_tag const* array)
{
    COSInterface* const given = hostOf(array);
    COSInterface* const host = given ? outermost(given) : nullptr;
    State& state = *state_;
    if (!host || host == state.whole)
        return;
    if (state.isTaken(given))
        throwError(orbis_factory::orbis_factory::cannot_keep(className(named), "the call takes it"));
    ObjectShare const object = state.shareOf(host, named);
    if (!object)
        return;
    state.kept.reserve(state.kept.size() + 1);
    if (state.whole) {
        if (!state.list) {
            state.share = state.shareOf(state.whole, named);
            state.list = &keptBy(state.share);
        }
        bool const isKept = state.share && state.share.use_count() > 2; // here and by its host object it always is
        if (isKept && keeps(object, state.share))
            throwError(
                orbis_factory::orbis_factory::cannot_keep(className(named), "it keeps the object that would keep it"));
        if (!state.list->insert(object).second)
            return;
    }
    state.kept.push_back(object);
}

void ObjectTransfer::take(NamedClass const& named, hvArray_tag const* array)
{
    COSInterface* const host = hostOf(array);
    if (!host)
        return;
    requireOwned(named, array, true);
    if (state_->isTaken(host) || host == state_->self)
        throwError(orbis_factory::orbis_factory::cannot_take(className(named), "it takes part in the call twice"));
    state_->taken.emplace_back(host);
}

void ObjectTransfer::prepare(NamedClass const& named, COSInterface* host, void* object)
{
    State& state = *state_;
    if (state.kept.empty())
        return;
    if (named.isOwnedByHost) {
        state.share = ObjectShare(object, Destroyer());
        objectShares().give(host, state.share);
        state.constructed = &named;
    }
    state.list = &keptBy(state.share);
    for (ObjectShare const& kept : state.kept)
        state.list->insert(kept);
}

ObjectTransfer::Completion::Completion(ObjectTransfer& transfer)
    : transfer_(transfer),
      exceptions_(std::uncaught_exceptions())
{
}

ObjectTransfer::Completion::~Completion()
{
    if (std::uncaught_exceptions() == exceptions_)
        transfer_.complete();
}

void ObjectTransfer::complete() noexcept
{
    NewObject<State> const state(state_.release());
    if (state->constructed)
        destroyerOf(state->share)->destroy = state->constructed->destroy;
    for (COSInterfacePtr& host : state->taken)
        host->setValid(false);
}

} // namespace orbis::factory::detail
