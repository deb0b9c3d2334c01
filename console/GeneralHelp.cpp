#include "GeneralHelp.hpp"

namespace velmara::console {

char const* const generalHelp = R"(velmara runs Lua 5.4 scripts that use the classes of native modules.

  a = package.Class(1, 2)     make an object
  a:method(1, 2)              call a method of it
  a.property = 3              read and set a property
  package.Class.method()      call a static method; likewise a package function
  package.Class.property      read and set a static property
  package.Enumeration.Name    an enumerator; its name in quotes, or its number,
                              can be passed in its place
  a == b                      true when both are the same object
  local a <close> = ...       give the object back at the end of the block

  help(x) methods(x) properties(x)   on a package, a class, an object, a name
  class(x) isvalid(x) delete(x)      the class of x; is it alive; end it now
  modules() loadmodule(path) unloadmodule(name)
  withvm(function, ...)              call it in a virtual machine of its own
  enumeration("package.Name", {"A", "B", {"C", 7}})   define an enumeration

Errors are caught with pcall: a table with identifier, text and where.

Values to a module                   and back
  number, integer to 2^53  double      double, single        float
  greater integer          int64       int8 ... uint64       integer
  boolean                  logical     logical               boolean
  string (UTF-8)           char row    char row              string
  {1, 2}  {true, false}    row         row                   {1, 2}
  {{1, 2}, {3, 4}}         matrix      matrix, column        {{1, 2}, {3, 4}}
  {a, b} of one class      object row  objects               {a, b}
  any other sequence       cell row    cells                 {...}
  null in a table          empty cell  empty cell            null
  nil, null, {}            0-by-0      no object             nil
A uint64 that is no Lua integer stays an array of the host, and so does what
Lua has no value for: it can be passed on and compared. Tables must be
sequences (keys 1 to n), nested at most 200 deep.

)";

} // namespace velmara::console
