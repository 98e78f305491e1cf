// Time in core cycles, with a watch on who else uses the core.
//
// A virtual machine has no hardware counters, its clock moves, and a neighbour may load the other
// half of the core. So every sample stands between two canaries: a chain of dependent
// multiplications, whose length in cycles is known and gives the clock, and a run of independent
// additions, which takes longer if somebody else uses the ports.
#pragma once

#include <functional>
#include <vector>

namespace bench {

class Clock {
 public:
  Clock();

  // Runs `work` once; the core cycles that it took, or a negative number if a canary was disturbed.
  double sample(const std::function<void()>& work) const;

 private:
  double empty_ticks_;  // what reading the time costs
  double quiet_ratio_;  // port canary over chain canary on a core of one's own
};

// The contenders' cycles a call. Each is a function that makes the given number of calls; all of
// them take turns, a sample of about 10 microseconds each, and the figure is the median of the
// lowest cluster of undisturbed samples; NaN if there are too few.
using Contender = std::function<void(int calls)>;
std::vector<double> cycles_per_call(const Clock& clock, const std::vector<Contender>& contenders,
                                    int rounds);

}  // namespace bench
