#include "docs/pages/layered_layout.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <stdexcept>

namespace pages {
namespace {

constexpr int kOrderSweeps = 24;
constexpr int kPlaceSweeps = 40;
// What an arc gets that passes by a column.
constexpr double kPassingHeight = 2;

// The columns by depth. A node that brings together more values than it hands on stands close to
// what it reads, any other close to what reads it: fewer lines then cross a column.
std::vector<int> columns_of(int count, const std::vector<Arc>& arcs) {
  std::vector<std::vector<int>> readers(count), operands(count);
  for (const Arc& arc : arcs) {
    readers.at(arc.from).push_back(arc.to);
    operands.at(arc.to).push_back(arc.from);
  }
  std::vector<int> order, missing(count), column(count, 0);
  for (int node = 0; node < count; ++node) {
    missing[node] = static_cast<int>(operands[node].size());
    if (missing[node] == 0) order.push_back(node);
  }
  for (std::size_t at = 0; at < order.size(); ++at) {
    for (int reader : readers[order[at]]) {
      column[reader] = std::max(column[reader], column[order[at]] + 1);
      if (--missing[reader] == 0) order.push_back(reader);
    }
  }
  if (static_cast<int>(order.size()) != count) throw std::invalid_argument("arcs form a circle");
  const int last = count == 0 ? 0 : *std::max_element(column.begin(), column.end());
  for (auto node = order.rbegin(); node != order.rend(); ++node) {
    if (readers[*node].empty()) {
      if (!operands[*node].empty()) column[*node] = last;
      continue;
    }
    int latest = last;
    for (int reader : readers[*node]) latest = std::min(latest, column[reader] - 1);
    if (!operands[*node].empty() && readers[*node].size() > operands[*node].size()) {
      column[*node] = latest;
    }
  }
  return column;
}

// The graph with a stop in every column that an arc passes.
class Columns {
 public:
  Columns(const std::vector<Size>& nodes, const std::vector<Arc>& arcs,
          const LayoutOptions& options)
      : sizes_(nodes), options_(options), column_(columns_of(size_of(nodes), arcs)) {
    left_.resize(nodes.size());
    right_.resize(nodes.size());
    members_.resize(nodes.empty() ? 0 : *std::max_element(column_.begin(), column_.end()) + 1);
    for (const Arc& arc : arcs) ways_.push_back(way(arc));
    fill_members(size_of(nodes));
  }

  Layout run() {
    order();
    place();
    return layout();
  }

 private:
  static int size_of(const std::vector<Size>& nodes) { return static_cast<int>(nodes.size()); }

  // The stops of an arc, its ends included.
  std::vector<int> way(const Arc& arc) {
    std::vector<int> stops = {arc.from};
    for (int column = column_[arc.from] + 1; column < column_[arc.to]; ++column) {
      const auto [stop, is_new] = stop_of_.try_emplace({arc.from, column}, size_of(sizes_));
      if (is_new) {
        sizes_.push_back({0, kPassingHeight});
        column_.push_back(column);
        left_.emplace_back();
        right_.emplace_back();
        connect(stops.back(), stop->second);
      }
      stops.push_back(stop->second);
    }
    connect(stops.back(), arc.to);
    stops.push_back(arc.to);
    return stops;
  }

  void connect(int from, int to) {
    right_[from].push_back(to);
    left_[to].push_back(from);
  }

  // First order: depth first from the first column, so that what belongs together starts together.
  void fill_members(int node_count) {
    std::vector<bool> seen(sizes_.size());
    const auto visit = [&](const auto& self, int stop) -> void {
      if (seen[stop]) return;
      seen[stop] = true;
      members_[column_[stop]].push_back(stop);
      for (int next : right_[stop]) self(self, next);
    };
    for (int node = 0; node < node_count; ++node) {
      if (left_[node].empty()) visit(visit, node);
    }
    place_in_column_.resize(sizes_.size());
    number_members();
  }

  void number_members() {
    for (const auto& members : members_) {
      for (std::size_t i = 0; i < members.size(); ++i) {
        place_in_column_[members[i]] = static_cast<int>(i);
      }
    }
  }

  void order() {
    auto best = members_;
    long fewest = crossings();
    for (int sweep = 0; sweep < kOrderSweeps && fewest > 0; ++sweep) {
      const bool rightwards = sweep % 2 == 0;
      for (std::size_t i = 1; i < members_.size(); ++i) {
        const std::size_t column = rightwards ? i : members_.size() - 1 - i;
        sort_by_neighbours(members_[column], rightwards ? left_ : right_);
      }
      const long found = crossings();
      if (found < fewest) {
        fewest = found;
        best = members_;
      }
    }
    members_ = best;
    number_members();
  }

  void sort_by_neighbours(std::vector<int>& members, const std::vector<std::vector<int>>& of) {
    std::map<int, double> mean;
    for (int stop : members) {
      double sum = 0;
      for (int neighbour : of[stop]) sum += place_in_column_[neighbour];
      mean[stop] = of[stop].empty() ? place_in_column_[stop] : sum / of[stop].size();
    }
    std::stable_sort(members.begin(), members.end(),
                     [&](int a, int b) { return mean[a] < mean[b]; });
    for (std::size_t i = 0; i < members.size(); ++i) {
      place_in_column_[members[i]] = static_cast<int>(i);
    }
  }

  // Pairs of lines that cross between neighbouring columns: inversions, counted with a Fenwick
  // tree.
  long crossings() const {
    long total = 0;
    for (std::size_t column = 0; column + 1 < members_.size(); ++column) {
      std::vector<int> ends;
      for (int stop : members_[column]) {
        std::vector<int> targets;
        for (int next : right_[stop]) targets.push_back(place_in_column_[next]);
        std::sort(targets.begin(), targets.end());
        ends.insert(ends.end(), targets.begin(), targets.end());
      }
      std::vector<int> tree(members_[column + 1].size() + 1);
      long seen = 0;
      for (int end : ends) {
        long not_above = 0;
        for (int i = end + 1; i > 0; i -= i & -i) not_above += tree[i];
        total += seen++ - not_above;
        for (int i = end + 1; i < static_cast<int>(tree.size()); i += i & -i) ++tree[i];
      }
    }
    return total;
  }

  void place() {
    y_.resize(sizes_.size());
    for (const auto& members : members_) {
      double below = 0;
      for (int stop : members) {
        y_[stop] = below + sizes_[stop].height / 2;
        below += sizes_[stop].height + options_.row_gap;
      }
    }
    for (int sweep = 0; sweep < kPlaceSweeps; ++sweep) {
      for (std::size_t i = 0; i < members_.size(); ++i) {
        const std::size_t column = sweep % 2 == 0 ? i : members_.size() - 1 - i;
        place_column(members_[column]);
      }
    }
  }

  // Every stop as near to the middle of its neighbours on both sides as the others let it.
  void place_column(const std::vector<int>& members) {
    std::vector<double> wanted, apart;
    for (std::size_t i = 0; i < members.size(); ++i) {
      const int stop = members[i];
      wanted.push_back((mean_y(left_[stop], stop) + mean_y(right_[stop], stop)) / 2);
      if (i > 0) {
        apart.push_back((sizes_[members[i - 1]].height + sizes_[stop].height) / 2 +
                        options_.row_gap);
      }
    }
    const std::vector<double> nearest = nearest_positions(wanted, apart);
    for (std::size_t i = 0; i < members.size(); ++i) y_[members[i]] = nearest[i];
  }

  double mean_y(const std::vector<int>& neighbours, int stop) const {
    if (neighbours.empty()) return y_[stop];
    double sum = 0;
    for (int neighbour : neighbours) sum += y_[neighbour];
    return sum / neighbours.size();
  }

  Layout layout() const {
    Layout result;
    double top = 0, bottom = 0, x = 0;
    std::vector<double> column_left, column_right;
    for (const auto& members : members_) {
      double width = 0;
      for (int stop : members) {
        width = std::max(width, sizes_[stop].width);
        top = std::min(top, y_[stop] - sizes_[stop].height / 2);
        bottom = std::max(bottom, y_[stop] + sizes_[stop].height / 2);
      }
      column_left.push_back(x);
      column_right.push_back(x + width);
      x += width + options_.column_gap;
    }
    for (const auto& way : ways_) {
      std::vector<Point>& route = result.routes.emplace_back();
      for (std::size_t i = 0; i < way.size(); ++i) {
        const double y = y_[way[i]] - top;
        if (i > 0) route.push_back({column_left[column_[way[i]]], y});
        if (i + 1 < way.size()) route.push_back({column_right[column_[way[i]]], y});
      }
    }
    const auto centre = [&](int stop) {
      const int column = column_[stop];
      return Point{(column_left[column] + column_right[column]) / 2, y_[stop] - top};
    };
    const std::size_t node_count = sizes_.size() - stop_of_.size();
    for (std::size_t node = 0; node < node_count; ++node) {
      result.centres.push_back(centre(static_cast<int>(node)));
      result.columns.push_back(column_[node]);
    }
    result.size = {std::max(0.0, x - options_.column_gap), bottom - top};
    return result;
  }

  std::vector<Size> sizes_;
  const LayoutOptions options_;
  std::vector<int> column_;
  std::vector<std::vector<int>> left_, right_, members_, ways_;
  std::map<std::pair<int, int>, int> stop_of_;  // by the arc's origin and the column
  std::vector<int> place_in_column_;
  std::vector<double> y_;
};

}  // namespace

Layout lay_out(const std::vector<Size>& nodes, const std::vector<Arc>& arcs,
               const LayoutOptions& options) {
  for (const Arc& arc : arcs) {
    const int count = static_cast<int>(nodes.size());
    if (std::min(arc.from, arc.to) < 0 || std::max(arc.from, arc.to) >= count) {
      throw std::invalid_argument("an arc of no node");
    }
  }
  return Columns(nodes, arcs, options).run();
}

// Less the room that they need, the positions may not fall: isotonic regression, by pooling those
// that would.
std::vector<double> nearest_positions(const std::vector<double>& wanted,
                                      const std::vector<double>& apart) {
  struct Pool {
    double sum;
    int count;
    double mean() const { return sum / count; }
  };
  std::vector<Pool> pools;
  double room = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (i > 0) room += apart[i - 1];
    pools.push_back({wanted[i] - room, 1});
    while (pools.size() > 1 && pools[pools.size() - 2].mean() >= pools.back().mean()) {
      const Pool last = pools.back();
      pools.pop_back();
      pools.back() = {pools.back().sum + last.sum, pools.back().count + last.count};
    }
  }
  std::vector<double> positions;
  room = 0;
  for (const Pool& pool : pools) {
    for (int i = 0; i < pool.count; ++i) {
      if (!positions.empty()) room += apart[positions.size() - 1];
      positions.push_back(pool.mean() + room);
    }
  }
  return positions;
}

}  // namespace pages
