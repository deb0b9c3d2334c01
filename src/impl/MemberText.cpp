#include "orbis/factory/descriptors/MemberText.hpp"

namespace orbis::factory {

template <class Attributes>
MemberText<Attributes>::MemberText(Attributes const& given) : attributes_(static_cast<unsigned int>(given.bits_))
{
}

template <class Attributes>
MemberText<Attributes> MemberText<Attributes>::operator+(Attributes const& more) const
{
    MemberText sum = *this;
    sum.attributes_ |= static_cast<unsigned int>(more.bits_);
    return sum;
}

template <class Attributes>
Attributes MemberText<Attributes>::attributes() const
{
    return Attributes(static_cast<unsigned int>(attributes_));
}

template class MemberText<MethodAttributes>;
template class MemberText<PropertyAttributes>;

} // namespace orbis::factory
