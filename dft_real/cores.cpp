#include "dft_real/dft_real.h"
#include "networks/mirror.h"

namespace dft_real {

using gen::Expr;
using networks::Diagonal;
using networks::RealDft;
using networks::RealStyle;

namespace {

// Behind all mirroring, turns by 45 degrees add first and multiply then.
RealStyle style(bool is_mirrored) {
  RealStyle style;
  style.sum_order = networks::SumOrder::kFirstSampleLast;
  style.complex_as_a_whole = true;
  style.diagonal = is_mirrored ? Diagonal::kProductsFirst : Diagonal::kSumsFirst;
  style.mirrored_diagonal = is_mirrored ? Diagonal::kSumsFirst : Diagonal::kProductsFirst;
  return style;
}

}  // namespace

networks::Bins<Expr> forward_core(const Row& row, const std::vector<Expr>& samples) {
  return RealDft<Expr>(rader(), style(false)).real(networks::parse_tree(row.forward), samples);
}

std::vector<Expr> inverse_core(const Row& row, const std::vector<Expr>& doubled_parts) {
  const int n = row.length;
  const auto network = [&](const std::vector<Expr>& in) {
    const auto bins =
        RealDft<Expr>(rader(), style(true)).real(networks::parse_tree(row.inverse), in);
    return networks::parts_of(bins, [n](int k) { return k == 0 || 2 * k == n; });
  };
  return networks::run_mirrored(n, network, doubled_parts);
}

}  // namespace dft_real
