#include "module/OwnedProperty.hpp"

#include <utility>

namespace orbis::factory {

OwnedProperty::OwnedProperty(char const* name, std::unique_ptr<impl::Getter> getter,
                             std::unique_ptr<impl::Setter> setter, PropertyAttributes attributes)
    : PropertyImpl(name, getter.get(), setter.get(), attributes),
      ownedGetter_(std::move(getter)),
      ownedSetter_(std::move(setter))
{
}

} // namespace orbis::factory
