// Calls of a kernel by way of its data flow, interpreted: what every compiled form of it computes.
#pragma once

#include <cmath>
#include <map>

#include "gen/interpret.h"
#include "generate/manifest.h"
#include "tests/harness/subject.h"

class GraphRuns {
 public:
  explicit GraphRuns(const gen::Kernel& kernel) : kernel_(kernel), graph_(kernel.graph()) {}

  harness::Shape shape() const {
    return {{kernel_.name, kernel_.is_single() ? 4 : 8, kernel_.source_elements,
             kernel_.destination_elements}};
  }

  // The destination.
  std::vector<double> run(const std::vector<double>& source, zulgScaleFlag flag) const {
    const double n = kernel_.length();
    const bool by_n =
        (flag == ZULG_SCALE_FWD_BY_N && kernel_.direction != gen::Direction::kInverse) ||
        (flag == ZULG_SCALE_INV_BY_N && kernel_.direction != gen::Direction::kForward);
    const double factor = flag == ZULG_SCALE_BY_SQRT_N ? 1.0 / std::sqrt(n) : by_n ? 1.0 / n : 1.0;
    return gen::interpret(graph_, source,
                          kernel_.is_single() ? static_cast<float>(factor) : factor);
  }

 private:
  gen::Kernel kernel_;
  gen::Graph graph_;
};

// Of the kernel with this name.
inline GraphRuns runs_of(const std::string& name) {
  static const std::map<std::string, gen::Kernel> kernels = [] {
    std::map<std::string, gen::Kernel> result;
    for (const gen::Kernel& kernel : generate::all_kernels()) result.emplace(kernel.name, kernel);
    return result;
  }();
  return GraphRuns(kernels.at(name));
}
