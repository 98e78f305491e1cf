// Prints what tests/digests.txt holds: a digest of what every kernel is to compute, by its data
// flow.
#include <cstdio>

#include "tests/graph_runs.h"
#include "tests/harness/digest.h"

int main() {
  for (const gen::Kernel& kernel : generate::all_kernels()) {
    const GraphRuns graph(kernel);
    const auto run = [&](const std::vector<double>& input, zulgScaleFlag flag) {
      return graph.run(input, flag);
    };
    std::printf("%s %s\n", kernel.name.c_str(), digest_of(graph.shape(), run).c_str());
  }
}
