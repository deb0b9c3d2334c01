#pragma once

#include "libkwfl/IException.hpp"

#include <exception>

namespace orbis {

/// Thrown when an enumeration is asked for an element past its end.
class ORBIS_HOST_API ENoElements : public foundation::core::except::IException, public std::exception {
public:
    ENoElements();
    ENoElements(ENoElements const&);
    ENoElements(ENoElements&&) noexcept;
    ENoElements& operator=(ENoElements const&);
    ~ENoElements() override;

    char const* what() const noexcept override;
};

} // namespace orbis
