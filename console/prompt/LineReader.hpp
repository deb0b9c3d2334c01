#pragma once

#include "prompt/LineEditor.hpp"

#include <optional>

namespace velmara::console {

/// The file of VELMARA_HISTORY, or ~/.velmara_history; empty for none.
std::filesystem::path historyFile();

/// Reads the prompt's lines: at a terminal with a `LineEditor`, else plainly.
class LineReader {
public:
    enum class Result { Line, End, Interrupted };

    /// Completes with the names known in `L`; keeps the history in that file, or in none where it is empty.
    LineReader(lua_State* L, std::filesystem::path const& history);

    /// Reads the next line into `line`, without its end. `Interrupted` when Ctrl-C was pressed instead.
    Result read(std::string const& prompt, std::string& line);

private:
    std::optional<LineEditor> editor_;
};

} // namespace velmara::console
