#pragma once

#include <cstddef>
#include <string>

/// Where a run may fail: each allocation, each native callback, each end of a step. A process that reaches such a point
/// forks a child for each kind of failure there, which goes on from it and reports, and goes on itself as if nothing
/// had been. So the n-th point is the n-th of just this run, whatever hashes and addresses it met.
namespace faults {

enum class Shortage { None, Once, UntilStepEnds, UntilEnd };

inline thread_local bool isArmed = false; ///< allocations and callbacks fail
inline Shortage shortage = Shortage::None;
inline bool isChild = false;
inline bool hasFailed = false; ///< in a child: nobody has looked yet
inline std::size_t allocationInterval = 1;

/// Reaches a point: 0 in the process that goes on, the kind of failure, from 1, in a child. Only each `interval`-th of
/// the points of a name is driven.
int reach(char const* name, int kinds, std::size_t interval = 1);

/// Ends a child unless `isTrue`.
void expect(bool isTrue, std::string const& what);

/// Tells what was driven; the exit code.
int report();

} // namespace faults
