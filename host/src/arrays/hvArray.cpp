#include "libhv/hvArray.hpp"

#include "arrays/Array.hpp"

using velmara::Array;

std::size_t hvArray_tag::get_number_of_elements() const
{
    return Array::of(this)->size();
}

std::size_t const* hvArray_tag::get_dimensions() const
{
    return Array::of(this)->dimensions();
}

hvClassID hvArray_tag::_get_class_id_non_trivial() const
{
    return Array::of(this)->classID();
}
