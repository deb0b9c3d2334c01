#pragma once

#include "lua/LuaApi.hpp"

#include <filesystem>
#include <optional>
#include <string>

namespace velmara::console {

/// Edits the prompt's lines at a terminal: with completion (Tab), history and a search in it (Ctrl-R). On Windows the
/// console edits them, and keeps its own history until it is closed (F7, F8). One at a time.
class LineEditor {
public:
    /// Completes with the names known in `L`; keeps the history in that file, or in none where it is empty.
    LineEditor(lua_State* L, std::filesystem::path history);
    LineEditor(LineEditor const&) = delete;
    LineEditor& operator=(LineEditor const&) = delete;
    ~LineEditor();

    /// The next line without its end; nothing at the end of input, and after Ctrl-C.
    std::optional<std::string> read(std::string const& prompt);

private:
    lua_State* L_;
#if !defined(_WIN32)
    void remember(std::string const& line);

    std::filesystem::path history_;
    std::string latest_; ///< what was remembered last
#endif
};

} // namespace velmara::console
