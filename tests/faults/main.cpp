// Drives every point of a few scripts at which something may fail: faults MODULES INTERVAL TOUR... -- FACILITIES...
#include "faults.hpp"

#include "Console.hpp"
#include "Session.hpp"
#include "lua/ScriptError.hpp"
#include "scripts/ScriptRunner.hpp"
#include "values/ValueToHost.hpp"

#include "velmara/LiveCounts.hpp"

#include "orbis/factory/check.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#define EXPORT extern "C" __attribute__((visibility("default")))
extern "C" __attribute__((weak)) int __lsan_do_recoverable_leak_check();
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

/// What is freed goes soon, as there are many processes, and not through the allocator that is driven.
EXPORT char const* __asan_default_options()
{
    return "quarantine_size_mb=8:alloc_dealloc_mismatch=0:new_delete_type_mismatch=0";
}

/// The system's loader keeps what it allocates where no one looks for it.
EXPORT char const* __lsan_default_suppressions()
{
    return "leak:ld-linux\n";
}

/// The module's callbacks ask what to throw: 0 for nothing.
EXPORT int reachCallback(char const* name)
{
    return faults::isArmed ? faults::reach(name, 4) : 0;
}

namespace {

using faults::expect;
using faults::Shortage;
namespace console = velmara::console;

std::string library, probe; // the files of the modules

struct Script {
    std::string name;
    bool isRepeatable; ///< a step that failed can be run again in the same machine
    std::vector<std::string> steps;
    std::vector<std::string> usual = {}; ///< what each step prints
    std::size_t bytes = 0;               ///< that are allocated before it
};

std::size_t allocatedBytes()
{
    return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes() : 0;
}

/// What was printed since the last time.
std::string takeOutput()
{
    std::string text(static_cast<std::size_t>(lseek(STDOUT_FILENO, 0, SEEK_CUR)), '\0');
    bool const isTaken = pread(STDOUT_FILENO, text.data(), text.size(), 0) == ssize_t(text.size()) &&
                         ftruncate(STDOUT_FILENO, 0) == 0 && lseek(STDOUT_FILENO, 0, SEEK_SET) == 0;
    expect(isTaken, "the output is lost");
    return text;
}

/// A session whose script runs step by step, and the arrays that native code keeps of it.
class Run {
public:
    enum Way { ArraysFirst = 1, MachineFirst, OnAnotherThread, BesideAnother, NativesOutlive, ways = NativesOutlive };

    explicit Run(console::CommandLine line = {}) : session_(line)
    {
        line.task = console::CommandLine::Task::Code;
        isReady_ = console::runConsole(session_, line, {}) == 0;
    }

    bool isReady() const { return isReady_; }

    /// What the step prints. The array that it gives is kept.
    std::string step(std::string const& code, bool isDriven = false)
    {
        lua_State* const L = session_.lua();
        takeOutput();
        faults::isArmed = isDriven;
        lua_pushcfunction(L, console::guarded<run>);
        lua_pushlightuserdata(L, this);
        lua_pushlightuserdata(L, const_cast<std::string*>(&code));
        bool const isDone = lua_pcall(L, 2, 0, 0) == LUA_OK;
        faults::isArmed = false;
        if (!isDone && faults::shortage <= Shortage::Once)
            std::puts(luaL_tolstring(L, -1, nullptr));
        lua_settop(L, 0);
        return takeOutput();
    }

    std::string check()
    {
        velmara::Hvm::Scope const scope(session_.host().hvm());
        return orbis::factory::check();
    }

    /// Drops what native code keeps.
    void drop()
    {
        dropNatives();
        kept_.clear();
    }

    void end(int way)
    {
        std::optional<velmara::Hvm> other;
        std::optional<velmara::Hvm::Scope> scope;
        if (way == BesideAnother)
            scope.emplace(other.emplace());
        if (way == ArraysFirst)
            drop();
        if (way != NativesOutlive)
            dropNatives();
        if (way == OnAnotherThread)
            std::thread([this] { // which has counted nothing before
                faults::shortage = Shortage::UntilEnd;
                faults::isArmed = true;
                session_.end();
                faults::isArmed = false;
                faults::shortage = Shortage::None;
            })
                .join();
        session_.end();
        drop();
        if (other)
            other->defineEnumeration("still.Alive", {{velmara::EnumeratorRecord{"Yes", 1}}});
    }

private:
    static int run(lua_State* L)
    {
        auto& self = *static_cast<Run*>(lua_touserdata(L, 1));
        if (console::loadScript(L, *static_cast<std::string*>(lua_touserdata(L, 2)), "=step") != LUA_OK)
            return lua_error(L);
        lua_call(L, 0, 1);
        self.kept_.push_back(console::toHost(L, -1));
        return 0;
    }

    static void dropNatives()
    {
        static auto* const drop = reinterpret_cast<void (*)()>(dlsym(dlopen(probe.c_str(), RTLD_NOW), "dropNatives"));
        drop();
    }

    std::vector<velmara::ArrayPtr> kept_;
    console::Session session_;
    bool isReady_ = false;
};

/// Steps that must run as usual.
void follow(Run& run, Script const& script, std::size_t first, std::size_t last, char const* when)
{
    for (std::size_t i = first; i < last; ++i) {
        std::string const output = run.step(script.steps[i]);
        expect(output == script.usual[i], std::string(when) + ", step " + std::to_string(i) + " prints " + output);
    }
    std::string const found = run.check();
    expect(found.empty(), when + found);
}

void expectNothingLeft(Script const& script, char const* when)
{
    velmara::LiveCounts const left = velmara::liveCounts();
    expect(left == velmara::LiveCounts{}, std::string(when) + ", left: " + std::to_string(left.objects) + " objects, " +
                                              std::to_string(left.arrays) + " arrays, " +
                                              std::to_string(left.descriptors) + " descriptors");
    // Names are kept for good, and are no leak.
    if (allocatedBytes() > script.bytes && __lsan_do_recoverable_leak_check)
        expect(__lsan_do_recoverable_leak_check() == 0, std::string(when) + ": leaks");
}

/// Ends a child whose run has ended: nothing is left, and the next run is as usual.
[[noreturn]] void finishChild(Script const& script)
{
    faults::shortage = Shortage::None;
    expectNothingLeft(script, "after the failure");
    {
        Run again;
        follow(again, script, 0, script.steps.size(), "afresh");
        again.end(Run::ArraysFirst);
    }
    expectNothingLeft(script, "afresh");
    std::_Exit(0);
}

/// A failure in the first step is one of beginning: another attempt succeeds.
void begin(std::optional<Run>& run)
{
    try {
        faults::isArmed = true;
        run.emplace();
    } catch (std::bad_alloc const&) {
    }
    faults::isArmed = false;
    if (!std::exchange(faults::hasFailed, false))
        return;
    run.reset();
    faults::shortage = Shortage::None;
    expect(run.emplace().isReady(), "another session begins");
}

void drive(Script& script)
{
    script.bytes = allocatedBytes();
    std::size_t const last = script.steps.size() - 1;
    std::optional<Run> run;
    begin(run);
    std::size_t const interval = faults::allocationInterval;
    for (std::size_t i = 0; i <= last; ++i) {
        faults::allocationInterval = script.steps[i].starts_with("-- each") ? 1 : interval;
        std::string const output = run->step(script.steps[i], true);
        if (faults::shortage == Shortage::UntilEnd)
            continue;
        faults::shortage = Shortage::None;
        if (std::exchange(faults::hasFailed, false)) {
            if (!script.isRepeatable && i != 0)
                i = last; // native code keeps until the machine's end what the step left behind
            follow(*run, script, i, i + 1, "repeated after the failure");
        } else
            expect(output == script.usual[i], "step " + std::to_string(i) + " prints " + output);
        if (int const way = faults::reach("end of step", Run::ways + 1); way > Run::ways) {
            follow(*run, script, last, last + 1, "unloaded");
            follow(*run, script, 0, last, "loaded again");
        } else if (way != 0) {
            run->end(way);
            run.reset();
            finishChild(script);
        }
    }
    faults::allocationInterval = interval;
    faults::isArmed = true;
    run->end(Run::ArraysFirst);
    faults::isArmed = false;
    run.reset();
    if (faults::isChild)
        finishChild(script);
}

/// A script that runs again and again leaves nothing with the session, also where that remembers bindings for its
/// report.
void expectNoGrowth(Script const& script)
{
    console::CommandLine line;
    line.reportsLeaks = true;
    Run run(line);
    std::size_t before = 0, after = 0, least = SIZE_MAX;
    for (int round = 0; round < 6; ++round) {
        before = after;
        for (std::string const& step : script.steps)
            run.step(step);
        run.drop();
        run.step("collectgarbage() collectgarbage()");
        run.drop();
        after = allocatedBytes();
        if (round >
            1) // tables of Lua, whose keys are addresses, grow and shrink by chance; what is left grows each time
            least = std::min(least, after > before ? after - before : 0);
    }
    expect(least == 0, script.name + " leaves " + std::to_string(least) + " bytes with each run");
}

constexpr char const* unload = "for _, module in ipairs(modules()) do unloadmodule(module.name) end";
constexpr char const* tour = R"(
local function show(text, value, expected) print(text, tostring(value), value == expected or tostring(expected)) end
local function refused(text, f, ...) print(text, (select(2, pcall(f, ...)))) end
return assert(load([==[%]==]))(print, show, refused))";

/// The script of a file. What is not of the tour has its steps between empty lines; in one that begins with "-- each",
/// each allocation is driven.
Script scriptOf(std::filesystem::path const& file, bool isTour)
{
    Script script{file.stem().string(), !isTour, {"loadmodule('" + library + "') loadmodule('" + probe + "')"}};
    std::string const code = console::readScript(file.string()); // not while children would read on in it
    if (isTour)
        script.steps.push_back(std::string(tour).replace(std::string_view(tour).find('%'), 1, code));
    for (std::size_t begin = 0, end = 0; !isTour && begin < code.size(); begin = end + 2)
        script.steps.push_back(code.substr(begin, (end = std::min(code.find("\n\n", begin), code.size())) - begin));
    script.steps.emplace_back(unload);
    Run run;
    for (std::string const& step : script.steps)
        script.usual.push_back(run.step(step));
    run.end(Run::ArraysFirst);
    return script;
}

} // namespace

int main(int count, char** words)
{
    if (count < 3)
        return 2;
    library = words[1] + std::string("/liborbis_factory.so");
    probe = words[1] + std::string("/libfaults_probe.so");
    faults::allocationInterval = static_cast<std::size_t>(std::atoll(words[2]));
    setvbuf(stdout, nullptr, _IONBF, 0); // a child inherits nothing to be written
    dup2(memfd_create("output", 0), STDOUT_FILENO);
    bool isTour = true;
    for (int i = 3; i < count; ++i) {
        if (words[i] == std::string("--"))
            isTour = false;
        else if (Script script = scriptOf(words[i], isTour); true) {
            expectNoGrowth(script);
            drive(script);
        }
    }
    return faults::report();
}
