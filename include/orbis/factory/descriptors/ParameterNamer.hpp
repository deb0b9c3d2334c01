#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSString.hpp"

#include <string>
#include <vector>

namespace orbis::factory {

/// Gives a signature's parameters their names, from a list of names separated by commas. Spaces do not count.
class ORBIS_FACTORY_API ParameterNamer {
public:
    /// Null is no list.
    ParameterNamer(char const* names);

    /// An empty text is no list.
    ParameterNamer(std::string const& names);

    ParameterNamer(ParameterNamer const&);
    ParameterNamer(ParameterNamer&&) noexcept;
    ParameterNamer& operator=(ParameterNamer const&);
    ParameterNamer& operator=(ParameterNamer&&) noexcept;
    ~ParameterNamer();

    /// The name of input `i`, counted from 1: the listed one, else "p0" for the first, "p1" for the second, ...
    COSString getInputParameter(unsigned int i) const;

    /// Always "result".
    COSString getOutputParameter(unsigned int i) const;

private:
    std::vector<std::string> pieces_;
};

} // namespace orbis::factory
