#pragma once

#include "orbis_host_export.hpp"

#include <cstddef>
#include <cstdint>

/// The class of a host array's elements.
enum hvClassID : std::uint32_t {
    hvUNKNOWN_CLASS,
    hvCELL_CLASS,
    hvLOGICAL_CLASS,
    hvCHAR_CLASS,
    hvDOUBLE_CLASS,
    hvSINGLE_CLASS,
    hvINT8_CLASS,
    hvUINT8_CLASS,
    hvINT16_CLASS,
    hvUINT16_CLASS,
    hvINT32_CLASS,
    hvUINT32_CLASS,
    hvINT64_CLASS,
    hvUINT64_CLASS,
    hvSTRING_CLASS,
    hvOBJECT_CLASS,
};

/// Who gives an array back: 0 its holder, 1 the call in which it was made.
using hvVariableScope = int;

/// The host's array value: an m-by-n matrix in column-major order. Made and destroyed by the host's functions
/// only. It belongs to one thread at a time; its reference count is a plain integer.
class ORBIS_HOST_API hvArray_tag {
public:
    hvArray_tag(hvArray_tag const&) = delete;
    hvArray_tag& operator=(hvArray_tag const&) = delete;

    std::size_t get_number_of_elements() const; ///< rows times columns

    /// Two sizes: rows, columns. They stay valid while the array lives.
    std::size_t const* get_dimensions() const;

    hvClassID _get_class_id_non_trivial() const; ///< the class of the elements

    /// Shares the array itself: one more `hvDestroyArray` is owed for it.
    void add_reference()
    {
        flags_ &= ~temporaryFlag;
        ++references_;
    }

protected:
    static constexpr std::uint32_t temporaryFlag = 0x200; ///< set while the array is a call's temporary

    hvArray_tag() = default;
    ~hvArray_tag() = default;

    std::uint32_t flags_ = temporaryFlag; ///< `temporaryFlag`, and others of the host
    std::uint32_t references_ = 1;        ///< those who own the array
};

/// Most functions name arrays so.
using hvArray = hvArray_tag;
