#include "reference/CallableStub.hpp"

#include "bindings/MemberRecords.hpp"
#include "bindings/ProxyBinding.hpp"
#include "reference/LuaSource.hpp"

#include <algorithm>
#include <set>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;

/// The names of the inputs in their order; empty when they cannot be fields of a table.
std::vector<std::string> fieldNames(MethodRecord const& form)
{
    std::vector<std::string> names;
    for (ParameterRecord const& parameter : parametersOf(form)) {
        if (!isLuaName(parameter.name) || std::ranges::find(names, parameter.name) != names.end())
            return {};
        names.push_back(parameter.name);
    }
    return names;
}

/// A table of named values is a value for such a form.
bool takesTable(MethodRecord const* form)
{
    auto const parameters = parametersOf(*form);
    return parameters.size() == 1 && parameters.front().isConverted;
}

/// Whether another form has the same names in another order.
bool isAmbiguous(MethodRecord const& form, CallableForms const& forms)
{
    std::vector<std::string> const names = fieldNames(form);
    return std::ranges::any_of(forms, [&](MethodRecord const* other) {
        std::vector<std::string> const others = fieldNames(*other);
        return others != names && std::ranges::is_permutation(others, names);
    });
}

/// Without the "|nil" that a mark at the name says.
std::string withoutNil(std::string type)
{
    if (type.ends_with("|nil"))
        type.resize(type.size() - 4);
    return type;
}

/// The end of a line that tells the host's type.
std::string note(std::string const& dataType)
{
    return dataType == "any" ? "\n" : " # " + annotationText(dataType) + '\n';
}

std::string joined(std::vector<std::string> const& parts)
{
    std::string text;
    for (std::string const& part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

} // namespace

std::string CallableStub::parameter(std::string const& name, ParameterRecord const& record) const
{
    std::string const type = types_.taken(record.dataType);
    return record.isOptional ? name + "?: " + withoutNil(type) : name + ": " + type;
}

std::string CallableStub::result(MethodRecord const& form) const
{
    if (form.kind == Kind::Constructor)
        return stubTypeName(owner_);
    return form.outputs.empty() ? std::string() : types_.given(form.outputs.front().dataType);
}

std::string CallableStub::overload(MethodRecord const& form) const
{
    auto const parameters = parametersOf(form);
    std::vector<std::string> const names = luaParameters(parameters);
    std::vector<std::string> inputs;
    if (form.kind == Kind::Method)
        inputs.push_back("self: " + stubTypeName(owner_));
    for (std::size_t i = 0; i < parameters.size(); ++i)
        inputs.push_back(parameter(names[i], parameters[i]));
    std::string const output = result(form);
    return "---@overload fun(" + joined(inputs) + ')' + (output.empty() ? "" : ": " + output) + '\n';
}

std::string CallableStub::namedOverload(MethodRecord const& form) const
{
    std::vector<std::string> fields;
    for (ParameterRecord const& record : parametersOf(form))
        fields.push_back(parameter(record.name, record));
    std::string const self = form.kind == Kind::Method ? "self: " + stubTypeName(owner_) + ", " : std::string();
    std::string const output = result(form);
    return "---@overload fun(" + self + "named: {" + joined(fields) + "})" + (output.empty() ? "" : ": " + output) +
           '\n';
}

std::string CallableStub::descriptions(CallableForms const& forms) const
{
    std::string text;
    std::set<std::string_view> written;
    for (MethodRecord const* const form : forms)
        if (written.insert(form->description).second)
            text += luaComment(form->description);
    return text;
}

std::string CallableStub::overloads(CallableForms const& forms, std::size_t first) const
{
    std::string text;
    for (std::size_t i = first; i < forms.size(); ++i)
        text += overload(*forms[i]);
    if (std::ranges::any_of(forms, takesTable))
        return text;
    for (MethodRecord const* const form : forms)
        if (!fieldNames(*form).empty() && !isAmbiguous(*form, forms))
            text += namedOverload(*form);
    return text;
}

std::string CallableStub::parameterLines(MethodRecord const& form) const
{
    auto const parameters = parametersOf(form);
    std::vector<std::string> const names = luaParameters(parameters);
    std::string lines;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        std::string const type = types_.taken(parameters[i].dataType);
        lines += "---@param " + names[i] + (parameters[i].isOptional ? "? " + withoutNil(type) : ' ' + type) +
                 note(parameters[i].dataType);
    }
    if (std::string const output = result(form); !output.empty())
        lines += "---@return " + output + note(form.outputs.front().dataType);
    return lines;
}

std::string CallableStub::definition(CallableForms forms) const
{
    auto const isCalledOnObjects = [](MethodRecord const* form) { return form->kind == Kind::Method; };
    std::ranges::stable_partition(forms, isCalledOnObjects);
    MethodRecord const& form = *forms.front();
    std::string text = descriptions(forms) + overloads(forms, 1) + parameterLines(form);
    std::vector<std::string> inputs = luaParameters(parametersOf(form));
    std::string const name = unqualifiedName(form.name);
    std::string const owner = owner_.empty() ? std::string() : luaPath(owner_);
    bool const isMethod = isCalledOnObjects(&form);
    if (isLuaName(name) && owner.find('[') == owner.npos)
        return text + "function " + owner +
               (owner.empty() ? ""
                : isMethod    ? ":"
                              : ".") +
               name + '(' + joined(inputs) + ") end\n\n";
    if (isMethod)
        inputs.insert(inputs.begin(), "self");
    return text + luaIndex(owner, name) + " = function(" + joined(inputs) + ") end\n\n";
}

} // namespace velmara::console
