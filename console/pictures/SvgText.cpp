#include "pictures/SvgText.hpp"

#include "lua/InterruptPoint.hpp"
#include "lua/ScriptError.hpp"
#include "pictures/ChildProgram.hpp"
#include "text/CutText.hpp"

namespace velmara::console {

std::string svgText(lua_State* L, std::string_view dot)
{
    std::filesystem::path const file = findProgram("dot");
    if (file.empty())
        fail("noGraphviz", "SVG needs the program dot of Graphviz, which is in no folder of PATH");
    ChildProgram program(file, "-Tsvg", dot);
    while (!program.waitFor(std::chrono::milliseconds(50)))
        letInterrupt(L); // which ends the program
    letInterrupt(L);     // it may have ended by Ctrl-C, too
    if (!program.hasSucceeded())
        fail("graphviz", "dot of Graphviz has failed: " + escapedText(cutText(firstSentence(program.errors()), 200)));
    return program.output();
}

} // namespace velmara::console
