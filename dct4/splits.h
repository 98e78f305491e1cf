// How sizes are split.
#pragma once

#include "zulgen/types.h"

namespace zulgen {

// The size of the split of 2 n, or ZULG_ERR_SIZE with `*result` as it was. A size that doesn't
// divide n leaves the smaller ones to be tried.
static inline int divisorsIntNonTriv(int* result, int n) {
  struct Row {
    int least, divisor;
  };
  static constexpr Row kRows[] = {{512, 32}, {128, 16}, {32, 8}, {16, 4}, {4, 2}};
  for (const Row& row : kRows) {
    if (n >= row.least && n % row.divisor == 0) {
      *result = row.divisor;
      return ZULG_OK;
    }
  }
  return ZULG_ERR_SIZE;
}

// 1 for `first`, 2 for twice that, and so on up to `count`; `other` for every other size.
constexpr int rule_of_size(int size, int first, int count, int other) {
  for (int rule = 1; rule <= count; ++rule, first *= 2) {
    if (size == first) return rule;
  }
  return other;
}

}  // namespace zulgen
