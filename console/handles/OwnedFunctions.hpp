#pragma once

#include "lua/RegistryTable.hpp"

#include "orbis/COSInterface.hpp"

#include <unordered_map>
#include <vector>

namespace velmara::console {

/// Functions of the script with which it implements objects. While the script has the value of such an object, that
/// holds the functions, instead of the registry: so a function that refers to its own object is collected with it.
/// There is one value for each such object at a time. As long as others refer to the object, its value is not
/// collected.
class OwnedFunctions {
public:
    /// One of them.
    class Function {
    public:
        /// Pushes it from the registry.
        virtual void pushHeld(lua_State* L) const = 0;

        /// Removes it from the registry.
        virtual void drop(lua_State* L) noexcept = 0;

        /// Moves the function on top of the stack back into the registry, and pops it.
        virtual void hold(lua_State* L) = 0;

    protected:
        ~Function() = default;
    };

    using Host = orbis::COSInterface const*;

    void add(Host host, Function& function);
    void remove(Host host, Function const& function) noexcept;

    bool empty() const { return entries_.empty(); }

    /// Whether the object is implemented by functions.
    bool has(Host host) const { return entries_.contains(host); }

    /// Pushes the value of the object; returns false, and pushes nothing, when the script has none.
    bool pushValue(lua_State* L, Host host);

    /// Pushes the function, which the value of the object holds; returns false, and pushes nothing, when it is lost.
    bool pushFunction(lua_State* L, Host host, Function const& function);

    /// Has the recorded value of the object, a userdata with a user value on top of the stack, hold its functions.
    void anchor(lua_State* L, Host host);

    /// Whether a userdata is the value of the object.
    bool isValue(Host host, void const* userdata) const;

    /// Has the value at `index`, which is being collected, stay: it has been found again meanwhile, or others refer to
    /// its object.
    void keep(lua_State* L, Host host, int index);

    /// Whether the value has been found again since it was found to be garbage.
    bool isWanted(Host host) const { return entries_.at(host).isWanted; }

    /// Moves the functions that are still there back into the registry, before the value at `index` is released.
    void release(lua_State* L, Host host, int index);

private:
    struct Entry {
        std::vector<Function*> functions;
        void const* value = nullptr;
        bool isWanted = false;
    };

    /// Pushes the userdata; false, and nothing pushed, when it is gone.
    bool pushAnchor(lua_State* L, void const* userdata);

    std::unordered_map<Host, Entry> entries_;
    RegistryTable anchors_{"k"}; ///< has all values for its keys: their garbage is found there until it is finalized
};

} // namespace velmara::console
