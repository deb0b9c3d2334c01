#pragma once

#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/marshaling/MarshalingPolicy.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"
#include "orbis/objectArrays.hpp"

#include <memory>
#include <type_traits>
#include <utility>

/// The results of members that are objects of named classes.
namespace orbis::factory::detail {

/// A result `R` of which the author says who owns it.
template <class R, ResultOwner Owner>
struct OwnedResult {};

template <class R>
struct ResultTraits {
    using Native = R;
    /// What a reader of C++ expects of a pointer or a reference: a part of the object that gave it, if one did.
    static constexpr ResultOwner owner = ResultOwner::Whole;
};

template <class R, ResultOwner Owner>
struct ResultTraits<OwnedResult<R, Owner>> {
    using Native = R;
    static constexpr ResultOwner owner = Owner;
};

/// The type that the native function returns.
template <class Result>
using NativeResult = typename ResultTraits<Result>::Native;

template <class Result>
concept StoresNamedObject = IsNamedObject<NativeResult<Result>>;

/// Returns the object that a member is called on, its first input, if its result can be a part of that.
template <class Result>
COSInterface* wholeOf([[maybe_unused]] COSValue const* inputs)
{
    if constexpr (StoresNamedObject<Result>) {
        hvArray_tag const* const array = inputs ? inputs->array() : nullptr;
        return array && array->get_number_of_elements() != 0
                   ? static_cast<COSInterface*>(omGetArrayElement(array, 0))
                   : nullptr;
    } else {
        return nullptr;
    }
}

/// Calls `function` and returns an array, owned by the caller, with the host object of its result. A result by value
/// becomes an object of its own; one that belongs to the host is deleted if it gets no host object.
template <class Result, class F>
hvArray_tag* namedResult(COSInterface* whole, F&& function)
{
    using Native = NativeResult<Result>;
    using Class = std::remove_cv_t<std::remove_pointer_t<std::remove_cvref_t<Native>>>;
    NamedClass const& named = namedClassOf<Class>();
    if constexpr (std::is_class_v<Native> || ResultTraits<Result>::owner == ResultOwner::Host) {
        static_assert(std::is_destructible_v<Class>, "The host cannot own this result: its class has no public "
                                                     "destructor. Say borrowed(...) or inside(...) of the function.");
        std::unique_ptr<Class const> object;
        if constexpr (std::is_class_v<Native>)
            object.reset(new Class(std::forward<F>(function)()));
        else if constexpr (std::is_pointer_v<std::remove_cvref_t<Native>>)
            object.reset(std::forward<F>(function)());
        else
            object.reset(&std::forward<F>(function)());
        hvArray_tag* const array = announceNamed(named, object.get(), ResultOwner::Host, nullptr);
        static_cast<void>(object.release());
        return array;
    } else if constexpr (std::is_pointer_v<std::remove_cvref_t<Native>>) {
        return announceNamed(named, std::forward<F>(function)(), ResultTraits<Result>::owner, whole);
    } else {
        return announceNamed(named, std::addressof(std::forward<F>(function)()), ResultTraits<Result>::owner, whole);
    }
}

} // namespace orbis::factory::detail
