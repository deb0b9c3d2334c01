#pragma once

#include "lua/LuaApi.hpp"

#include <filesystem>
#include <optional>
#include <string>

namespace velmara::console {

/// True when standard input is a terminal.
bool isInputTerminal();

/// Reads the prompt's lines: at a terminal with editing, history (~/.velmara_history) and completion; plainly where
/// there is none, and on Windows.
class LineReader {
public:
    /// Completes with the names known in `L`.
    explicit LineReader(lua_State* L);
    LineReader(LineReader const&) = delete;
    LineReader& operator=(LineReader const&) = delete;
    ~LineReader();

    /// The next line; nothing at end of input.
    std::optional<std::string> read(char const* prompt);

private:
    bool isEditing_;
    std::filesystem::path history_;
};

} // namespace velmara::console
