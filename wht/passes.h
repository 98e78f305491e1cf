// The loops of the long orders, around bodies that are generated. Everything here is inlined into
// the kernel.
#pragma once

#include "frame/rows.h"
#include "wht/plans.h"

namespace zulgen {

// run(x, y): stages 0 to order - 1 on the 2^order samples from x on, which may have any alignment;
// y.store(i, v) takes vector i of the results.
template <class V, int order>
struct RowTransform;

// run(x, y): the stages between `rows` rows, on one vector of each: x.load(row), y.store(row, v).
template <class V, int rows>
struct ColumnTransform;

// Rows to write, times a factor.
template <class V, class Access>
struct ScaledRows {
  Rows<V, Access> rows;
  SampleOf<V> factor;
  ZULGEN_BODY void store(int row, V v) const { rows.store(row, factor * v); }
};

// The main area and the scratch block are aligned, and rows of blocks lie side by side there.
template <class V, int order>
ZULGEN_BODY void row_pass(const SampleOf<V>* x, SampleOf<V>* y, int samples) {
  for (int at = 0; at < samples; at += 1 << order) {
    RowTransform<V, order>::run(x + at, Rows<V>{y + at, kLanes<V>});
  }
}

// `destination(at)` takes the results of the columns from `at` on.
template <class V, int rows>
ZULGEN_BODY void column_pass(const SampleOf<V>* x, int columns, const auto& destination) {
  for (int at = 0; at < columns; at += kLanes<V>) {
    ColumnTransform<V, rows>::run(SourceRows<V>{x + at, columns}, destination(at));
  }
}

// A transform by its plan. `Access` is how the destination is reached; the source may have any
// alignment, the work buffer is aligned always. The source is read by the row passes alone and the
// destination written by the last pass alone, so the two may be one array.
template <class V, int order, class Access>
ZULGEN_BODY void run_passes(const SampleOf<V>* source, SampleOf<V>* destination, SampleOf<V> factor,
                            SampleOf<V>* work) {
  constexpr wht::Plan plan = wht::plan_of<SampleOf<V>>(order);
  if constexpr (plan.segment_rows == 0) {
    row_pass<V, plan.row_order>(source, work, plan.length());
  } else {
    SampleOf<V>* const scratch = work + plan.length();
    for (int at = 0; at < plan.length(); at += plan.segment()) {
      row_pass<V, plan.row_order>(source + at, scratch, plan.segment());
      column_pass<V, plan.segment_rows>(scratch, plan.block(), [&](int column) {
        return Rows<V>{work + at + column, plan.block()};
      });
    }
  }
  column_pass<V, plan.rows>(work, plan.columns(), [&](int column) {
    return ScaledRows<V, Access>{{destination + column, plan.columns()}, factor};
  });
}

}  // namespace zulgen
