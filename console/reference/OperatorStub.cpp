#include "reference/OperatorStub.hpp"

#include "bindings/MemberRecords.hpp"
#include "bindings/OperatorMembers.hpp"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace velmara::console {

namespace {

using Kind = MethodRecord::Kind;
using Operands = std::vector<ParameterRecord>;

/// What follows the object where that is the first operand; nothing where it cannot be that.
std::optional<Operands> operandsOf(MethodRecord const& method, ClassRecord const& cls)
{
    auto const parameters = parametersOf(method);
    Operands operands(parameters.begin(), parameters.end());
    if (method.kind == Kind::StaticMethod) {
        if (operands.empty() || operands.front().dataType != cls.name)
            return std::nullopt;
        operands.erase(operands.begin());
    }
    return operands;
}

/// Calls `write` with each form of the member that takes this number of operands and gives something.
///
/// Static forms get the object only where there are no others.
template <class F>
void forEachForm(ClassRecord const& cls, std::string_view member, std::size_t count, F const& write)
{
    bool const isOfObjects = std::ranges::any_of(
        cls.methods, [&](MethodRecord const& method) { return method.name == member && method.kind == Kind::Method; });
    for (MethodRecord const& method : cls.methods) {
        if (method.name != member || method.kind != (isOfObjects ? Kind::Method : Kind::StaticMethod) ||
            !isListed(method) || method.outputs.empty())
            continue;
        if (auto const operands = operandsOf(method, cls); operands && operands->size() == count)
            write(*operands, method.outputs.front().dataType);
    }
}

/// Whether an annotation for the operator is known.
bool isAnnotated(std::string_view metamethod)
{
    return metamethod != "__lt" && metamethod != "__le";
}

} // namespace

std::string operatorLines(ClassRecord const& cls, StubTypes const& types)
{
    std::string lines;
    for (OperatorMember const& op : operatorMembers()) {
        std::string const name = std::string(op.metamethod).substr(2);
        if (isAnnotated(op.metamethod))
            forEachForm(cls, op.member, op.operands == 1 ? 0 : 1, [&](Operands const& operands, auto const& result) {
                lines += "---@operator " + name;
                if (!operands.empty())
                    lines += '(' + types.taken(operands.front().dataType) + ')';
                lines += ": " + types.given(result) + '\n';
            });
    }
    forEachForm(cls, "item", 1, [&](Operands const& operands, auto const& result) {
        lines += "---@field [" + types.taken(operands.front().dataType) + "] " + types.given(result) + '\n';
    });
    return lines;
}

} // namespace velmara::console
