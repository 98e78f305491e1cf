// The order in which a kernel's operations are written down. Registers are few, eight in
// 32-bit code, so what matters is how many values are alive at a time; in wide vectors, also how
// long an operation waits for the one before.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "gen/graph.h"

namespace gen {

// A strategy and one of its variants, which differ in how they break ties: which comes out fastest
// can only be measured.
struct Order {
  enum class Strategy {
    kBisect,  // recursive bisection: halves that share few values, then the halves of these
    kLive,    // greedy: always the operation that changes the number of live values the least
    kPaced,   // greedy: always one whose operands had time to ripen, while registers last
  };
  Strategy strategy = Strategy::kBisect;
  int variant = 0;
};

// "bisect 3", "live 0", "paced 14". Throws std::invalid_argument.
Order parse_order(std::string_view text);
std::string to_string(const Order& order);

// All live nodes that are operations, each behind its operands; loads and constants are left out,
// since they stand directly before their first use.
std::vector<NodeId> schedule(const Graph& graph, const Order& order);

// Whether the node only brings something in: an element or vector of the source, or a constant.
bool is_load(const Graph& graph, NodeId node);

// The operations of a graph, by their position in `operations`.
struct Dependencies {
  std::vector<NodeId> operations;
  std::vector<std::vector<int>> operands, users;
  std::vector<std::vector<NodeId>> loads;  // what each operation reads besides
  std::vector<bool> is_output;
  std::vector<int> latencies;
};

// The strategies: orders of the positions.
std::vector<int> order_by_bisection(const Dependencies& dag, int variant);
std::vector<int> order_by_live_values(const Dependencies& dag, int variant);
// The variant tells how many operations a cycle there are, how many registers, and breaks ties.
std::vector<int> order_by_pace(const Dependencies& dag, int variant);

// A number for breaking a tie about `item`; zero in variant 0.
std::uint32_t tie_break(int variant, int item);

}  // namespace gen
