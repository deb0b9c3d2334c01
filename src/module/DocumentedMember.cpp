#include "module/DocumentedMember.hpp"

#include <string_view>

namespace orbis::factory {

DocumentedMember::DocumentedMember(MemberRecord const& record) : text_(record.text), record_(record)
{
    std::string_view rest(record.parameterNames ? record.parameterNames : "");
    for (std::size_t open = rest.find('('); open != std::string_view::npos; open = rest.find('(')) {
        names_ += rest.substr(0, open);
        std::size_t const first = names_.find_last_of(", ", names_.find_last_not_of(' ')) + 1;
        std::string const name = names_.substr(first, names_.find_last_not_of(' ') + 1 - first);
        std::size_t const close = rest.find(')', open); // there is one: checked at compile time
        text_ += (text_.empty() ? "" : "\n") + name + ": " + std::string(rest.substr(open + 1, close - open - 1));
        rest.remove_prefix(close + 1);
    }
    names_ += rest;
    if (record.parameterNames)
        record_.parameterNames = names_.c_str();
}

} // namespace orbis::factory
