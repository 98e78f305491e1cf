#include "gen/pack_cost.h"

#include <algorithm>

#include "gen/cost.h"

namespace gen {

PairingCost::PairingCost(const PackModel& model, int path_weight)
    : model_(model),
      path_weight_(path_weight),
      depth_(model.places.size()),
      known_(model.places.size()),
      open_(model.places.size()) {
  // Every place is an operand of few pairs: a quarter of the table is used at the most.
  std::size_t size = 1;
  while (size < 16 * model.places.size()) size *= 2;
  seen_.resize(size);
}

long PairingCost::operator()(const Mates& mates) {
  mates_ = &mates;
  ++round_;
  totals_ = {};
  long path = 0;
  for (int id = 0; id < static_cast<int>(model_.places.size()); ++id) {
    if (!model_.places[id].is_output) continue;
    const long length = depth(id);
    if (length < 0) return -1;
    path = std::max(path, length);
    if (!model_.places[id].is_load) count_store(id);
  }
  const Totals& t = totals_;
  const int two = t.additions + t.shuffles + t.crossings, three = two + t.products + t.blends;
  const long bound =
      std::max({600L * t.crossings, 300L * two, 200L * three, 200L * t.loads, 300L * t.stores});
  return bound + 30L * (three + t.loads + t.stores) + 30L * (t.shuffles + t.crossings) +
         12L * t.crossings + 6L * path_weight_ * path;
}

long PairingCost::depth(int id) {
  if (known_[id] == round_) return depth_[id];
  if (open_[id] == round_) return -1;
  const int mate = mates_->mate(id);
  open_[id] = round_;
  if (mate >= 0) open_[mate] = round_;
  const bool is_high = mates_->is_high(id);
  const long result =
      mate < 0 ? depth_of_single(id) : depth_of_pair(is_high ? mate : id, is_high ? id : mate);
  if (result < 0) return -1;
  for (const int place : {id, mate < 0 ? id : mate}) {
    known_[place] = round_;
    depth_[place] = result;
  }
  return result;
}

long PairingCost::depth_of_single(int id) {
  const Place& place = model_.places[id];
  const bool is_nothing = model_.is_identity(id) || place.is_load;
  long result = 0;
  for (const int slot : place.slots) {
    const long path = depth(slot);
    if (path < 0) return -1;
    result = std::max(result, path + (model_.is_identity(id) ? 0 : count_single(slot)));
  }
  if (is_nothing) return result;
  count_operation(place, model_.places[place.slots[0]].is_load);
  return result + latency(place.op);
}

long PairingCost::depth_of_pair(int low, int high) {
  const Place &x = model_.places[low], &y = model_.places[high];
  int swap = 0, turn = 0;
  const int slots = static_cast<int>(x.slots.size());
  if (slots == 2 && (x.commutes || y.commutes)) {
    const auto fit = [&](int a, int b) {
      return 2 * mates_->is_pair(a, b) + (model_.places[a].is_load && model_.places[b].is_load);
    };
    if (fit(x.slots[0], y.slots[1]) + fit(x.slots[1], y.slots[0]) >
        fit(x.slots[0], y.slots[0]) + fit(x.slots[1], y.slots[1])) {
      (y.commutes ? swap : turn) = 1;
    }
  }
  long result = 0;
  for (int slot = 0; slot < slots; ++slot) {
    const int p = x.slots[slot ^ turn], q = y.slots[slot ^ swap];
    const int extra = count_join(p, q);
    for (const int operand : {p, q}) {
      const long path = depth(operand);
      if (path < 0) return -1;
      result = std::max(result, path + extra);
    }
  }
  count_operation(x, false);
  if (slots == 2) count_signs(low, high, x.slots[1 ^ turn]);
  return result + latency(x.op);
}

void PairingCost::count_operation(const Place& place, bool reads_memory) {
  switch (place.op) {
    case Op::kAdd:
    case Op::kSub:
    case Op::kFromZero:
      ++totals_.additions;
      break;
    case Op::kMul:
    case Op::kProduct:
    case Op::kScale:
      ++totals_.products;
      break;
    case Op::kLanes:
      ++totals_.shuffles;
      break;
    case Op::kFlipSigns:
      ++totals_.blends;
      break;
    case Op::kWiden:
    case Op::kRound:
      ++totals_.additions;
      totals_.shuffles += place.op == Op::kRound || !reads_memory;
      break;
    default:
      break;
  }
}

// A sum that adds some lanes and subtracts others flips signs before, unless a product does.
void PairingCost::count_signs(int low, int high, int second) {
  const Place &x = model_.places[low], &y = model_.places[high];
  if (x.op != Op::kAdd && x.op != Op::kSub) return;
  const unsigned all = (1u << 2 * x.lanes) - 1, flips = x.flips | y.flips << x.lanes;
  if (flips == 0 || flips == all || flips == (0x55u & all)) return;
  const Place& b = model_.places[second];
  totals_.blends += b.op != Op::kMul || b.users.size() != 1 || mates_->mate(second) < 0;
}

int PairingCost::count_join(int low, int high) {
  if (mates_->is_pair(low, high)) return 0;
  const Place &x = model_.places[low], &y = model_.places[high];
  if (x.op == Op::kZero && y.op == Op::kZero) return 0;
  const bool is_new = is_first(low, high);
  if (x.is_load && y.is_load) {
    if (is_new) count_joined_loads(x, y);
    return 0;
  }
  const bool x_high = mates_->is_high(low), y_high = mates_->is_high(high);
  if (x.is_load) count_single(low);
  if (y.is_load && is_new) ++totals_.loads;
  if (!x_high && (y_high || y.is_load)) {
    if (is_new) ++(x.floats ? totals_.shuffles : totals_.blends);
    return 1;
  }
  int& moves = x.wide ? totals_.crossings : totals_.shuffles;
  if (is_new) moves += x.floats && (x_high || y_high) && low != high ? 2 : 1;
  return x.wide ? kCrossingLatency : 1;
}

void PairingCost::count_joined_loads(const Place& x, const Place& y) {
  const bool known = x.element >= 0 && y.element >= 0;
  if (known && y.element == x.element + x.lanes) {
    ++totals_.loads;
  } else if (known && y.element == x.element) {
    ++totals_.loads;
    totals_.shuffles += x.floats;
  } else {
    totals_.loads += 2;
    if (x.two_floats) {
      // Those that don't stand side by side come one by one.
      totals_.loads += (x.element < 0) + (y.element < 0);
      totals_.shuffles += (x.element < 0) + (y.element < 0);
    }
    ++(x.floats || x.two_floats ? totals_.shuffles : totals_.blends);
  }
}

int PairingCost::count_single(int id) {
  const Place& place = model_.places[id];
  if (place.is_load) {
    if (place.op != Op::kZero && is_first(id, -1)) ++totals_.loads;
    return 0;
  }
  if (!mates_->is_high(id)) return 0;
  if (is_first(id, -1)) ++(place.wide ? totals_.crossings : totals_.shuffles);
  return place.wide ? kCrossingLatency : 1;
}

void PairingCost::count_store(int id) {
  const Place& place = model_.places[id];
  const bool through = model_.is_identity(id) && mates_->mate(id) < 0;
  const int source = through ? place.slots[0] : id, mate = mates_->mate(source);
  const bool is_whole = place.stored_at >= 0, is_high = mates_->is_high(source);
  if (mate >= 0 && !is_high && is_whole) {
    const int other = through ? model_.identity_of(mate) : mate;
    // Stored with it.
    if (model_.places[other].stored_at == place.stored_at + place.lanes) return;
  }
  totals_.stores += is_whole ? 1 : 2;
  // Halves of 64 and 128 bits are stored from where they are, floats from lane 0.
  if (place.floats) totals_.shuffles += is_high;
  if (place.two_floats && !is_whole) totals_.shuffles += is_high ? 2 : 1;
  if (place.wide && !is_whole) totals_.crossings += is_high;
}

bool PairingCost::is_first(int low, int high) {
  const std::uint64_t key = static_cast<std::uint64_t>(low) << 32 | static_cast<unsigned>(high);
  std::size_t at = mixed(key, 1) % seen_.size();
  for (; seen_[at].round == round_; at = (at + 1) % seen_.size()) {
    if (seen_[at].key == key) return false;
  }
  seen_[at] = {key, round_};
  return true;
}

}  // namespace gen
