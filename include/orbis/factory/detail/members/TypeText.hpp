#pragma once

namespace orbis::factory {

/// Gives the name of a host data type. Called when the member is published: it throws `std::invalid_argument` for a
/// class that is not published by then.
using TypeText = char const* (*)();

} // namespace orbis::factory
