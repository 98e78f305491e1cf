// The loops of the long orders, around bodies that are generated. Everything here is inlined into
// the kernel.
#pragma once

#include "frame/vector.h"
#include "wht/plans.h"

#define ZULGEN_INLINE inline __attribute__((always_inline))

namespace zulgen {

// run<Memory>(x, y): stages 0 to order - 1 on 2^order contiguous samples.
template <class T, int order>
struct Row;

// run<Memory>(x, y, s): the stages between `rows` rows, on one vector of each; the result times s
// if `is_scaled`.
template <class T, int rows, bool is_scaled>
struct Column;

inline F4 all(float x) { return allF4(x); }
inline D2 all(double x) { return allD2(x); }

template <class T>
using VectorOf = decltype(Aligned::load(static_cast<const T*>(nullptr)));

// Loads in one way, stores in another.
template <class Load, class Store>
struct Memory {
  template <class T>
  static auto load(const T* p) {
    return Load::load(p);
  }
  template <class T, class Vector>
  static void store(T* p, Vector v) {
    Store::store(p, v);
  }
};

// Where a column body finds its vectors: vector r of the packed ones lies in row r of a matrix.
template <class T, int row_length>
struct Rows {
  T* first;
  constexpr T* operator+(int element) const {
    constexpr int kLanes = 16 / sizeof(T);
    return first + element / kLanes * row_length;
  }
};

template <class T, int order, class Load>
ZULGEN_INLINE void row_pass(const T* x, T* y, int samples) {
  for (int at = 0; at < samples; at += 1 << order) {
    Row<T, order>::template run<Memory<Load, Aligned>>(x + at, y + at);
  }
}

template <class T, int rows, int columns, bool is_scaled, class Store>
ZULGEN_INLINE void column_pass(const T* x, T* y, VectorOf<T> s) {
  for (int at = 0; at < columns; at += 16 / static_cast<int>(sizeof(T))) {
    Column<T, rows, is_scaled>::template run<Memory<Aligned, Store>>(Rows<const T, columns>{x + at},
                                                                     Rows<T, columns>{y + at}, s);
  }
}

// A transform by its plan. `Access` is how source and destination are reached; the work buffer is
// aligned always. The source is read by the row passes alone and the destination written by the
// last pass alone, so the two may be one array.
template <class T, int order, class Access>
ZULGEN_INLINE void run_passes(const T* source, T* destination, VectorOf<T> s, T* work) {
  constexpr wht::Plan plan = wht::plan_of<T>(order);
  if constexpr (plan.segment_rows == 0) {
    row_pass<T, plan.row_order, Access>(source, work, plan.length());
  } else {
    T* const scratch = work + plan.length();
    for (int at = 0; at < plan.length(); at += plan.segment()) {
      row_pass<T, plan.row_order, Access>(source + at, scratch, plan.segment());
      column_pass<T, plan.segment_rows, plan.block(), false, Aligned>(scratch, work + at, s);
    }
  }
  column_pass<T, plan.rows, plan.columns(), true, Access>(work, destination, s);
}

}  // namespace zulgen
