#pragma once

#include "handles/ArrayStack.hpp"
#include "handles/HeldArrays.hpp"
#include "handles/Member.hpp"
#include "handles/NameRecord.hpp"
#include "handles/OwnedFunctions.hpp"
#include "handles/PublishedAnswers.hpp"
#include "lua/ChangeWatch.hpp"
#include "lua/LuaApi.hpp"

#include "velmara/Hvm.hpp"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <utility>

namespace velmara::console {

/// What a Lua state uses of the host: virtual machines, and the host arrays that are in transit between the two or held
/// by values of the script.
class HostContext : private ChangeWatch {
public:
    /// Makes `of` find this context from the state, which must be closed before `clear`. With `reportsLeaks`, what
    /// native code leaves in a virtual machine is reported on stderr when that is destroyed, with the script's lines.
    HostContext(lua_State* L, bool reportsLeaks);
    HostContext(HostContext const&) = delete;
    HostContext& operator=(HostContext const&) = delete;

    /// The context of a Lua state or of one of its coroutines.
    static HostContext& of(lua_State* L) { return static_cast<HostContext&>(ChangeWatch::of(L)); }

    ArrayStack& arrays() { return arrays_; }
    HeldArrays& heldArrays() { return heldArrays_; }
    OwnedFunctions& ownedFunctions() { return ownedFunctions_; }
    PublishedAnswers& answers() { return answers_; }
    Members& members() { return members_; }
    NameRecords& nameRecords() { return nameRecords_; }

    /// The values of objects: see ObjectValues.hpp.
    RegistryTable& objectValues() { return objectValues_; }

    /// The virtual machine in use: the innermost one.
    Hvm& hvm() { return *machines_.back().hvm; }

    /// The script, or the coroutine of it, that has called the host most recently and is still running; null once the
    /// state was closed. Functions of the script that the host calls run there.
    lua_State*& running() { return running_; }

    /// A function of the script that native code has called, for as long as it runs.
    class Callback {
    public:
        explicit Callback(HostContext& context)
            : context_(context),
              previous_(std::exchange(context.waiting_, context.arrays_.size()))
        {
        }
        Callback(Callback const&) = delete;
        Callback& operator=(Callback const&) = delete;
        ~Callback() { context_.waiting_ = previous_; }

    private:
        HostContext& context_;
        std::optional<std::size_t> previous_;
    };

    /// True while native code waits for a function of the script.
    bool isInCallback() const { return waiting_.has_value(); }

    /// The arrays that such native code was called with, or has passed to the script.
    std::span<hvArray_tag* const> arraysInUse() const { return arrays_.first(waiting_.value_or(0)); }

    /// Set for the next call: its result stays an array of the host.
    bool& keepsNextArray() { return keepsNextArray_; }

    /// True while native code runs that was asked for a value to be shown. What it calls shows objects without their
    /// properties: a getter could show its own object over and over.
    bool& isShowing() { return isShowing_; }

    /// Puts a fresh virtual machine with the same modules into use, for its own lifetime. What the script has of names
    /// is that of the other one until `ChangeWatch::check`.
    class FreshMachine {
    public:
        explicit FreshMachine(HostContext& context);
        FreshMachine(FreshMachine const&) = delete;
        FreshMachine& operator=(FreshMachine const&) = delete;
        ~FreshMachine()
        {
            context_.machines_.pop_back();
            context_.watchMachine();
        }

    private:
        HostContext& context_;
    };

    /// Has the virtual machines record which line of the script creates what, from now on or no longer.
    void recordLines(bool isWanted);

    /// From now on only finalizers of the script run.
    void beginClosing() { isClosing_ = true; }
    bool isClosing() const { return isClosing_; }

    /// Call before giving the script a value that owns something of the host: throws an `Error` when the state is
    /// closing, as Lua would not finalize the value any more.
    void requireOpen() const;

    /// Releases all arrays, then destroys the virtual machines. No value of the script may be alive.
    void clear();

    /// True when a module has failed to terminate.
    bool hasFailed() const { return hasFailed_; }

private:
    struct Machine {
        /// Records lines if the context does.
        Machine(std::unique_ptr<Hvm> created, HostContext& context);

        std::unique_ptr<Hvm> hvm;
        std::optional<Hvm::Scope> scope; ///< while lines are recorded: arrays are those of the current virtual machine
    };

    /// A virtual machine that reports modules that fail to terminate, and leaks where asked for.
    std::unique_ptr<Hvm> createMachine();

    void addMachine(std::unique_ptr<Hvm> hvm);
    void startRecording(Machine& machine);

    /// Reports what is alive in the virtual machine although the script has released everything.
    void reportLeft() noexcept;

    void watchMachine() { number = &hvm().publicationNumber(); }

    lua_State* running_;
    std::optional<std::size_t> waiting_; ///< how many arrays were in transit when the innermost callback began
    std::deque<Machine> machines_;
    ArrayStack arrays_;
    HeldArrays heldArrays_;
    OwnedFunctions ownedFunctions_;
    RegistryTable objectValues_{"v"};
    PublishedAnswers answers_;
    Members members_;
    NameRecords nameRecords_;
    bool hasFailed_ = false;
    bool isClosing_ = false;
    bool reportsLeaks_;
    bool recordsLines_;
    bool keepsNextArray_ = false;
    bool isShowing_ = false;
};

} // namespace velmara::console
