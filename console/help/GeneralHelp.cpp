#include "help/GeneralHelp.hpp"

namespace velmara::console {

char const* const generalHelp = R"(velmara runs Lua 5.4 scripts that use the classes of native modules.

  a = package.Class(1, 2)     make an object
  a:method(1, 2)              call a method of it
  a:method{second = 2, first = 1}    inputs by the names of the parameters, when
                              no form of it takes one table
  a.property = 3              read and set a property
  package.Class.method()      call a static method; likewise a package function
  package.Class.property      read and set a static property
  package.Enumeration.Name    an enumerator; its name in quotes, or its number,
                              can be passed in its place
  a == b                      true when both are the same object, or equal as
                              their class compares them
  copy(a)                     another object with the same value
  local a <close> = ...       give the object back at the end of the block

  help(x) methods(x) properties(x)   on a package, a class, an object, a name;
                                     help on any function and value, too
  members(x)                         the same as data: a table for each member
  pairs(x)                           names and values of an object's properties;
                                     of a package and of a class its members
  apropos("text")                    all that has the text in name or description
  show(x)                            x with all that it holds, on one screen
  class(x) isvalid(x) delete(x)      the class of x; is it alive; end it now
  objects()                          all live objects: owners, references
  references(x)                      what the properties of x refer to
  graph(x) graph()                   x, or all objects, as a picture: help(graph)
  each(list, f)                      f(element, index) for each; how far it is
  time(f, ...)                       the seconds that f(...) took, its results
  modules() loadmodule(path) unloadmodule(name)     these and withvm are not
  withvm(function, ...)              there with --restricted; calls the function
                                     in a virtual machine of its own
  enumeration("package.Name", {"A", "B", {"C", 7}})   define an enumeration

Errors are caught with pcall: a table with identifier, text and where, the cause
if native code gives one, and what else the module gives.

Values to a module                   and back
  number, integer to 2^53  double      double, single, one   float
  greater integer          int64       int8 ... uint64, one  integer
  boolean                  logical     logical, one          boolean
  string (UTF-8)           char row    char row              string
  {1, 2}  {true, false}    row         double, logical row   {1, 2}
  {{1, 2}, {3, 4}}         matrix      double, logical       {{1, 2}, {3, 4}}
  a                        object      one object            a
  {a, b} of one base class object row  0-by-0 object, none   nil
  a function               function    function              a function
  any other sequence       cell row    0-by-0 double; char   {}; ""
  {k = 1, l = "x"}         a cell row {key, value} for each, by key
  null in a table          empty cell  anything else         array
  missing                  string      (also one uint64 from 2^63 on)
  nil, null, {}            0-by-0
Tables must be sequences (keys 1 to n) or have texts for all keys, nested at
most 200 deep, a million in all. Each ill-formed part of a text becomes U+FFFD.

Arrays of the host are values of their own, of every class and size:
  array(values)                      of the class that the host makes of a table
  array(class, values)               of exactly that class, or an error
  array(class, values, m, n)         m-by-n: the values in column order, or one
                                     value for all elements
  a[k]  a[{i, j}]  #a                element k in column order, or of row i and
                                     column j; can be set; how many there are
  a(i, j)  a(k)  a:set(i, j, values) parts: numbers, lists of them or of truth
                                     values, nil for all; a[array] likewise
  a + b  - * / // % ^  -a            element by element; an array, a table or a
                                     number beside it; one row, column repeated
  a:eq(b)  ne lt le gt ge   & | ~    likewise, to true and false
  a:sum()  mean min max any all      of all; (1) of each column, (2) of each row
  a:sort()  order  find              likewise; where the first, the non-zero are
  a:reshape(m, n)  a:transpose()     the same elements in another form
  range(1, 10, 2)  linspace(0, 1, 5) a row: by steps of 2; 5 numbers
  ipairs(a)  a == b  tostring(a)     equal: class, size and every element
  size(x)  class(x)                  of any value, as the host sees it
  tolua(a)                           all of it as tables, strings, numbers
  asarray(f, ...)                    calls a method or function of the host, or
  asarray(a, "property")             reads a property: always an array

The class is "double", "single", "int8" ... "uint64", "logical", "char",
"string", "cell" or a published class. Values are a sequence (a row), a
sequence of sequences (a matrix), another array, or one value:
  array("int32", {{1, 2}, {3, 4}})   array("single", 0, 2, 3)
  array("char", {"ab", "cd"})        array("char", {0x61, 0xD800})
  array("string", {"a", missing})    array("cell", {1, null, {2, "b"}}, 3, 1)
  array(package.Class, {a, null})    array("uint64", "18446744073709551615")
Numbers must fit exactly; only fractions are rounded, to single. Text becomes
char, and char numbers, by UTF-16 units: these keep what is ill-formed. An
array, or what is made for one call, takes at most 1 GB.

)";

} // namespace velmara::console
