#pragma once

#include "orbis/COSInterface.hpp"

#include <deque>
#include <set>
#include <utility>

namespace lifetimes {

/// Who is bound to whom and keeps whom alive: knows the rules, and asks the library nothing.
class Model {
public:
    struct Host;
    struct Native {
        bool isElsewhere(int machine) const { return (machine != 0 && host[0]) || (machine != 1 && host[1]); }

        int number;
        void* address; ///< as which it is bound
        void* handle;  ///< by which it refers to `next`
        bool isHeld;   ///< by native code
        bool isAlive = true;
        int shares = 0;     ///< of host objects
        Host* host[2] = {}; ///< to which it is bound
        Native* next = nullptr;
    };
    struct Host {
        int machine;
        Native* native; ///< for which it stands
        orbis::COSInterface* object;
        Native* share = nullptr;
        bool isValid = true, isEnded = false;
        int external = 0, internal = 0; ///< references
        std::set<void*> handles;        ///< whose references are among the external ones
    };

    /// Of native objects that their host objects delete, that tell of their end, and that are shared.
    Model(bool isOwned, bool isWrapped, bool isShared) : isOwned_(isOwned), isWrapped_(isWrapped), isShared_(isShared)
    {
    }

    Host*& boundTo(Native& native) { return native.host[current]; }

    void letGo(Host& host, int externals, int internals)
    {
        host.external -= externals;
        host.internal -= internals;
        if (host.external + host.internal == 0)
            end(host);
    }

    void end(Host& host)
    {
        if (std::exchange(host.isEnded, true))
            return;
        int const previous = std::exchange(current, host.machine);
        Native* const native = std::exchange(host.native, nullptr);
        if (std::exchange(host.isValid, false) && native && boundTo(*native) == &host) {
            unbind(*native);
            if (isOwned_)
                die(*native);
        }
        dropShare(host);
        current = previous;
    }

    void endObjects(int machine)
    {
        for (std::size_t i = hosts.size(); i-- > 0;)
            if (hosts[i].machine == machine)
                end(hosts[i]);
    }

    /// With a binding goes what handles hold of its host object.
    void unbind(Native& native)
    {
        Host* const host = std::exchange(boundTo(native), nullptr);
        if (host && !host->handles.empty())
            letGo(*host, static_cast<int>(std::exchange(host->handles, {}).size()), 0);
    }

    void invalidate(Native& native)
    {
        Host* const host = current < 0 ? nullptr : boundTo(native);
        if (!host)
            return;
        ++host->external;
        unbind(native);
        host->isValid = false;
        host->native = nullptr;
        dropShare(*host);
        letGo(*host, 1, 0);
    }

    void die(Native& native)
    {
        if (!std::exchange(native.isAlive, false))
            return;
        refer(native, nullptr, nullptr);
        if (isWrapped_)
            invalidate(native);
    }

    /// Native code lets go. A shared object goes with its last owner.
    void drop(Native& native)
    {
        native.isHeld = false;
        isShared_ ? settle(native) : die(native);
    }

    /// `next`, bound to `host`, is what `native` refers to from now on.
    void refer(Native& native, Native* next, Host* host)
    {
        native.next = next;
        Host* const held = heldBy(native.handle);
        if (held)
            held->handles.erase(native.handle);
        if (host)
            host->external += host->handles.insert(native.handle).second;
        if (held)
            letGo(*held, 1, 0);
    }

    /// The host object that a native object comes out as: `object`, where there is none yet.
    Host& crossed(Native& native, orbis::COSInterface* object)
    {
        if (!boundTo(native))
            boundTo(native) = &hosts.emplace_back(current, &native, object);
        Host& host = *boundTo(native);
        if (isShared_ && host.share != &native) {
            dropShare(host);
            host.share = &native;
            ++native.shares;
        }
        return host;
    }

    /// An object that two host objects would delete may cross into one virtual machine at a time.
    bool mayCross(Native const& native) const { return native.isAlive && !(isOwned_ && native.isElsewhere(current)); }

    int current = -1; ///< virtual machine, or none
    std::deque<Native> natives;
    std::deque<Host> hosts;

private:
    /// What a handle holds here, or one that was at its place and ended elsewhere.
    Host* heldBy(void* handle)
    {
        for (Host& host : hosts)
            if (host.machine == current && host.handles.count(handle))
                return &host;
        return nullptr;
    }

    void settle(Native& native)
    {
        if (native.shares + native.isHeld == 0)
            die(native);
    }

    void dropShare(Host& host)
    {
        Native* const native = std::exchange(host.share, nullptr);
        if (!native)
            return;
        --native->shares;
        settle(*native);
    }

    bool const isOwned_, isWrapped_, isShared_;
};

} // namespace lifetimes
