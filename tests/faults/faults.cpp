#include "faults.hpp"

#include <cstdio>
#include <cstdlib>

#include <utility>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" __attribute__((weak)) void __sanitizer_print_stack_trace();

namespace faults {

namespace {

struct Tally {
    std::string name;
    std::size_t reached = 0, driven = 0, fellShort = 0;
} tallies[16];

Tally& tallyOf(char const* name)
{
    Tally* tally = tallies;
    while (!tally->name.empty() && tally->name != name)
        ++tally;
    if (tally->name.empty())
        tally->name = name;
    return *tally;
}

struct Child {
    pid_t id = 0;
    int log = memfd_create("log", 0);

    /// Forks; true in the child, whose reports go to the log.
    bool start()
    {
        id = fork();
        if (id < 0)
            std::abort();
        if (id != 0)
            return false;
        dup2(log, STDERR_FILENO);
        dup2(memfd_create("output", 0), STDOUT_FILENO);
        isChild = hasFailed = true;
        alarm(300);
        return true;
    }

    bool hasSucceeded() const
    {
        int status = 0;
        waitpid(id, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

    void show() const
    {
        char text[4096];
        lseek(log, 0, SEEK_SET);
        for (ssize_t size; (size = read(log, text, sizeof text)) > 0;)
            std::fprintf(stderr, "%.*s", static_cast<int>(size), text);
    }
};

/// Tells of a child that fell short; of the first ones twice, the second time with the way to the point. True in that
/// child.
bool tell(Child& child, char const* name, std::size_t number, int kind)
{
    static int toldAtLength = 0;
    std::fprintf(stderr, "** %s %zu, kind %d fell short\n", name, number, kind);
    if (++toldAtLength > 20)
        return false;
    child.show();
    if (child.start()) {
        if (__sanitizer_print_stack_trace)
            __sanitizer_print_stack_trace();
        return true;
    }
    child.hasSucceeded();
    child.show();
    return false;
}

int drive(char const* name, int kinds, Tally& tally)
{
    Child children[8];
    for (int kind = 1; kind <= kinds; ++kind)
        if (children[kind].start())
            return kind;
    for (int kind = 1; kind <= kinds; ++kind) {
        ++tally.driven;
        if (children[kind].hasSucceeded())
            continue;
        ++tally.fellShort;
        if (tell(children[kind], name, tally.reached, kind))
            return kind;
    }
    for (Child const& child : children)
        close(child.log);
    return 0;
}

} // namespace

int reach(char const* name, int kinds, std::size_t interval)
{
    if (isChild)
        return 0;
    bool const wasArmed = std::exchange(isArmed, false);
    Tally& tally = tallyOf(name);
    int const kind = tally.reached++ % interval == 0 ? drive(name, kinds, tally) : 0;
    isArmed = wasArmed;
    return kind;
}

void expect(bool isTrue, std::string const& what)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "%s\n", what.c_str());
    std::_Exit(1);
}

int report()
{
    int code = 0;
    for (Tally const& tally : tallies) {
        if (tally.name.empty())
            break;
        std::fprintf(stderr, "%-15s %6zu points, %6zu failures driven, %zu fell short\n", tally.name.c_str(),
                     tally.reached, tally.driven, tally.fellShort);
        code |= tally.fellShort != 0;
    }
    return code;
}

} // namespace faults
