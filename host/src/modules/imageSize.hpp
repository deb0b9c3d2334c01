#pragma once

#include <cstdint>
#include <istream>

namespace velmara {

/// How long the file of a program or library (64-bit ELF or PE) has to be, by its own headers, for everything that is
/// mapped to be in it. 0 for what is neither; the header's own end where the headers are cut off.
std::uintmax_t imageSize(std::istream& file);

} // namespace velmara
