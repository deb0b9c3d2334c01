#pragma once

namespace orbis::factory {

/// Converts values of one kind of native type to and from the host. The policy, an empty tag type, names the kind.
/// Marshalers are stateless, and all their operations are static:
///
///  - `toHost<T>(value, out)` stores a new host value, owned by the caller: an array (`hvArray** out`) or, if
///    `fromHost` takes a value slot, a value (`COSValue* out`);
///  - `fromHost<T>(in)` converts from an `hvArray*` or, for values that need not be arrays, a `COSValue const&`. It
///    returns a native value, or a holder that lives for the call and returns it from `value()`. The host keeps `in`;
///  - `dataTypeText<T>()` returns the name of the host data type for signatures, a text with static lifetime;
///  - `dataTypeName<T>()` returns the same as a `COSNameID`; needed only by policies of objects;
///  - `isView<T>()`, `consteval`, is true if native values refer to memory that they do not own and that, for an
///    argument, is freed after the call. Views can be neither writable data members nor default values. Defaults to
///    false;
///  - `refusesNull<T>()`, `consteval`, is true if `fromHost` throws with `detail::throwNullInput`. Defaults to false.
///
/// To marshal a type of your own, specialise this for a policy of your own, and `MarshalingPolicy` for the type.
template <class Policy>
class Marshaler;

} // namespace orbis::factory
