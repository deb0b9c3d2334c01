#include "libkwfl/Exception.hpp"
#include "libkwfl/bad_alloc.hpp"
#include "orbis/ENoElements.hpp"

#include "libkwi18n/libkwi18n.hpp"

namespace foundation::core::except {

IException::IException() = default;
IException::IException(IException const&) = default;
IException& IException::operator=(IException const&) = default;
IException::~IException() = default;

IInternalException::IInternalException() = default;
IInternalException::IInternalException(IInternalException const&) = default;
IInternalException& IInternalException::operator=(IInternalException const&) = default;
IInternalException::~IInternalException() = default;

IUserException::IUserException() = default;
IUserException::IUserException(IUserException const&) = default;
IUserException& IUserException::operator=(IUserException const&) = default;
IUserException::~IUserException() = default;

std::u16string IUserException::convert_str(std::string const& text)
{
    return fl::i18n::to_ustring(text);
}

std::string IUserException::convert_str(std::u16string const& text)
{
    return fl::i18n::to_string(text);
}

std::u16string IUserException::ToUstringImpl(char const* text)
{
    return text ? fl::i18n::to_ustring(text) : std::u16string();
}

namespace detail {

bad_alloc_impl::bad_alloc_impl() = default;
bad_alloc_impl::bad_alloc_impl(bad_alloc_impl const&) = default;
bad_alloc_impl::~bad_alloc_impl() = default;

char const* bad_alloc_impl::what() const noexcept
{
    return "Out of memory.";
}

} // namespace detail
} // namespace foundation::core::except

namespace orbis {

ENoElements::ENoElements() = default;
ENoElements::ENoElements(ENoElements const&) = default;
ENoElements::ENoElements(ENoElements&& other) noexcept : IException(other), std::exception(other) {}
ENoElements& ENoElements::operator=(ENoElements const&) = default;
ENoElements::~ENoElements() = default;

char const* ENoElements::what() const noexcept
{
    return "The enumeration has no more elements.";
}

} // namespace orbis
