#include "orbis/factory/descriptors/MemberText.hpp"

namespace orbis::factory {

template <class Attributes>
MemberText<Attributes>::MemberText(Attributes const& given) : attributes_(given.bits_)
{
}

template <class Attributes>
MemberText<Attributes> MemberText<Attributes>::operator+(Attributes const& more) const
{
    MemberText sum = *this;
    sum.attributes_ |= more.bits_;
    return sum;
}

template <class Attributes>
Attributes MemberText<Attributes>::attributes() const
{
    return Attributes(attributes_);
}

template class MemberText<MethodAttributes>;
template class MemberText<PropertyAttributes>;

} // namespace orbis::factory
