#pragma once

#include "orbis/factory/base/export.hpp"
#include "orbis/factory/descriptors/Callable.hpp"

#include "orbis/COSClient.hpp"
#include "orbis/COSMethodSignaturePtr.hpp"
#include "orbis/COSValue.hpp"

#include <cstdint>

namespace orbis::factory::impl {

/// The call target of a descriptor: a routine, generated once per function type, and the callable that the routine
/// calls.
class ORBIS_FACTORY_API Invoker {
public:
    /// Takes the invoker itself, then the arguments of the descriptor's `invoke`.
    using InvokeFn = void (*)(Invoker const* invoker, COSClient const* client, int& outputCount, COSValue* outputs,
                              int inputCount, COSValue const* inputs);

    void setForcedMember(bool forced);        ///< sets `forcedMember`
    void setTarget(Callable const& callable); ///< sets `target`

    InvokeFn invokeFn = nullptr; ///< the routine
    Callable target;             ///< what the routine calls
    bool forcedMember = false;   ///< read by `validateSelfPointer`
    std::int32_t reserved = -1;  ///< unused; part of the fixed layout

private:
    using T = char const*;
    using Signature = COSMethodSignaturePtr;

public:
    /// Creates the signature of a member with 0 to 20 inputs and stores it in the last argument. Does nothing if that
    /// holds one already, and leaves it empty when it throws. All texts are NUL-terminated names of host data types,
    /// except for `names`: the inputs' names, without the object's (see `ParameterNamer`); null for none. `output` is
    /// "void" for no result. `self`, unless null, adds a first input of that type named "this". Inputs 11 to 20 all get
    /// the eleventh name.
    static void createSignature(T names, T output, T self, Signature&);
    /// \cond the reference lists one for all
    static void createSignature(T names, T output, T self, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T,
                                Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T,
                                Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T,
                                Signature&);
    static void createSignature(T names, T output, T self, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T, T,
                                Signature&);
    /// \endcond
};

} // namespace orbis::factory::impl
