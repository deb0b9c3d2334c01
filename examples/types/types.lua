-- Prints the table of docs/types.md: calls each function with what fits, and with what does not.
Point = types.Point -- the expressions below use it

-- A value as a script would write it.
local function source(value)
  if type(value) == "string" then return '"' .. value .. '"' end
  if type(value) == "function" then return "a function" end
  if type(value) == "table" then
    local items = {}
    for i, item in ipairs(value) do items[i] = source(item) end
    return "{" .. table.concat(items, ", ") .. "}"
  end
  if pcall(function() return value.x end) then return ("Point(%g, %g)"):format(value.x, value.y) end
  local isArray, elements = pcall(tolua, value)
  local isList, count = pcall(function() return #value end)
  if isArray and type(elements) == "userdata" and isList and count == 1 then elements = {elements} end
  if isArray and type(elements) ~= "userdata" and not rawequal(elements, value) then return source(elements) end
  return tostring(value)
end

-- The reason of an error, without the signature before it.
local function reason(text)
  for _, before in ipairs {"^No .*\n.*value: ", "^A value cannot be converted: ", '^input "value": '} do
    text = text:gsub(before, "")
  end
  return text
end

local function row(native, header, name, given, wrong)
  local call = types[name]
  local refused = ""
  if wrong then
    local ok, err = pcall(call, load("return " .. wrong)())
    refused = "`" .. wrong .. "`: " .. (ok and "TAKEN" or reason(err.text))
  end
  local result = source(call(load("return " .. given)()))
  print(("| `%s` | %s | `%s` | `%s` | %s |"):format(native, header, given, result, refused))
end

local function section(title)
  print("\n### " .. title)
  print("| native type | header | a script passes | it gets back | refused |\n|---|---|---|---|---|")
end

section("Numbers, texts, times")
row("bool", "", "bool", "true", "2")
row("int", "", "int", "3", "0.5")
row("std::uint8_t", "", "uint8", "255", "256")
row("double", "", "double", "1.5", '"1.5"')
row("char", "", "char", '"a"', "5")
row("std::string", "", "string", '"é"', "5")
row("char const*", "", "pointer", '"text"', "nil")
row("std::string_view", "(`StringViewPolicy.hpp`)", "view", '"text"', "{}")
row("std::wstring", "`wstring.hpp`", "wide", '"é"', "5")
row("std::filesystem::path", "`path.hpp`", "path", '"a/b"', '"a\\0b"')
row("Color", "`factory/publishEnumeration.hpp`", "enumeration", '"Red"', '"Blue"')
row("std::chrono::seconds", "`chrono.hpp`", "seconds", "90", "0.5")
row("std::chrono::system_clock::time_point", "`chrono.hpp`", "time", "1.5", '"x"')
row("std::complex<double>", "`complex.hpp`", "complex", "{1, 2}", "{1, 2, 3}")

section("Objects and functions")
row("Point", "", "copy", "Point(1, 2)", "nil")
row("Point&", "", "reference", "Point(1, 2)", "nil")
row("Point*", "", "object", "Point(1, 2)", "1")
row("Point*, with notNull", "`factory/notNull.hpp`", "notNull", "Point(1, 2)", "nil")
row("std::unique_ptr<Point>", "(`NamedPointerPolicies.hpp`)", "unique", "Point(1, 2)", "1")
row("std::shared_ptr<Point>", "the same", "shared", "Point(1, 2)", "1")
row("std::function<double(double)>", "`function.hpp`", "function", "function(x) return x + 1 end", "nil")

section("Lists and the like")
row("std::optional<double>", "(`OptionalPolicy.hpp`)", "optional", "nil", '"x"')
row("std::variant<bool, double, std::string>", "`variant.hpp`", "variant", "true", "{}")
row("std::vector<double>", "(`NumericVectorPolicy.hpp`)", "vector", "{1, 2}", '{1, "2"}')
row("std::vector<int>", "the same", "ints", "{1, 2}", "{1, 0.5}")
row("std::vector<bool>", "the same", "bools", "{true, false}", "{1, 2}")
row("std::span<double const>", "(`NumericSpanPolicy.hpp`)", "span", "{1, 2}", '"12"')
row("std::array<int, 3>", "`array.hpp`", "array", "{1, 2, 3}", "{1, 2}")
row("std::vector<std::string>", "(`stringVectors.hpp`)", "strings", '{"a", "b"}', '{"a", 5}')
row("std::vector<std::vector<double>>", "`nestedVectors.hpp`", "nested", "{{1}, {2, 3}}", '{{1}, {"2"}}')
row("std::pair<std::string, int>", "`pair.hpp`", "pair", '{"a", 1}', '{"a"}')
row("std::tuple<int, bool, std::string>", "`pair.hpp`", "tuple", '{1, true, "a"}', '{1, true, 0}')
row("std::set<int>", "`set.hpp`", "set", "{2, 1}", "{1, 2, 1}")
row("std::map<std::string, int>", "`map.hpp`", "map", '{a = 1, b = 2}', "{a = 0.5}")
row("std::map<int, std::string>", "`map.hpp`", "numbered", '{{1, "a"}, {2, "b"}}', '{{1, "a"}, {1, "b"}}')
row("Matrix<double>", "`matrix.hpp`", "matrix", "{{1, 2}, {3, 4}}", "{{1, 2}, {3}}")
row("MatrixView<float>", "`matrix.hpp`", "matrixView", "{{1, 2}, {3, 4}}", '"x"')
row("std::vector<std::complex<double>>", "`complex.hpp`", "complexes", "{{1, 2}, {3, 4}}", "{{1, 2, 3}}")
row("std::vector<Point>", "`objectValues.hpp`", "objects", "{Point(1, 2), Point(3, 4)}", "{Point(1, 2), null}")
row("std::vector<Point*>", "(`ObjectVectorPolicy.hpp`)", "pointers", "{Point(1, 2), Point(3, 4)}", "{1, 2}")
row("std::vector<std::unique_ptr<Point>>", "`objectValues.hpp`", "uniques", "{Point(1, 2)}", "{1, 2}")
row("hvConstArrayProxy", "`hvConstArrayProxy.hpp`", "anything", 'array("int32", {1, 2})')
