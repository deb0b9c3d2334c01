#include "orbis/factory/base/argumentErrors.hpp"

#include "orbis/factory/base/errorIdentities.hpp"

#include "marshal/throwError.hpp"

namespace orbis::factory {

namespace identities = orbis_factory::orbis_factory;

void errorMustBeCellArray()
{
    throwError(identities::must_be_cell_array());
}

void errorMustBeString(std::size_t index)
{
    throwError(identities::must_be_string(index));
}

void errorNoDuplicates(std::string const& text)
{
    throwError(identities::no_duplicates(text));
}

} // namespace orbis::factory
