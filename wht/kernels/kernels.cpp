#include "wht/kernels/kernels.h"

namespace wht {
namespace {

using gen::Kernel;
using gen::Precision;

// The order of the statements that measured fastest, by the order of the transform.
constexpr const char* kOrders32f[] = {"",       "bisect 0", "bisect 5", "live 1",
                                      "live 1", "bisect 8", "bisect 7", "bisect 19"};
constexpr const char* kOrders64f[] = {"",         "bisect 0", "bisect 5", "bisect 9",
                                      "bisect 9", "bisect 5", "bisect 0", "bisect 12"};

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
  const std::string suffix = single ? "_32f" : "_64f";
  Kernel kernel;
  kernel.name = "zulgWHT_" + std::to_string(order) + suffix;
  kernel.family = "wht" + suffix;
  kernel.length = 1 << order;
  kernel.precision = precision;
  kernel.scale_rule = gen::ScaleRule::kBoth;
  kernel.source_type = kernel.destination_type = "zulg" + suffix.substr(1);
  kernel.source_elements = kernel.destination_elements = kernel.length;
  kernel.bodies = bodies(precision, order);
  kernel.has_work_argument = true;
  kernel.loads_halves = true;
  kernel.is_generated = order <= kLastShortOrder;
  if (kernel.is_generated) {
    kernel.recipe = "stages 0 to " + std::to_string(order - 1);
    kernel.order = gen::parse_order((single ? kOrders32f : kOrders64f)[order]);
  } else {
    kernel.recipe = recipe(single ? plan_of<float>(order) : plan_of<double>(order));
  }
  kernel.graph = [precision, order] { return kernel_graph(precision, order); };
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
