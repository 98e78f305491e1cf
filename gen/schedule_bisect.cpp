// Cache-oblivious scheduling by recursive bisection, after M. Frigo, "A fast Fourier transform
// compiler", PLDI 1999: the operations that depend only on the inputs' side come first, those that
// only the outputs' side depends on last, and each half is ordered the same way.
#include <algorithm>
#include <deque>

#include "gen/schedule.h"

namespace gen {
namespace {

class Bisection {
 public:
  Bisection(const Dependencies& dag, int variant)
      : dag_(dag),
        variant_(variant),
        part_of_(dag.operations.size(), 0),
        colour_(dag.operations.size(), kNone) {}

  std::vector<int> run() {
    std::vector<int> all(dag_.operations.size());
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<int>(i);
    order(all, 0);
    return result_;
  }

 private:
  using Part = std::vector<int>;
  enum Colour : char { kNone, kEarly, kLate };

  // Orders the operations of `part`, which is numbered `number` in part_of_.
  void order(const Part& part, int number) {
    if (part.size() <= 1) {
      for (int i : part) emit(i);
      return;
    }
    std::vector<Part> components = connected_components(part, number);
    if (components.size() == 1) {
      for (const Part& half : halves(part, number)) order(half, renumber(half));
      return;
    }
    while (!components.empty()) {
      const auto rank = [this](const Part& p) {
        return std::pair(inputs_shared_with_recent(p), tie_break(variant_, p[0]));
      };
      const auto next =
          std::max_element(components.begin(), components.end(),
                           [&](const Part& a, const Part& b) { return rank(a) < rank(b); });
      const Part chosen = std::move(*next);
      components.erase(next);
      order(chosen, renumber(chosen));
    }
  }

  std::vector<Part> connected_components(const Part& part, int number) {
    // What has been reached is given a number of its own for the time being.
    constexpr int kReached = -1;
    std::vector<Part> result;
    for (int seed : part) {
      if (part_of_[seed] == kReached) continue;
      Part& members = result.emplace_back();
      std::vector<int> pending = {seed};
      part_of_[seed] = kReached;
      while (!pending.empty()) {
        const int i = pending.back();
        pending.pop_back();
        members.push_back(i);
        for (const auto* neighbours : {&dag_.operands[i], &dag_.users[i]}) {
          for (int j : *neighbours) {
            if (part_of_[j] != number) continue;
            part_of_[j] = kReached;
            pending.push_back(j);
          }
        }
      }
      std::sort(members.begin(), members.end());
    }
    for (int i : part) part_of_[i] = number;
    return result;
  }

  // Colours layers from the inputs and from the outputs in turns until every operation has one.
  std::vector<Part> halves(const Part& part, int number) {
    std::size_t coloured = 0;
    for (int i : part) colour_[i] = kNone;
    const auto layer = [&](Colour paint, const std::vector<std::vector<int>>& before) {
      std::vector<int> ready;
      for (int i : part) {
        if (colour_[i] != kNone) continue;
        const bool free = std::all_of(before[i].begin(), before[i].end(), [&](int j) {
          return part_of_[j] != number || colour_[j] == paint;
        });
        if (free) ready.push_back(i);
      }
      for (int i : ready) colour_[i] = paint;
      coloured += ready.size();
    };
    if (tie_break(variant_, part[0]) & 1) layer(kLate, dag_.users);
    while (coloured < part.size()) {
      layer(kEarly, dag_.operands);
      layer(kLate, dag_.users);
    }
    std::vector<Part> result(2);
    for (int i : part) result[colour_[i] == kLate].push_back(i);
    return result;
  }

  int renumber(const Part& part) {
    ++part_count_;
    for (int i : part) part_of_[i] = part_count_;
    return part_count_;
  }

  int inputs_shared_with_recent(const Part& part) {
    int shared = 0;
    for (int i : part) {
      for (int j : dag_.operands[i]) {
        shared += std::find(recent_.begin(), recent_.end(), j) != recent_.end();
      }
    }
    return shared;
  }

  void emit(int i) {
    result_.push_back(i);
    recent_.push_back(i);
    if (recent_.size() > kRecent) recent_.pop_front();
  }

  static constexpr std::size_t kRecent = 24;
  const Dependencies& dag_;
  const int variant_;
  std::vector<int> part_of_;
  std::vector<Colour> colour_;
  int part_count_ = 0;
  std::vector<int> result_;
  std::deque<int> recent_;
};

}  // namespace

std::vector<int> order_by_bisection(const Dependencies& dag, int variant) {
  return Bisection(dag, variant).run();
}

}  // namespace gen
