#include "wht/kernels/kernels.h"

namespace wht {
namespace {

using gen::Kernel;
using gen::Precision;

gen::Bodies bodies(Precision precision, int order) {
  const bool single = precision == Precision::kSingle;
  if (order == 3 && !single) return gen::Bodies::kBothInside;
  return order <= 3 ? gen::Bodies::kOne : gen::Bodies::kTwin;
}

// "rows of 64, columns 8 x 64, columns 16 x 512".
std::string recipe(const Plan& plan) {
  const auto columns = [](int rows, int width) {
    return ", columns " + std::to_string(rows) + " x " + std::to_string(width);
  };
  std::string text = "rows of " + std::to_string(plan.block());
  if (plan.segment_rows) text += columns(plan.segment_rows, plan.block());
  return text + columns(plan.rows, plan.columns());
}

Kernel kernel(Precision precision, int order) {
  const bool single = precision == Precision::kSingle;
  Kernel kernel = gen::kernel_of({gen::Transform::kWalshHadamard, gen::Direction::kSelfInverse,
                                  gen::Layout::kNone, precision, order});
  kernel.bodies = bodies(precision, order);
  kernel.has_work_argument = true;
  kernel.loads_halves = true;
  kernel.is_generated = order <= kLastShortOrder;
  if (kernel.is_generated) {
    kernel.recipe = "stages 0 to " + std::to_string(order - 1);
  } else {
    kernel.recipe = recipe(single ? plan_of<float>(order) : plan_of<double>(order));
  }
  kernel.graph = [=] { return kernel_graph(precision, order, 128); };
  if (!is_scalar(precision, order)) {
    kernel.wide_graph = [=] { return kernel_graph(precision, order, 256); };
  }
  return kernel;
}

}  // namespace

std::vector<Kernel> kernels() {
  std::vector<Kernel> result;
  for (const Precision precision : {Precision::kSingle, Precision::kDouble}) {
    for (int order = 1; order <= kLastOrder; ++order) result.push_back(kernel(precision, order));
  }
  return result;
}

}  // namespace wht
