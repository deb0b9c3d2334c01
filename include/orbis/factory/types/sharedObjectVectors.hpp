#pragma once

#include "orbis/factory/types/ObjectVectorPolicy.hpp"
#include "orbis/factory/types/SharedPointerPolicy.hpp"

// Vectors of shared pointers to published objects.
namespace orbis::factory {

template <class T>
    requires PublishedClass<std::remove_const_t<T>>
struct MarshalingPolicy<std::vector<boost::shared_ptr<T>>> {
    using Type = ObjectVectorPolicy;
};

template <class T>
    requires PublishedClass<std::remove_const_t<T>>
struct MarshalingPolicy<std::vector<std::shared_ptr<T>>> {
    using Type = ObjectVectorPolicy;
};

namespace detail {

template <class T>
struct ReferredObjects<std::vector<boost::shared_ptr<T>>> : ReferredByElements<std::vector<boost::shared_ptr<T>>> {};

template <class T>
struct ReferredObjects<std::vector<std::shared_ptr<T>>> : ReferredByElements<std::vector<std::shared_ptr<T>>> {};

} // namespace detail
} // namespace orbis::factory
