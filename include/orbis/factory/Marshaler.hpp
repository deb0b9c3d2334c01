#pragma once

namespace orbis::factory {

/// Carries values of one kind of native type to and from the host. The policy, an empty tag, names the kind. There
/// is no state; all operations are static:
///
///  - `toHost<T>(value, out)` stores a new host value, which is the caller's;
///  - `fromHost<T>(in)` gives a native value, or a holder of one that lives for the call; `in` stays the host's;
///  - `dataTypeName<T>()` names the host data type recorded in signatures; `dataTypeText<T>()` is its text.
template <class Policy>
class Marshaler;

} // namespace orbis::factory
