#pragma once

#include <cstddef>

namespace velmara::console {

/// How much of what is printed can be seen at once, above a prompt.
struct Screen {
    std::size_t columns = 80;
    std::size_t rows = 200; ///< more than anyone reads: output that is kept is cut there, too
};

/// That of the terminal at standard output; the default where there is none.
Screen outputScreen();

} // namespace velmara::console
