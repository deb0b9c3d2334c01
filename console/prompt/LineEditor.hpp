#pragma once

#include "lua/LuaApi.hpp"

#include <filesystem>
#include <optional>
#include <string>

namespace velmara::console {

/// Edits the prompt's lines at a terminal: with history, a search in it (Ctrl-R) and completion (Tab). Not on Windows,
/// whose console edits lines itself. One at a time.
class LineEditor {
public:
#if defined(_WIN32)
    static constexpr bool isAvailable = false;
#else
    static constexpr bool isAvailable = true;
#endif

    /// Completes with the names known in `L`; keeps the history in that file, or in none where it is empty.
    LineEditor(lua_State* L, std::filesystem::path history);
    LineEditor(LineEditor const&) = delete;
    LineEditor& operator=(LineEditor const&) = delete;
    ~LineEditor();

    /// The next line without its end; nothing at the end of input, and after Ctrl-C.
    std::optional<std::string> read(std::string const& prompt);

private:
    void remember(std::string const& line);

    std::filesystem::path history_;
    std::string latest_; ///< what was remembered last
};

} // namespace velmara::console
