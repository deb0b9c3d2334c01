#pragma once

namespace orbis::factory {

/// A getter and the routine that releases its values.
template <auto Routine, class G>
struct ReleasedGetter {
    G getter; ///< as it was given
};

/// Attaches a release routine to a getter in a description:
///
///     .property("pixels", releasedBy<&Image::unlock>(&Image::lock))
///
/// The routine is called once for each value read, when the host has finished with it. It is a member function without
/// parameters, or a free function or captureless lambda that takes a pointer to the class, or nothing, or the host
/// object and the value (`impl::ReleaseRoutine`). Exceptions that it throws are dropped.
template <auto Routine, class G>
constexpr ReleasedGetter<Routine, G> releasedBy(G getter)
{
    return {getter};
}

} // namespace orbis::factory
