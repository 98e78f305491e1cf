// A greedy list scheduler that gives results the time they take, so that a processor that looks
// only so far ahead finds work.
#include <algorithm>
#include <tuple>

#include "gen/schedule.h"

namespace gen {

std::vector<int> order_by_pace(const Dependencies& dag, int variant) {
  // What the processor is taken for: operations a cycle, and values that may be alive.
  const int width = 1 + variant / 10 % 3, room = 6 + 3 * (variant % 10);
  const int count = static_cast<int>(dag.operations.size());
  std::vector<int> waiting_for(count), readers_left(count), ripe_at(count), path(count);
  std::vector<int> ready;
  for (int i = count - 1; i >= 0; --i) {
    for (int user : dag.users[i]) path[i] = std::max(path[i], path[user]);
    path[i] += dag.latencies[i];
    waiting_for[i] = static_cast<int>(dag.operands[i].size());
    readers_left[i] = static_cast<int>(dag.users[i].size());
    if (waiting_for[i] == 0) ready.push_back(i);
  }

  int alive = 0, slot = 0;
  const auto change = [&](int i) {
    int result = dag.users[i].empty() ? 0 : 1;
    for (int j : dag.operands[i]) result -= readers_left[j] == 1;
    return result;
  };
  // The greatest goes first: what is ripe and fits, on the longest path to an output.
  const auto priority = [&](int i) {
    const int more = change(i), wait = std::max(0, ripe_at[i] - slot / width);
    const bool fits = more <= 0 || alive + more <= room;
    return std::tuple(wait == 0, fits, -wait, fits ? path[i] : -more, -more, ripe_at[i],
                      tie_break(variant / 30, i), -i);
  };
  std::vector<int> result;
  for (; !ready.empty(); ++slot) {
    const auto next = std::max_element(ready.begin(), ready.end(),
                                       [&](int a, int b) { return priority(a) < priority(b); });
    const int i = *next;
    ready.erase(next);
    result.push_back(i);
    alive += change(i);
    slot = std::max(slot, ripe_at[i] * width);
    for (int j : dag.operands[i]) --readers_left[j];
    for (int user : dag.users[i]) {
      ripe_at[user] = std::max(ripe_at[user], slot / width + dag.latencies[i]);
      if (--waiting_for[user] == 0) ready.push_back(user);
    }
  }
  return result;
}

}  // namespace gen
