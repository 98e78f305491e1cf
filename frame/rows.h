// How generated bodies reach memory: by accessors, which bring vector i and take it away.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/kernel.h"
#include "frame/vector.h"

namespace zulgen {

// What a vector consists of, and how many of these.
template <class V>
using SampleOf = std::remove_reference_t<decltype(std::declval<V&>()[0])>;
template <class V>
inline constexpr int kLanes = sizeof(V) / sizeof(SampleOf<V>);

// Vectors to read, one a row.
template <class V, class Access = Aligned>
struct SourceRows {
  const SampleOf<V>* first;
  int stride;
  ZULGEN_BODY V load(int row) const { return Access::load(first + row * stride); }
};

// Vectors to write, one a row.
template <class V, class Access = Aligned>
struct Rows {
  SampleOf<V>* first;
  int stride;
  ZULGEN_BODY void store(int row, V v) const { Access::store(first + row * stride, v); }
};

}  // namespace zulgen
