#include "pictures/ChildProgram.hpp"

#if !defined(_WIN32)

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <thread>

namespace velmara::console {

namespace {

/// The streams that a program starts with.
class SpawnActions {
public:
    SpawnActions() { require(posix_spawn_file_actions_init(&actions_)); }
    SpawnActions(SpawnActions const&) = delete;
    SpawnActions& operator=(SpawnActions const&) = delete;
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }

    void use(TemporaryFile const& file, int descriptor)
    {
        require(posix_spawn_file_actions_adddup2(&actions_, fileno(file.stream()), descriptor));
    }

    void closeOthers() { require(posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1)); }

    posix_spawn_file_actions_t const* get() const { return &actions_; }

    static void require(int error)
    {
        if (error != 0)
            throw std::system_error(error, std::generic_category(), "a program cannot be started");
    }

private:
    posix_spawn_file_actions_t actions_;
};

} // namespace

std::filesystem::path findProgram(std::string const& name)
{
    char const* const path = std::getenv("PATH");
    std::string_view left = path ? path : "";
    while (!left.empty()) {
        std::filesystem::path const folder = left.substr(0, left.find(':'));
        left.remove_prefix(std::min(folder.native().size() + 1, left.size()));
        std::error_code ignored;
        std::filesystem::path file = folder / name;
        if (folder.is_absolute() && std::filesystem::is_regular_file(file, ignored) && access(file.c_str(), X_OK) == 0)
            return file;
    }
    return {};
}

ChildProgram::ChildProgram(std::filesystem::path const& file, std::string const& argument, std::string_view input)
{
    input_.write(input);
    SpawnActions actions;
    actions.use(input_, STDIN_FILENO);
    actions.use(output_, STDOUT_FILENO);
    actions.use(errors_, STDERR_FILENO);
    actions.closeOthers();
    std::string program = file.native();
    std::string word = argument;
    char* const words[] = {program.data(), word.data(), nullptr};
    pid_t process = 0;
    SpawnActions::require(posix_spawn(&process, program.c_str(), actions.get(), nullptr, words, environ));
    process_ = process;
}

ChildProgram::~ChildProgram()
{
    if (process_ == 0)
        return;
    auto const process = static_cast<pid_t>(process_);
    kill(process, SIGKILL);
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool ChildProgram::waitFor(std::chrono::milliseconds time)
{
    constexpr std::chrono::milliseconds step(5);
    for (auto waited = std::chrono::milliseconds(0); process_ != 0; waited += step) {
        int status = 0;
        if (pid_t const ended = waitpid(static_cast<pid_t>(process_), &status, WNOHANG); ended != 0) {
            hasSucceeded_ = ended > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
            process_ = 0;
        } else if (waited >= time)
            return false;
        else
            std::this_thread::sleep_for(step);
    }
    return true;
}

} // namespace velmara::console

#endif
