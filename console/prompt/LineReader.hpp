#pragma once

#include "lua/LuaApi.hpp"

#include <filesystem>
#include <string>

namespace velmara::console {

/// Reads the prompt's lines: at a terminal with editing, history and completion; plainly where there is none, and on
/// Windows, whose console edits lines itself.
class LineReader {
public:
    enum class Result { Line, End, Interrupted };

    /// Completes with the names known in `L`.
    explicit LineReader(lua_State* L);
    LineReader(LineReader const&) = delete;
    LineReader& operator=(LineReader const&) = delete;
    ~LineReader();

    /// Reads the next line into `line`, without its end. `Interrupted` when Ctrl-C was pressed instead.
    Result read(char const* prompt, std::string& line);

private:
    bool isEditing_;
    std::filesystem::path history_;
};

} // namespace velmara::console
