#pragma once

#include "orbis/factory/marshaling/ObjectTransfer.hpp"
#include "orbis/factory/marshaling/PropertyValue.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"

#include <type_traits>

/// How setters write: each of these classes says through what (`Pointer`), and what type that takes (`Value`). `write`
/// takes the pointer, or what converts to it.
namespace orbis::factory::detail {

/// Through a member `F` of `T`: a function that takes an `A`, or data of type `A`.
template <class A, class T, class F>
struct MemberWriter {
    using Pointer = F;
    using Value = A;
    static constexpr bool needsObject = true;

    template <class Stored>
    static void write(Stored const& setter, COSInterface* object, COSValue value)
    {
        T& self = nativeSelf<T>(object);
        Argument<A> argument(value);
        Transfer<A> transfer(WholeOfProperty<T>{object}, &value);
        [[maybe_unused]] auto const completion = transfer.completion();
        F const member = setter;
        if constexpr (std::is_member_object_pointer_v<F>)
            self.*member = argument.get();
        else
            (self.*member)(argument.get());
    }
};

/// Through a free function `F` that takes a `T*` and an `A`.
template <class A, class T, class F>
struct FunctionOnWriter {
    using Pointer = F;
    using Value = A;
    static constexpr bool needsObject = true;

    template <class Stored>
    static void write(Stored const& setter, COSInterface* object, COSValue value)
    {
        T& self = nativeSelf<T>(object);
        Argument<A> argument(value);
        Transfer<A> transfer(WholeOfProperty<T>{object}, &value);
        [[maybe_unused]] auto const completion = transfer.completion();
        F const function = setter;
        function(&self, argument.get());
    }
};

/// Through a function `F` that takes an `A`.
template <class A, class F>
struct FunctionWriter {
    using Pointer = F;
    using Value = A;
    static constexpr bool needsObject = false;

    static void write(F function, COSInterface*, COSValue value)
    {
        Argument<A> argument(value);
        function(argument.get());
    }
};

/// Static data.
template <class A>
struct DataWriter {
    using Pointer = A*;
    using Value = A;
    static constexpr bool needsObject = false;

    static void write(A* data, COSInterface*, COSValue value)
    {
        Argument<A> argument(value);
        *data = argument.get();
    }
};

} // namespace orbis::factory::detail
