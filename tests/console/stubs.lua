-- Reads the annotation files in the folder that is the argument, generates calls from them, and runs these: what they
-- name must be there, what they say is taken must be taken, and what they say is given must come.
local folder, files = arg[1], table.pack(table.unpack(arg, 2))
local fields, parents, aliases, callables, operators, failures, calls = {}, {}, {}, {}, {}, 0, 0

local function report(...)
    failures = failures + 1
    print(string.format(...))
end

-- A type as a sequence of alternatives: a name, or a table with `list`, `fields` or `inputs`.
local parseType
local function parseFields(text, at, ending)
    local result = {}
    while text:sub(at, at) ~= ending do
        local name, optional, from = text:match("^,? ?([%w_]+)(%??): ?()", at)
        if not name then error("no type: " .. text .. " at " .. at) end
        local kind
        kind, at = parseType(text, from)
        table.insert(result, {name = name, isOptional = optional ~= "", kind = kind})
    end
    return result, at + 1
end

local function parseOne(text, at)
    local item
    if text:match("^fun%(", at) then
        local inputs, result
        inputs, at = parseFields(text, at + 4, ")")
        if text:match("^: ", at) then result, at = parseType(text, at + 2) end
        item = {inputs = inputs, result = result}
    elseif text:sub(at, at) == "(" then
        local inner
        inner, at = parseOne(text, at + 1)
        item, at = inner, at + 1
    elseif text:sub(at, at) == "{" then
        item, at = parseFields(text, at + 1, "}")
        item = {fields = item}
    else
        item, at = text:match('^("[^"]*")()', at)
        if not item then error("no type: " .. text) end
    end
    return item, at
end

function parseType(text, at)
    local alternatives = {}
    repeat
        local name, next = text:match("^([%w_.%-]+%b<>)()", at or 1)
        if not name then name, next = text:match("^([%w_.%-]+)()", at or 1) end
        if not name or text:match("^fun%(", at or 1) then name, next = parseOne(text, at or 1) end
        while text:sub(next, next + 1) == "[]" do name, next = {list = name}, next + 2 end
        table.insert(alternatives, name)
        at = next + 1
    until text:sub(next, next) ~= "|"
    return alternatives, at - 1
end

-- Collects what one file says.
local function read(file)
    local class, block = nil, {forms = {}}
    for line in io.lines(file) do
        local tag, rest = line:match("^%-%-%-@(%w+) ?(.*)")
        local unknown = line:match(" any # (.*)")
        if unknown and not ("OrbisFactory palette.Color any: any, type not known"):find(unknown:sub(1, 4), 1, true) then
            report("%s: the type %s is known", file, unknown)
        end
        if tag == "class" then
            local name, bases = rest:match("^([%w_.]+):? ?(.*)")
            class, parents[name], fields[name] = name, bases, {}
        elseif tag == "operator" then
            local name, kind, result = rest:match("^(%w+)%(?(.-)%)?: (.*)")
            table.insert(operators, {class = class, name = name, kind = kind ~= "" and parseType(kind), result = parseType(result)})
        elseif tag == "field" and rest:find("^%[") then
            local kind, result = rest:match("^%[(.-)%] (.*)")
            table.insert(operators, {class = class, name = "index", kind = parseType(kind), result = parseType(result)})
        elseif tag == "field" then
            local name, kind = rest:match("^(%w+) (.-) #")
            if not name then error("no field: " .. line) end
            fields[class][name] = {kind = parseType(kind), isRead = not line:find(", write only"),
                                   isWritten = not line:find(", read only")}
        elseif tag == "alias" then
            local name, kind = rest:match("^(%S+) (.*)")
            aliases[name] = parseType(kind)
        elseif tag == "overload" then
            table.insert(block.forms, (parseOne(rest, 1)))
        elseif tag == "param" then
            local name, optional, kind = rest:match("^([%w_]+)(%??) ([^#]*)")
            table.insert(block, {name = name, isOptional = optional ~= "", kind = parseType(kind)})
        elseif tag == "return" then
            block.result = parseType(rest:match("^[^#]*"))
        elseif not line:find("^%-%-%-") and line ~= "" then
            local owner, dot, name = line:match("^function ([%w_.]-)([.:])([%w_]+)%(")
            if name then
                table.insert(block.forms, 1, {inputs = block, result = block.result})
                if dot == ":" then table.insert(block, 1, {name = "self", kind = {owner}}) end
            end
            local called = name and owner .. "." .. name or line:match("^([%w_.]+) = {}$")
            if called then callables[called] = {forms = block.forms, isObjects = dot == ":", name = name} end
            block = {forms = {}}
        end
    end
end

local pool = {} -- objects by their class
local function isA(class, name)
    if class == name then return true end
    for base in (parents[class] or ""):gmatch("[%w_.]+") do if isA(base, name) then return true end end
    return false
end

local function objectOf(name)
    for known, object in pairs(pool) do
        if isA(known, name) and isvalid(object) then return object end
    end
end

local plain = {integer = 1, number = 1.5, boolean = true, string = "text", any = 1, ["function"] = print}
local value
-- A value for the alternative that is number `i`; nil and false when there is none.
local function valueOf(item, kind)
    if type(item) == "table" and item.list then
        local element, isThere = value({item.list}, 1)
        return {element, element}, isThere
    elseif type(item) == "table" and item.inputs then
        return function() return item.result and (value(item.result, 1)) end, true
    elseif item == "velmara.array" then
        local list = #kind > 2 and valueOf(kind[2], kind)
        return list and array(list), list
    elseif item == "nil" then
        return nil, true
    end
    local literal = item:match('^"(.*)"$') or math.tointeger(item) or plain[item] or objectOf(item)
    return literal, literal ~= nil
end
function value(kind, i)
    if #kind == 1 and aliases[kind[1]] then kind = aliases[kind[1]] end
    return valueOf(kind[(i - 1) % #kind + 1], kind)
end

local function isArray(x)
    return type(x) == "userdata" and pcall(function() return x.transpose end)
end

-- Whether the value is of the type.
local function fits(x, kind)
    for _, item in ipairs(kind) do
        local isOne
        if type(item) == "table" and item.list then
            isOne = type(x) == "table" and (#x == 0 or fits(x[1], {item.list}))
        elseif type(item) == "table" then
            isOne = type(x) == "function"
        elseif item == "integer" then
            isOne = math.type(x) == "integer"
        elseif item:find("^velmara%.") then
            local element = item:match("<(.*)>")
            isOne = isArray(x) and (not element or #x == 0 or fits(x[1], {element}))
        else
            isOne = item == "any" or type(x) == item or (parents[item] and isA(class(x), item) and not isArray(x))
        end
        if isOne then return true end
    end
    return false
end

local function keep(x)
    if type(x) == "userdata" and not isArray(x) and parents[class(x)] then pool[class(x)] = x end
end

-- What may be passed to the form, as the alternatives with that number; nil where there is no object for it.
local function inputsOf(form, i)
    local inputs = {n = #form.inputs}
    for k, input in ipairs(form.inputs) do
        form.takesAny = form.takesAny or input.kind[1] == "any"
        local one, isThere
        if input.kind[1].fields then
            one, isThere = {}, true
            for _, field in ipairs(input.kind[1].fields) do
                local x, isKnown = value(field.kind, i)
                form.takesAny = form.takesAny or field.kind[1] == "any"
                isThere = isThere and isKnown
                if not (field.isOptional and i % 2 == 0) then one[field.name] = x end
            end
        elseif input.isOptional and i % 2 == 0 then
            one, isThere = nil, true
        else
            one, isThere = value(input.kind, i)
        end
        if not isThere then return nil end
        inputs[k] = one
    end
    return inputs
end

local function isRefused(error)
    return type(error) == "table" and (error.identifier:find("^VELMARA:dispatch") or error.identifier:find("^VELMARA:console"))
end

local function call(name, f, form, i)
    local inputs = inputsOf(form, i)
    if not inputs then return false end
    calls = calls + 1
    local isDone, result = pcall(f, table.unpack(inputs, 1, inputs.n))
    if isDone then
        keep(result)
        if form.result and not fits(result, form.result) then report("%s gives %s", name, result) end
    elseif isRefused(result) and not form.takesAny then
        report("%s, alternatives %d: %s", name, i, result)
    end
    return true
end

-- A value of another kind is refused for the only input of the only form.
local function callWrongly(name, f, form)
    local inputs = inputsOf(form, 1)
    local kind = inputs and #form.inputs == 1 and #form.inputs[1].kind == 1 and form.inputs[1].kind[1]
    if not plain[kind] or kind == "any" then return end
    local isDone, error = pcall(f, kind == "string" and 5 or "text")
    if isDone or not isRefused(error) then report("%s takes another kind than %s", name, kind) end
end

local function published(name)
    return load("return " .. name)()
end

for _, name in ipairs(files) do
    local file = folder .. "/" .. name .. ".lua"
    local globals = {}
    assert(loadfile(file, "t", setmetatable(globals, {__index = function() end})))()
    if name == "velmara-console" then
        for global in pairs(_G) do
            if not globals[global] and _ENV.type(_G[global]) == "function" and
                not ("assert collectgarbage dofile error getmetatable ipairs load loadfile next pairs pcall print rawequal rawget rawlen rawset require select setmetatable tonumber tostring type warn xpcall"):find(global, 1, true) then
                report("the console's stub has no %s", global)
            end
        end
    else
        read(file)
    end
end
for round = 1, 3 do
    for name, callable in pairs(callables) do
        local class = name:match("^(.*)%.")
        local f = published(callable.name and name or name)
        local wasCalled
        for _, form in ipairs(callable.forms) do
            for i = 1, 8 do wasCalled = call(name, f, form, i) or wasCalled end
        end
        if #callable.forms == 2 and not callable.isObjects and callable.name then
            callWrongly(name, f, callable.forms[1])
        end
    end
end
for name, known in pairs(fields) do
    local object = objectOf(name)
    for field, property in pairs(known) do
        if object and property.isRead then
            local isDone, x = pcall(function() return object[field] end)
            if isDone and not fits(x, property.kind) then report("%s.%s is %s", name, field, x) end
        end
        for i = 1, object and property.isWritten and #property.kind or 0 do
            local x, isThere = value(property.kind, i)
            local isDone, error = pcall(function() object[field] = x end)
            if isThere and not isDone and isRefused(error) then report("%s.%s = %s: %s", name, field, x, error) end
        end
    end
    for _, member in ipairs(members(published(name))) do
        local owner = member.class or name
        if member.kind ~= "constructor" and not fields[owner][member.name] and not callables[owner .. "." .. member.name] then
            report("%s has no %s", owner, member.name)
        end
    end
end
local applied = {
    add = function(a, b) return a + b end, sub = function(a, b) return a - b end, len = function(a) return #a end, index = function(a, b) return a[b] end
}
local uses = 0
for _, op in ipairs(operators) do
    keep(select(2, pcall(published(op.class))))
    local inputs = {{kind = {op.class}}, op.kind and {kind = op.kind} or nil}
    uses = uses + (call(op.class .. "'s " .. op.name, applied[op.name], {inputs = inputs, result = op.result}, 1) and 1 or 0)
end
local objects = 0
for _ in pairs(pool) do objects = objects + 1 end
print("calls: " .. (calls > 2000 and "many" or calls), "objects: " .. (objects > 20 and "of many classes" or objects),
    "operators: " .. uses)
os.exit(failures == 0)
