#pragma once

#include "orbis/factory/base/validateSelfPointer.hpp"
#include "orbis/factory/descriptors/Invoker.hpp"
#include "orbis/factory/detail/bindings/NativeOwnership.hpp"
#include "orbis/factory/detail/bindings/bindings.hpp"
#include "orbis/factory/detail/members/CallableTraits.hpp"
#include "orbis/factory/marshaling/Argument.hpp"
#include "orbis/factory/marshaling/ObjectTransfer.hpp"
#include "orbis/factory/marshaling/objectResult.hpp"
#include "orbis/factory/ownership/CopyableSupport.hpp"
#include "orbis/factory/types/HvArrayPolicy.hpp"

#include "orbis/objectArrays.hpp"

#include <type_traits>
#include <utility>

/// The routines stored in `impl::Invoker::invokeFn`, one for each function type: functions of one type share a routine,
/// which reads the callable from the invoker.
namespace orbis::factory::detail {

/// Adds a reference for the host if a function returns an array that it does not own: one that is an input or a default
/// value. The host owns results, so it would otherwise destroy that array for its owner, too.
template <class Result, class Target>
void shareGivenArray([[maybe_unused]] COSValue const* outputs, [[maybe_unused]] COSValue const* inputs,
                     [[maybe_unused]] int inputCount, [[maybe_unused]] Target const& target)
{
    if constexpr (!std::is_reference_v<Result> && passesForeignArray<Result>()) {
        hvArray* const array = outputs->array();
        bool isGiven = false;
        for (int i = 0; i < inputCount && !isGiven; ++i)
            isGiven = inputs[i].array() == array;
        if constexpr (requires { target.givesArray(array); })
            isGiven = isGiven || target.givesArray(array);
        if (array && isGiven)
            array->add_reference();
    }
}

/// Like `storeResult`, for the result of a member that is called on `whole`.
template <class Result, class Whole, class F>
void storeCallResult(int& outputCount, COSValue* outputs, [[maybe_unused]] Whole const& whole, F&& function)
{
    if constexpr (ObjectResult<Result>) {
        *outputs = COSValue(objectResult<Result>(whole, std::forward<F>(function)));
        if (outputCount == 0)
            outputCount = 1;
    } else {
        storeResult<Result>(outputCount, outputs, std::forward<F>(function));
    }
}

template <class Pointer, class Result, class Parameters>
struct FreeFunctionRoutine;

template <class Pointer, class Result, class... A>
struct FreeFunctionRoutine<Pointer, Result, TypeList<A...>> {
private:
    /// The object of a forced member.
    static auto wholeOf(ArgumentsOf<A...>& arguments, impl::Invoker const& invoker, COSValue const* inputs)
    {
        if constexpr (ObjectResult<Result> && sizeof...(A) > 0) {
            using First = std::remove_cvref_t<decltype(arguments.first())>;
            if constexpr (std::is_pointer_v<First> && std::is_class_v<std::remove_pointer_t<First>>)
                return WholeInput<std::remove_pointer_t<First>>{invoker.forcedMember ? inputs : nullptr,
                                                                arguments.first()};
            else
                return NoWhole();
        } else {
            return NoWhole();
        }
    }

public:
    static void invoke(impl::Invoker const* invoker, COSClient const*, int& outputCount, COSValue* outputs,
                       int inputCount, COSValue const* inputs)
    {
        ArgumentsOf<A...> arguments(inputs);
        // Only a pointer can be null. The check throws for forced members only.
        if constexpr (sizeof...(A) > 0) {
            if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(arguments.first())>>)
                impl::validateSelfPointer(arguments.first(), *invoker);
        }
        Transfer<A...> transfer(WholeInput<char>{invoker->forcedMember ? inputs : nullptr, nullptr}, inputs);
        storeCallResult<Result>(outputCount, outputs, wholeOf(arguments, *invoker, inputs),
                                [&]() -> NativeResult<Result> {
                                    [[maybe_unused]] auto const completion = transfer.completion();
                                    return arguments.apply(invoker->target.template as<Pointer>());
                                });
        shareGivenArray<Result>(outputs, inputs, inputCount, invoker->target.template as<Pointer>());
    }
};

template <class T, class Pointer, class Result, class Parameters>
struct MemberFunctionRoutine;

template <class T, class Pointer, class Result, class... A>
struct MemberFunctionRoutine<T, Pointer, Result, TypeList<A...>> {
    static void invoke(impl::Invoker const* invoker, COSClient const*, int& outputCount, COSValue* outputs,
                       int inputCount, COSValue const* inputs)
    {
        T* const self = convertFromHost<T*>(inputs[0]);
        ArgumentsOf<A...> arguments(inputs + 1);
        if (!self) [[unlikely]]
            impl::validateSelfPointer(self);
        WholeInput<T> const whole{inputs, self};
        Transfer<A...> transfer(whole, inputs + 1);
        storeCallResult<Result>(outputCount, outputs, whole, [&]() -> NativeResult<Result> {
            [[maybe_unused]] auto const completion = transfer.completion();
            return arguments.apply([&](auto&&... values) -> NativeResult<Result> {
                auto const target = invoker->target.template as<Pointer>();
                if constexpr (std::is_member_function_pointer_v<Pointer>)
                    return (self->*target)(static_cast<decltype(values)>(values)...);
                else
                    return target(self, static_cast<decltype(values)>(values)...);
            });
        });
        shareGivenArray<Result>(outputs, inputs, inputCount, invoker->target.template as<Pointer>());
    }
};

/// Throws the error of a constructor with arguments whose class info creates the native object, if the class cannot be
/// assigned.
[[noreturn]] ORBIS_FACTORY_API void throwNotAssignable(char const* className);

/// The completion of a constructor that is called with all of its arguments.
struct NoDefaults {
    static constexpr bool hasValues = false;

    template <class F>
    F complete(F function) const
    {
        return function;
    }
};

/// Constructs the native object of the host object in `outputs[0]`. If the class info has created one already, that is
/// kept, and assigned a new value if the constructor has arguments.
template <class T, class Parameters, class Completion = NoDefaults>
struct ConstructorRoutine;

template <class T, class... A, class Completion>
struct ConstructorRoutine<T, TypeList<A...>, Completion> {
    static void invoke(impl::Invoker const* invoker, COSClient const*, int& outputCount, COSValue* outputs, int,
                       COSValue const* inputs)
    {
        hvArray* const constructed = outputs[0].array();
        COSNameID const className(hostName<T>());
        COSInterfacePtr const held = cosiGetArrayElement(constructed, 0);
        COSInterface* const host = held;
        ArgumentsOf<A...> arguments(inputs);
        auto const completion = invoker->target.template as<Completion>();
        if (T* const existing = findExisting(host, className)) {
            assign(*existing, arguments, completion);
            bind(host, className, existing);
        } else {
            Transfer<A...> transfer(NoWhole(), inputs);
            auto object = arguments.apply(completion.complete(
                [](auto&&... values) { return NativeOwnership<T>::make(static_cast<decltype(values)>(values)...); }));
            if constexpr (NamedType<T>)
                transfer.prepare(namedClassOf<T>(), host, object.get());
            bind(host, className, object.get());
            NativeOwnership<T>::handOver(std::move(object), constructed);
            transfer.complete();
        }
        if (outputCount == 0)
            outputCount = 1;
    }

private:
    /// The class infos of named classes create no native object.
    static T* findExisting([[maybe_unused]] COSInterface* host, [[maybe_unused]] COSNameID const& className)
    {
        if constexpr (NamedType<T>)
            return nullptr;
        else
            return MarshalerOf<T*>::template fromBound<T>(host->getNativeObject(className));
    }

    static void bind(COSInterface* host, COSNameID const& className, T* object)
    {
        using Bound = MarshalerOf<T*>;
        void* const address = Bound::boundAddress(object);
        if constexpr (Bound::isHandle) {
            bindConstructed(host, className, address);
        } else {
            CopyableSupport::removeFromUnconstructedSet(address);
            host->setNativeObject(className, address);
        }
    }

    static void assign([[maybe_unused]] T& existing, [[maybe_unused]] ArgumentsOf<A...>& arguments,
                       [[maybe_unused]] Completion completion)
    {
        if constexpr (!NamedType<T> && (sizeof...(A) > 0 || Completion::hasValues)) {
            if constexpr (std::is_move_assignable_v<T>)
                existing = arguments.apply(
                    completion.complete([](auto&&... values) { return T(static_cast<decltype(values)>(values)...); }));
            else
                throwNotAssignable(hostName<T>());
        }
    }
};

} // namespace orbis::factory::detail
