// Time in core cycles, with a watch on who else uses the core.
//
// A virtual machine has no hardware counters, its clock moves, and a neighbour may load the other
// half of the core. So every sample stands between canaries: a chain of dependent multiplications,
// whose length in cycles is known and gives the clock; a run of independent additions between empty
// instructions, which takes longer if somebody else uses the ports or the front end; and a run of
// loads and stores, which tells of phases in which memory operations take longer.
#pragma once

#include <functional>
#include <optional>
#include <vector>

namespace bench {

class Clock {
 public:
  Clock();

  // Waits for a quiet moment and runs `work` once; the core cycles that it took, or nothing if
  // there was no such moment or a canary behind it was disturbed.
  std::optional<double> sample(const std::function<void()>& work) const;

  // The cycles, whoever was about, by the clock as it was at first.
  double rough_cycles(const std::function<void()>& work) const;

 private:
  struct Canaries {
    double chain, ports, memory;
  };
  static Canaries canaries();
  bool is_quiet(const Canaries& canary) const;

  double cycles_per_tick_;
  double empty_ticks_;                 // what reading the time costs
  double quiet_ports_, quiet_memory_;  // canaries over the chain on a core of one's own
};

// A function that makes the given number of calls of what is measured.
using Contender = std::function<void(int calls)>;

// The contenders' cycles a call. They take turns, a sample of about 10 microseconds each, and the
// figure of one pass is the median of the lowest cluster of undisturbed samples. There are as many
// passes as it takes until the two lowest agree within 3 %, of which the lower is the result;
// nothing if that takes too long.
std::vector<std::optional<double>> cycles_per_call(const Clock& clock,
                                                   const std::vector<Contender>& contenders,
                                                   int rounds);

}  // namespace bench
