#pragma once

#include "orbis/factory/base/export.hpp"

#include "orbis/COSString.hpp"

#include <string>
#include <vector>

namespace orbis::factory {

/// Names a signature's parameters, from a comma-separated list. Spaces are ignored.
class ORBIS_FACTORY_API ParameterNamer {
public:
    /// Null means no names.
    ParameterNamer(char const* names);

    /// An empty string means no names.
    ParameterNamer(std::string const& names);

    ParameterNamer(ParameterNamer const&);
    ParameterNamer(ParameterNamer&&) noexcept;
    ParameterNamer& operator=(ParameterNamer const&);
    ParameterNamer& operator=(ParameterNamer&&) noexcept;
    ~ParameterNamer();

    /// The name of input `i`, counted from 1: the listed one, else "p0" for the first, "p1" for the second, ...
    COSString getInputParameter(unsigned int i) const;

    /// Returns "result".
    COSString getOutputParameter(unsigned int i) const;

private:
    std::vector<std::string> pieces_;
};

} // namespace orbis::factory
