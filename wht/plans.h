// How the long orders run: a row pass applies the low stages to contiguous blocks, column passes
// apply the high ones between rows. The generator reads these tables for the bodies, the library
// for the loops and the work buffers.
#pragma once

namespace wht {

struct Plan {
  int order;
  // The row pass takes blocks of 2^row_order samples.
  int row_order;
  // If not 0, there are three passes: row pass and column pass, with this many rows, alternate on
  // segments, which pass between them through a scratch block that stays in the nearest cache.
  int segment_rows;
  // Rows of the column pass into the destination.
  int rows;

  constexpr int length() const { return 1 << order; }
  constexpr int block() const { return 1 << row_order; }
  // Samples that a row pass takes before the next pass takes them up.
  constexpr int segment() const { return segment_rows ? segment_rows * block() : length(); }
  constexpr int columns() const { return length() / rows; }
  // The main area holds all samples between the passes, the scratch block behind it one segment.
  constexpr int work_samples() const { return length() + (segment_rows ? segment() : 0); }
};

inline constexpr int kLastOrder = 13;
// Orders up to here are straight-line code and need no work buffer.
inline constexpr int kLastShortOrder = 7;

inline constexpr Plan kPlans32f[] = {
    {8, 5, 0, 8}, {9, 6, 0, 8}, {10, 6, 0, 16}, {11, 6, 0, 32}, {12, 6, 8, 8}, {13, 6, 8, 16},
};
inline constexpr Plan kPlans64f[] = {
    {8, 5, 0, 8}, {9, 5, 0, 16}, {10, 7, 0, 8}, {11, 5, 8, 8}, {12, 5, 8, 16}, {13, 7, 8, 8},
};

template <class T>
constexpr const Plan& plan_of(int order) {
  return (sizeof(T) == sizeof(float) ? kPlans32f : kPlans64f)[order - kLastShortOrder - 1];
}

// Bytes of the work buffer of any order from 1 to 13.
template <class T>
constexpr int work_bytes(int order) {
  if (order <= kLastShortOrder) return 0;
  return plan_of<T>(order).work_samples() * static_cast<int>(sizeof(T));
}

}  // namespace wht
