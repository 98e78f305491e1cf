// The bodies of the long orders' passes.
#include "wht/kernels/kernels.h"

namespace wht {
namespace {

using enum gen::Precision;

enum class Kind { kRow, kColumn };

struct Row {
  Kind kind;
  gen::Precision precision;
  int size;  // log2 of a row's samples; a column's rows
};

// What the plans ask for.
constexpr Row kRows[] = {
    {Kind::kRow, kSingle, 5},     {Kind::kRow, kSingle, 6},     {Kind::kColumn, kSingle, 8},
    {Kind::kColumn, kSingle, 16}, {Kind::kColumn, kSingle, 32}, {Kind::kRow, kDouble, 5},
    {Kind::kRow, kDouble, 7},     {Kind::kColumn, kDouble, 8},  {Kind::kColumn, kDouble, 16},
};

gen::Body describe(const Row& row, int vector_bits) {
  const bool is_row = row.kind == Kind::kRow;
  gen::Body body;
  body.name = gen::specialisation(is_row ? "RowTransform" : "ColumnTransform", row.precision,
                                  lanes_of(row.precision, vector_bits), row.size);
  body.declared_in = "wht/passes.h";
  body.header = "wht_bodies.h";
  body.accessors = {"x"};
  if (is_row) {
    body.recipe = "stages 0 to " + std::to_string(row.size - 1);
    body.source_elements = 1 << row.size;
    body.loads_halves = vector_bits == 128;
  } else {
    body.recipe = "stages between rows";
  }
  body.graph = [=] {
    return (is_row ? row_graph : column_graph)(row.precision, row.size, vector_bits);
  };
  return body;
}

}  // namespace

std::vector<gen::Body> bodies(int vector_bits) {
  std::vector<gen::Body> result;
  for (const Row& row : kRows) result.push_back(describe(row, vector_bits));
  return result;
}

}  // namespace wht
