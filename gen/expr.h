// The value type on which a network runs in order to become a graph: arithmetic on an `Expr`
// appends nodes. It stands for one real value, or for a vector of them that all take part in the
// same operations.
#pragma once

#include "gen/graph.h"

namespace gen {

struct Expr {
  Graph* graph = nullptr;
  Value value;

  Expr operator-() const { return {graph, -value}; }
  friend Expr operator+(const Expr& a, const Expr& b) {
    return {a.graph, a.graph->add(a.value, b.value)};
  }
  friend Expr operator-(const Expr& a, const Expr& b) {
    return {a.graph, a.graph->sub(a.value, b.value)};
  }
  friend Expr operator*(const Number& factor, const Expr& a) {
    return {a.graph, a.graph->mul(factor, a.value)};
  }
  friend Expr operator*(const Expr& a, const Expr& b) {
    return {a.graph, a.graph->product(a.value, b.value)};
  }
};

}  // namespace gen
