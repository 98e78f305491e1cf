// A greedy list scheduler that keeps few values alive.
#include <algorithm>
#include <set>
#include <tuple>

#include "gen/schedule.h"

namespace gen {

std::vector<int> order_by_live_values(const Dependencies& dag, int variant) {
  const int count = static_cast<int>(dag.operations.size());
  std::vector<int> waiting_for(count), readers_left(count), time(count);
  std::set<int> ready;
  std::set<NodeId> loaded;
  for (int i = 0; i < count; ++i) {
    waiting_for[i] = static_cast<int>(dag.operands[i].size());
    readers_left[i] = static_cast<int>(dag.users[i].size());
    if (waiting_for[i] == 0) ready.insert(i);
  }

  // The greatest goes first.
  const auto priority = [&](int i) {
    int change = dag.is_output[i] && dag.users[i].empty() ? 0 : 1;
    for (NodeId load : dag.loads[i]) change += !loaded.contains(load);
    int newest = 0, sum = 0;
    for (int j : dag.operands[i]) {
      change -= readers_left[j] == 1;
      newest = std::max(newest, time[j]);
      sum += time[j];
    }
    const bool finishes = std::any_of(dag.users[i].begin(), dag.users[i].end(),
                                      [&](int user) { return waiting_for[user] == 1; });
    return std::tuple(-change, finishes, newest, sum, tie_break(variant, i), -i);
  };

  std::vector<int> result;
  while (!ready.empty()) {
    const int next = *std::max_element(ready.begin(), ready.end(),
                                       [&](int a, int b) { return priority(a) < priority(b); });
    ready.erase(next);
    result.push_back(next);
    time[next] = static_cast<int>(result.size());
    loaded.insert(dag.loads[next].begin(), dag.loads[next].end());
    for (int j : dag.operands[next]) --readers_left[j];
    for (int user : dag.users[next]) {
      if (--waiting_for[user] == 0) ready.insert(user);
    }
  }
  return result;
}

}  // namespace gen
