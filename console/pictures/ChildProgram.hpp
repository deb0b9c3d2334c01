#pragma once

#include "pictures/TemporaryFile.hpp"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace velmara::console {

/// The file of a program in the folders of PATH, but for relative ones; empty when there is none.
std::filesystem::path findProgram(std::string const& name);

/// Another program that runs beside this one, without a shell. What it reads and writes is in files, so that neither
/// program ever waits for the other.
class ChildProgram {
public:
    /// Starts the program with one argument, without blanks and quotes, and with what it is to read. Throws
    /// `std::system_error` when it does not start.
    ChildProgram(std::filesystem::path const& file, std::string const& argument, std::string_view input);
    ChildProgram(ChildProgram const&) = delete;
    ChildProgram& operator=(ChildProgram const&) = delete;

    /// Kills the program when it is still running.
    ~ChildProgram();

    /// Waits at most that long; returns whether the program has ended.
    bool waitFor(std::chrono::milliseconds time);

    /// Whether it ended with exit code 0.
    bool hasSucceeded() const { return hasSucceeded_; }

    /// What it wrote, once it has ended.
    std::string output() const { return output_.contents(); }
    std::string errors() const { return errors_.contents(); }

private:
    TemporaryFile input_;
    TemporaryFile output_;
    TemporaryFile errors_;
    std::intptr_t process_ = 0; ///< its number, or its handle on Windows; 0 once it has ended
    bool hasSucceeded_ = false;
};

} // namespace velmara::console
