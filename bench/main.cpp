// Times the kernels of the manifest, beside FFTW where it is there.
#include <dlfcn.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <sstream>
#include <string>

#include "bench/arrays.h"
#include "bench/clock.h"
#include "bench/fftw_peer.h"
#include "gen/cost.h"
#include "gen/manifest.h"

namespace {

constexpr const char* kUsage =
    "usage: zulgen-bench [--filter TEXT[,TEXT...]] [--plans N] [--rounds N] [--csv FILE]\n"
    "  --filter TEXT  kernels whose name holds one of the texts (default: forward ones)\n"
    "  --plans N      FFTW plans to take the best of (default 4); 0 times our kernels alone\n"
    "  --rounds N     samples a contender (default 300)\n"
    "  --csv FILE     the figures as comma-separated values, too\n";

struct Options {
  std::string filter = "Fwd";
  int plans = 4;
  int rounds = 300;
  std::string csv;
};

// Whether the name holds one of the texts between the filter's commas.
bool passes(const std::string& name, const std::string& filter) {
  std::istringstream texts(filter);
  for (std::string text; std::getline(texts, text, ',');) {
    if (name.find(text) != std::string::npos) return true;
  }
  return false;
}

// The least of some figures; NaN if there is none.
double best(const std::vector<double>& cycles, std::size_t first, std::size_t last) {
  double result = std::numeric_limits<double>::quiet_NaN();
  for (std::size_t i = first; i < last; ++i) result = std::fmin(result, cycles[i]);
  return result;
}

struct Figures {
  double ours, bound, sse2, installed;
};

Figures measure(const bench::Clock& clock, const gen::Kernel& kernel, const Options& options,
                bench::FftwPeer* sse2, bench::FftwPeer* installed) {
  static bench::Arrays arrays;
  std::vector<bench::Contender> contenders = {
      bench::calls_of(dlsym(RTLD_DEFAULT, kernel.name.c_str()), arrays)};
  const auto add_plans = [&](bench::FftwPeer* peer) {
    if (peer == nullptr) return;
    for (auto& plan : peer->plans(kernel, arrays.source, arrays.destination, options.plans)) {
      contenders.push_back(std::move(plan));
    }
  };
  add_plans(sse2);
  const std::size_t first_installed = contenders.size();
  add_plans(installed);
  // A plan that destroys its input is given back what it left there, again and again. Only zeros
  // stay what they are; anything else grows to infinities, which cost FFTW's x87 code dearly.
  const bool plans_may_destroy = kernel.name.find("ToR_") != std::string::npos;
  plans_may_destroy ? arrays.clear() : arrays.fill(kernel.precision);
  const std::vector<double> cycles = cycles_per_call(clock, contenders, options.rounds);
  const gen::Graph code = gen::lowered(kernel.graph(), kernel.source_elements, kernel.loads_halves);
  return {cycles[0], gen::port_bound(gen::count_vector_operations(code)),
          best(cycles, 1, first_installed), best(cycles, first_installed, cycles.size())};
}

int run(const Options& options) {
  const bench::Clock clock;
  const std::unique_ptr<bench::FftwPeer> sse2 =
      options.plans > 0 ? bench::FftwPeer::sse2() : nullptr;
  const std::unique_ptr<bench::FftwPeer> installed =
      options.plans > 0 ? bench::FftwPeer::installed() : nullptr;
  if (options.plans > 0 && !sse2) {
    std::puts("built without FFTW: our kernels alone (the README tells how to get it)");
  }
  std::FILE* csv = options.csv.empty() ? nullptr : std::fopen(options.csv.c_str(), "w");
  if (!options.csv.empty() && csv == nullptr) {
    std::fprintf(stderr, "zulgen-bench: can't write %s\n", options.csv.c_str());
    return 1;
  }
  if (csv)
    std::fprintf(
        csv, "kernel,length,cycles,fftw_sse2,ratio,fftw_installed,ratio_installed,port_bound\n");
  std::printf(
      "core cycles a call; bound: what the arithmetic takes two ports; ratio: FFTW's over ours\n");
  std::printf("%-28s %9s %9s %10s %7s %14s %7s\n", "kernel", "cycles", "bound", "FFTW SSE2",
              "ratio", "FFTW installed", "ratio");
  double log_sum = 0, lowest = std::numeric_limits<double>::infinity();
  int count = 0;
  std::string lowest_name;
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    if (!passes(kernel.name, options.filter)) continue;
    const Figures f = measure(clock, kernel, options, sse2.get(), installed.get());
    const double ratio = f.sse2 / f.ours;
    std::printf("%-28s %9.1f %9.1f %10.1f %7.3f %14.1f %7.3f\n", kernel.name.c_str(), f.ours,
                f.bound, f.sse2, ratio, f.installed, f.installed / f.ours);
    std::fflush(stdout);
    if (csv) {
      std::fprintf(csv, "%s,%d,%.1f,%.1f,%.3f,%.1f,%.3f,%.1f\n", kernel.name.c_str(), kernel.length,
                   f.ours, f.sse2, ratio, f.installed, f.installed / f.ours, f.bound);
    }
    if (std::isnan(ratio)) continue;
    log_sum += std::log(ratio);
    ++count;
    if (ratio < lowest) {
      lowest = ratio;
      lowest_name = kernel.name;
    }
  }
  if (count > 0) {
    std::printf("ratio over %d kernels: geometric mean %.3f, lowest %.3f (%s)\n", count,
                std::exp(log_sum / count), lowest, lowest_name.c_str());
  }
  if (csv) std::fclose(csv);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; i += 2) {
    const std::string option = argv[i];
    const char* value = i + 1 < argc ? argv[i + 1] : nullptr;
    if (value != nullptr && option == "--filter") {
      options.filter = value;
    } else if (value != nullptr && option == "--plans") {
      options.plans = std::atoi(value);
    } else if (value != nullptr && option == "--rounds") {
      options.rounds = std::atoi(value);
    } else if (value != nullptr && option == "--csv") {
      options.csv = value;
    } else {
      std::fputs(kUsage, option == "--help" ? stdout : stderr);
      return option == "--help" ? 0 : 2;
    }
  }
  return run(options);
}
