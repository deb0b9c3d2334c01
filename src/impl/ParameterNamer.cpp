#include "orbis/factory/descriptors/ParameterNamer.hpp"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/erase.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/lexical_cast.hpp>

namespace orbis::factory {

namespace {

std::vector<std::string> split(std::string const& names)
{
    std::vector<std::string> pieces;
    boost::algorithm::split(pieces, names, boost::algorithm::is_any_of(","));
    return pieces;
}

} // namespace

ParameterNamer::ParameterNamer(char const* names)
{
    if (names)
        pieces_ = split(names);
}

ParameterNamer::ParameterNamer(std::string const& names)
{
    if (!names.empty())
        pieces_ = split(names);
}

ParameterNamer::ParameterNamer(ParameterNamer const&) = default;

ParameterNamer::ParameterNamer(ParameterNamer&&) noexcept = default;

ParameterNamer& ParameterNamer::operator=(ParameterNamer const&) = default;

ParameterNamer& ParameterNamer::operator=(ParameterNamer&&) noexcept = default;

ParameterNamer::~ParameterNamer() = default;

COSString ParameterNamer::getInputParameter(unsigned int i) const
{
    unsigned int const index = i - 1;
    bool const hasNoNames = pieces_.size() == 1 && pieces_.front().empty();
    std::string const name = index < pieces_.size() && !hasNoNames
                                 ? boost::algorithm::erase_all_copy(pieces_[index], " ")
                                 : "p" + boost::lexical_cast<std::string>(index);
    return name.c_str();
}

COSString ParameterNamer::getOutputParameter(unsigned int) const
{
    return "result";
}

} // namespace orbis::factory
