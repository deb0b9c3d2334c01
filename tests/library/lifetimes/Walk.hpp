#pragma once

#include "library/lifetimes/Model.hpp"
#include "library/lifetimes/Thing.hpp"

#include "orbis/factory/check.hpp"
#include "orbis/factory/ownership/FooRegistry.hpp"
#include "velmara/Hvm.hpp"
#include "velmara/LiveCounts.hpp"

#include "host_extensions/host_extensions.hpp"
#include "orbis/objectArrays.hpp"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lifetimes {

/// Does what scripts and native code may do with objects of one kind, one thing after the other by chance, beside a
/// model of them.
template <int K>
class Walk {
public:
    /// `random` gives any number from 0 to 255 at least.
    explicit Walk(std::function<unsigned()> random) : random_(std::move(random))
    {
        begin(0);
        begin(1);
        enter(0);
    }

    /// The first difference between what is and what is to be; empty when there is none.
    std::string run(int steps)
    {
        for (int i = 0; i < steps && wrong_.empty(); ++i) {
            step();
            compare();
            if (!wrong_.empty())
                wrong_ = "step " + std::to_string(i) + ", " + operation_ + ": " + wrong_;
        }
        for (int const i : {pick(2), 0, 1})
            endMachine(i);
        slots_.clear();
        for (Native& native : model_.natives)
            if (native.isAlive && native.isHeld)
                destroy(native);
        check(living.empty() && velmara::liveCounts() == velmara::LiveCounts{}, "something is left");
        return wrong_;
    }

private:
    using T = Thing<K>;
    using Native = Model::Native;
    using Host = Model::Host;
    using Registry = orbis::factory::basic::BindingRegistry;

    /// An array of the script's with a host object.
    struct Slot {
        Host* host;
        velmara::ArrayPtr array;
    };

    void check(bool isRight, char const* what)
    {
        if (!isRight && wrong_.empty())
            wrong_ = what;
    }
    template <class F>
    void checkRefused(F&& action, char const* what)
    {
        try {
            action();
        } catch (std::exception const&) {
            return;
        }
        check(false, what);
    }

    int pick(std::size_t n) { return static_cast<int>(random_() % n); }
    velmara::Hvm& hvm() { return *machines_[model_.current]; }
    static T* thing(Native const& native)
    {
        return static_cast<T*>(static_cast<orbis::factory::RootClass<T>*>(native.address));
    }

    void begin(int i)
    {
        machines_[i] = std::make_unique<velmara::Hvm>();
        machines_[i]->reportLeaks([this](std::string const& leak) { wrong_ = leak; });
        velmara::Hvm::Scope const scope(*machines_[i]);
        T::publish();
    }

    void endMachine(int i)
    {
        machines_[i].reset();
        model_.endObjects(i);
        if (model_.current == i)
            model_.current = -1;
    }

    /// Makes a virtual machine current, or none, and tells it what went elsewhere.
    void enter(int i)
    {
        scope_.reset();
        model_.current = i;
        if (i < 0)
            return;
        scope_.emplace(hvm());
        for (Native& native : model_.natives)
            if (!native.isAlive && model_.boundTo(native))
                retract(native);
    }

    void step()
    {
        struct Operation {
            char const* name;
            void (Walk::*run)(Native&, Slot&);
            int weight;
        };
        static constexpr Operation operations[] = {
            {"construct", &Walk::construct, 20}, {"cross", &Walk::cross, 20},     {"pass", &Walk::pass, 10},
            {"forget", &Walk::forget, 22},       {"refer", &Walk::setNext, 14},   {"release", &Walk::release, 4},
            {"delete", &Walk::deleteObject, 4},  {"unload", &Walk::unload, 1},    {"drop", &Walk::drop, 10},
            {"retract", &Walk::retractAny, 4},   {"go", &Walk::changeMachine, 6},
        };
        Operation const* operation = operations;
        for (int at = pick(115); (at -= operation->weight) >= 0;)
            ++operation;
        std::vector<Native*> candidates;
        for (Native& native : model_.natives)
            if (native.isAlive)
                candidates.push_back(&native);
        operation_ = operation->name + (" in " + std::to_string(model_.current) + ", kind " + std::to_string(K));
        if (model_.current < 0 && (operation < operations + 8 || candidates.empty() || slots_.empty()))
            enter(pick(2));
        else if (candidates.empty() || slots_.empty())
            make();
        else
            (this->*operation->run)(*candidates[pick(candidates.size())], slots_[pick(slots_.size())]);
    }

    void changeMachine(Native&, Slot&)
    {
        int const i = pick(2);
        if (pick(12) == 0) {
            endMachine(i);
            begin(i);
        }
        enter(pick(12) ? i : -1);
    }

    void unload(Native& native, Slot&)
    {
        orbis::COSPackage::removePackage("m");
        model_.endObjects(model_.current);
        checkRefused([&] { Registry::announce(native.address, name); }, "no class is published");
        T::publish();
    }

    void hold(Native& native, velmara::ArrayPtr array)
    {
        orbis::COSInterface* const object = orbis::omGetArrayElement(array.get(), 0);
        Host& host = model_.crossed(native, object);
        check(host.object == object, "came out as another host object");
        ++host.internal;
        slots_.push_back({&host, std::move(array)});
    }

    void construct(Native&, Slot&) { make(); }
    void make()
    {
        bool const isScripted = pick(2) == 0;
        Pointer<K> const owner(isScripted ? nullptr : new T);
        velmara::ArrayPtr array = isScripted ? hvm().construct(name) : nullptr;
        T* const thing = T::newest;
        model_.natives.push_back({thing->number, static_cast<orbis::factory::RootClass<T>*>(thing), &thing->next,
                                  !isScripted || !isShared<K>});
        if (isScripted)
            hold(model_.natives.back(), std::move(array));
        else
            owners_[thing->number] = owner;
    }

    void cross(Native& native, Slot&)
    {
        if (!model_.mayCross(native))
            return;
        if constexpr (isShared<K>)
            T::given = Pointer<K>(thing(native)->shared_from_this(), thing(native));
        else
            T::given = thing(native);
        bool isNew = !model_.boundTo(native);
        bool const isExpected = isNew;
        velmara::ArrayPtr array(!isWrapped<K> && pick(2)
                                    ? Registry::announce(native.address, name, isNew)
                                    : hvm().callStatic(name, pick(2) ? "give" : "giveRaw").release());
        check(isNew == isExpected, "whether a host object is said to be new");
        T::given = nullptr;
        hold(native, std::move(array));
    }

    void pass(Native&, Slot& slot)
    {
        Host const& host = *slot.host;
        hvArray* const inputs[] = {slot.array.get()};
        if (!host.isValid || host.machine != model_.current)
            return checkRefused([&] { hvm().callStatic(name, "take", inputs); }, "what is not usable is refused");
        if (!host.native->isAlive)
            return; // released before
        velmara::ArrayPtr const number = hvm().callStatic(name, "take", inputs);
        check(*static_cast<int const*>(orbis::host_extensions::getData(number.get())) == host.native->number,
              "what arrived");
    }

    void forget(Native&, Slot& slot)
    {
        std::swap(slot, slots_.back());
        Host& host = *slots_.back().host;
        slots_.pop_back();
        model_.letGo(host, 0, 1);
    }

    void setNext(Native& native, Slot&)
    {
        Native& other = model_.natives[pick(model_.natives.size())];
        Native* const next = model_.mayCross(other) && pick(4) ? &other : nullptr;
        // A native object that is given a new one outlives the old one, as all that run do.
        Host* const own = next ? model_.boundTo(native) : nullptr;
        orbis::COSInterfacePtr keep(own ? own->object : nullptr);
        if (own)
            ++own->external;
        thing(native)->next.reset(next ? thing(*next) : nullptr);
        model_.refer(native, next, next ? &model_.crossed(*next, Registry::find(next->address)) : nullptr);
        keep = {};
        if (own)
            model_.letGo(*own, 1, 0);
    }

    void destroy(Native& native)
    {
        if constexpr (!isShared<K>)
            delete thing(native);
        owners_.erase(native.number);
    }

    /// Native code lets go. What its host object would delete it takes away from that first, as it must.
    void drop(Native& native, Slot&)
    {
        if (!native.isHeld || (isOwned<K> && native.isElsewhere(model_.current)))
            return;
        if (!isWrapped<K>)
            retract(native);
        destroy(native);
        model_.drop(native);
    }

    void release(Native& native, Slot&)
    {
        check(Registry::release(native.address) == (model_.boundTo(native) != nullptr), "what release answers");
        model_.unbind(native);
    }

    void retract(Native& native)
    {
        bool const isBound = model_.current >= 0 && model_.boundTo(native);
        check(Registry::retract(native.address) == isBound, "what retract answers");
        model_.invalidate(native);
    }
    void retractAny(Native& native, Slot&) { retract(native); }

    void deleteObject(Native&, Slot& slot)
    {
        auto const action = [&] { hvm().deleteObjects(slot.array.get()); };
        if (!slot.host->isEnded && slot.host->machine != model_.current)
            return checkRefused(action, "another virtual machine's object is refused");
        action();
        model_.end(*slot.host);
    }

    void compare()
    {
        for (auto const& machine : machines_) { // releases what handles have left, too
            std::optional<velmara::Hvm::Scope> scope;
            if (machine)
                scope.emplace(*machine);
            if (std::string const found = orbis::factory::check(); wrong_.empty())
                wrong_ = found;
        }
        std::set<int> expected;
        std::size_t bound = 0;
        for (Native& native : model_.natives) {
            Host const* const host = model_.current < 0 ? nullptr : model_.boundTo(native);
            bound += host != nullptr;
            if (!native.isAlive)
                continue;
            expected.insert(native.number);
            if constexpr (isShared<K>)
                check(thing(native)->weak_from_this().use_count() == native.shares + native.isHeld, "owners");
            if (model_.current >= 0)
                check(Registry::find(native.address) == (host ? host->object : nullptr), "bindings");
        }
        check(living == expected, "which native objects live");
        std::int64_t objects = 0;
        for (Host const& host : model_.hosts)
            objects += !host.isEnded || host.external + host.internal > 0;
        check(velmara::liveCounts().objects == objects, "host objects whose storage is held");
        for (auto const& [host, array] : slots_) {
            orbis::COSInterfacePtr const object = orbis::omGetArrayElement(array.get(), 0);
            check(velmara::isValid(array.get()) == host->isValid, "validity");
            check(object->getExternalReferenceCount() == host->external + 1, "external references");
            check(object->getInternalReferenceCount() == host->internal, "internal references");
            check(object->getNativeObject(name) == (host->native ? host->native->address : nullptr), "native object");
        }
        check(model_.current < 0 || orbis::factory::basic::registry().size() == bound, "the size of the registry");
    }

    Model model_{isOwned<K>, isWrapped<K>, isShared<K>};
    std::map<int, Pointer<K>> owners_; ///< by the numbers of what native code holds
    std::function<unsigned()> random_;
    std::unique_ptr<velmara::Hvm> machines_[2];
    std::optional<velmara::Hvm::Scope> scope_;
    std::vector<Slot> slots_;
    std::string operation_, wrong_;
};

} // namespace lifetimes
