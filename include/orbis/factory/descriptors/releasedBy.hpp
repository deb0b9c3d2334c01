#pragma once

namespace orbis::factory {

/// A getter and what is to be called when the host has done with a value that it gave.
template <auto Routine, class G>
struct ReleasedGetter {
    G getter;
};

/// Says in a description what a getter's values need when they are given back:
///
///     .property("pixels", releasedBy<&Image::unlock>(&Image::lock))
///
/// The routine is called once for each value read, after the host has taken it over: a member function without
/// parameters, a free function or captureless lambda that takes a pointer to the class, or nothing, or the host object
/// and the value (`impl::ReleaseRoutine`). What it throws is lost.
template <auto Routine, class G>
constexpr ReleasedGetter<Routine, G> releasedBy(G getter)
{
    return {getter};
}

} // namespace orbis::factory
