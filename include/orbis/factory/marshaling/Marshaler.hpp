#pragma once

namespace orbis::factory {

/// Carries values of one kind of native type to and from the host. The policy, an empty tag, names the kind. There
/// is no state; all operations are static:
///
///  - `toHost<T>(value, out)` stores a new host value, which is the caller's: an array (`hvArray** out`), or, where the
///    data type is that of a numeric or logical scalar, the scalar itself (`COSValue* out`);
///  - `fromHost<T>(in)` gives a native value from an `hvArray*` or a `COSValue const&`, or a holder of one, whose
///    `value()` is used, and which lives for the call; `in` stays the host's;
///  - `dataTypeText<T>()` is the name of the host data type that signatures record, a text that lives on;
///  - `dataTypeName<T>()` is the same as a `COSNameID`; only policies of objects need it;
///  - `isView<T>()`, `consteval`, is true when native values refer to memory that is not theirs, which for an argument
///    is gone after the call; false when it is left out. Views are no writable data members and no default values;
///  - `refusesNull<T>()`, `consteval`, is true when `fromHost` throws with `detail::throwNullInput`; false when it is
///    left out.
///
/// To carry a type of your own, specialise this for a policy of your own, and `MarshalingPolicy` for the type.
template <class Policy>
class Marshaler;

} // namespace orbis::factory
