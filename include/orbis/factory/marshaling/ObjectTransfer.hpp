#pragma once

#include "orbis/factory/detail/bindings/NewObject.hpp"
#include "orbis/factory/detail/objects/namedObjects.hpp"
#include "orbis/factory/marshaling/Argument.hpp"

#include "orbis/COSInterface.hpp"
#include "orbis/COSValue.hpp"

#include <cstddef>
#include <utility>

namespace orbis::factory {

/// A parameter `A`, a pointer or a reference to an object, that native code keeps: see `kept`.
template <class A>
struct Kept {};

/// A parameter `A` with an object that native code owns from then on: see `taken`.
template <class A>
struct Taken {};

namespace detail {

template <class A>
struct ParameterType {
    using Native = A;
    static constexpr bool isKept = false;
    static constexpr bool isTaken = false;
};

template <class A>
struct ParameterType<Kept<A>> {
    using Native = A;
    static constexpr bool isKept = true;
    static constexpr bool isTaken = false;
};

template <class A>
struct ParameterType<Taken<A>> {
    using Native = A;
    static constexpr bool isKept = false;
    static constexpr bool isTaken = true;
};

/// The type that the native function takes.
template <class A>
using NativeParameter = typename ParameterType<A>::Native;

template <class A>
    requires ParameterType<A>::isKept || ParameterType<A>::isTaken
struct NativeType<A> : NativeType<NativeParameter<A>> {};

template <class A>
    requires ParameterType<A>::isKept || ParameterType<A>::isTaken
class Argument<A> : public Argument<NativeParameter<A>> {
public:
    using Argument<NativeParameter<A>>::Argument;
};

/// What one call does to the owners of its arguments. All of it is undone unless the native function returns.
class ORBIS_FACTORY_API ObjectTransfer {
public:
    /// Is destroyed when the native function has returned or thrown.
    class ORBIS_FACTORY_API Completion {
    public:
        explicit Completion(ObjectTransfer& transfer);
        Completion(Completion const&) = delete;
        Completion& operator=(Completion const&) = delete;
        ~Completion();

    private:
        ObjectTransfer& transfer_;
        int exceptions_;
    };

    /// `whole` is the object that the call is on; null for a constructor.
    explicit ObjectTransfer(COSInterface* whole);
    ObjectTransfer(ObjectTransfer const&) = delete;
    ObjectTransfer& operator=(ObjectTransfer const&) = delete;
    ~ObjectTransfer();

    /// Keeps the object of the array (null for none) alive as long as that of the call. Throws the `cannot_keep` error.
    void keep(NamedClass const& named, hvArray_tag const* array);

    /// Makes the object of the array native code's when the function returns. Throws the `cannot_take` error.
    void take(NamedClass const& named, hvArray_tag const* array);

    /// Prepares the object that a constructor has created for `host`, before it is bound. The caller owns it until it
    /// calls `complete`.
    void prepare(NamedClass const& named, COSInterface* host, void* object);
    void complete() noexcept;

private:
    struct State;

    NewObject<State> state_;
};

/// The transfer of a call with parameters of the types `A`; nothing unless one is kept or taken.
template <class... A>
class Transfer {
public:
    struct Completion {};

    template <class Whole>
    Transfer(Whole const&, COSValue const*)
    {
    }
    Completion completion() { return {}; }
    void prepare(NamedClass const&, COSInterface*, void*) {}
    void complete() {}
};

template <class... A>
    requires((ParameterType<A>::isKept || ParameterType<A>::isTaken) || ...)
class Transfer<A...> : public ObjectTransfer {
public:
    template <class Whole>
    Transfer(Whole const& whole, COSValue const* inputs) : ObjectTransfer(whole.host())
    {
        std::size_t index = 0;
        (add<A>(inputs[index++].array()), ...);
    }

    Completion completion() { return Completion(*this); }

private:
    template <class Parameter>
    void add([[maybe_unused]] hvArray_tag const* array)
    {
        using Class = std::remove_const_t<std::remove_pointer_t<std::remove_cvref_t<NativeParameter<Parameter>>>>;
        if constexpr (ParameterType<Parameter>::isKept)
            keep(namedClassOf<Class>(), array);
        else if constexpr (ParameterType<Parameter>::isTaken)
            take(namedClassOf<Class>(), array);
    }
};

} // namespace detail
} // namespace orbis::factory
