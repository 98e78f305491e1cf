// How generated bodies reach memory: by accessors, which bring vector i and take it away.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/kernel.h"
#include "wide.h"  // the target's

namespace zulgen {

// What a vector consists of, and how many of these.
template <class V>
using SampleOf = std::remove_reference_t<decltype(std::declval<V&>()[0])>;
template <class V>
inline constexpr int kLanes = sizeof(V) / sizeof(SampleOf<V>);

// The widest vectors that a target has of what V consists of.
template <class V>
using Wide = std::conditional_t<std::is_same_v<SampleOf<V>, float>, WideF, WideD>;

// One vector. Where there are wider ones than those that `Access` knows, any address will do.
template <class V, class Access>
ZULGEN_BODY V load_by(const SampleOf<V>* p) {
  if constexpr (kAnyAddress) {
    return load<V>(p);
  } else {
    return Access::load(p);
  }
}
template <class V, class Access>
ZULGEN_BODY void store_by(SampleOf<V>* p, V v) {
  if constexpr (kAnyAddress) {
    store<V>(p, v);
  } else {
    Access::store(p, v);
  }
}

// Vectors to read, one a row.
template <class V, class Access = Aligned>
struct SourceRows {
  const SampleOf<V>* first;
  int stride;
  ZULGEN_BODY V load(int row) const { return load_by<V, Access>(first + row * stride); }
};

// Vectors to write, one a row.
template <class V, class Access = Aligned>
struct Rows {
  SampleOf<V>* first;
  int stride;
  ZULGEN_BODY void store(int row, V v) const { store_by<V, Access>(first + row * stride, v); }
};

}  // namespace zulgen
