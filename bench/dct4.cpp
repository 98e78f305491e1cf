// Times the DCT-IV beside FFTW's REDFT11 held to SSE2, where FFTW is there, and its planning.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "bench/clock.h"
#include "zulgen.h"

#ifdef ZULGEN_BENCH_FFTW
#include <fftw3.h>
// The static library asks these whether it may use AVX.
extern "C" int fftwf_have_simd_avx(void) { return 0; }
extern "C" int fftw_have_simd_avx(void) { return 0; }
#endif

namespace {

constexpr const char* kUsage =
    "usage: zulgen-bench-dct4 [--type 32f|64f] [--shortest N] [--longest N] [--plans N]\n"
    "                         [--rounds N] [--csv FILE]\n"
    "  --plans N   FFTW plans to take the best of (default 3); 0 times our transform alone\n";

struct Options {
  std::string type;
  int shortest = 2, longest = 131072;
  int plans = 3;
  int rounds = 200;
  std::string csv;
};

template <class Sample>
struct Ours;
template <>
struct Ours<float> {
  static constexpr const char* kName = "32f";
  using Spec = zulgDCT4Spec_32f;
  static constexpr auto get_size = zulgDCT4GetSize_32f;
  static constexpr auto init = zulgDCT4Init_32f;
  static constexpr auto run = zulgDCT4_32f;
};
template <>
struct Ours<double> {
  static constexpr const char* kName = "64f";
  using Spec = zulgDCT4Spec_64f;
  static constexpr auto get_size = zulgDCT4GetSize_64f;
  static constexpr auto init = zulgDCT4Init_64f;
  static constexpr auto run = zulgDCT4_64f;
};

// An array on a cache line of its own.
template <class T>
struct Array {
  explicit Array(std::size_t count)
      : data(static_cast<T*>(std::aligned_alloc(64, (count * sizeof(T) + 63) / 64 * 64))) {}
  ~Array() { std::free(data); }
  Array(const Array&) = delete;
  T* const data;
};

#ifdef ZULGEN_BENCH_FFTW
// Plans made without wisdom of one another: the planner's own measurements are noisy, so the best
// of several is the fair peer.
std::vector<bench::Contender> peers(int n, int count, float* source, float* destination) {
  std::vector<bench::Contender> result;
  for (int i = 0; i < count; ++i) {
    const fftwf_plan plan = fftwf_plan_r2r_1d(n, source, destination, FFTW_REDFT11, FFTW_PATIENT);
    fftwf_forget_wisdom();
    result.push_back([plan](int calls) {
      for (int call = 0; call < calls; ++call) fftwf_execute(plan);
    });
  }
  return result;
}
std::vector<bench::Contender> peers(int n, int count, double* source, double* destination) {
  std::vector<bench::Contender> result;
  for (int i = 0; i < count; ++i) {
    const fftw_plan plan = fftw_plan_r2r_1d(n, source, destination, FFTW_REDFT11, FFTW_PATIENT);
    fftw_forget_wisdom();
    result.push_back([plan](int calls) {
      for (int call = 0; call < calls; ++call) fftw_execute(plan);
    });
  }
  return result;
}
#else
template <class Sample>
std::vector<bench::Contender> peers(int, int, Sample*, Sample*) {
  return {};
}
#endif

// Cycles a call. A call of a long transform outlasts quiet times of the machine, so that there may
// be no cluster of equal samples: the lower quartile of the clean ones has to do then.
std::vector<double> measure_cycles(const bench::Clock& clock,
                                   const std::vector<bench::Contender>& contenders, int rounds) {
  std::vector<double> result = cycles_per_call(clock, contenders, rounds);
  for (std::size_t i = 0; i < contenders.size(); ++i) {
    if (!std::isnan(result[i])) continue;
    std::vector<double> clean;
    for (int round = 0; round < rounds; ++round) {
      const double cycles = clock.sample([&] { contenders[i](1); });
      if (cycles > 0) clean.push_back(cycles);
    }
    std::sort(clean.begin(), clean.end());
    if (clean.size() >= 8) result[i] = clean[clean.size() / 4];
  }
  return result;
}

struct Figures {
  double ours, planning, peer;
};

template <class Sample>
Figures measure(const bench::Clock& clock, int n, const Options& options) {
  int size = 0;
  Ours<Sample>::get_size(n, &size);
  const Array<unsigned char> block(size);
  const Array<Sample> source(n), destination(n);
  typename Ours<Sample>::Spec* spec = nullptr;
  std::vector<bench::Contender> contenders = peers(n, options.plans, source.data, destination.data);
  contenders.push_back([&](int calls) {
    for (int call = 0; call < calls; ++call) {
      Ours<Sample>::run(source.data, destination.data, spec);
    }
  });
  std::mt19937 random(1);
  std::uniform_real_distribution<Sample> uniform(-1, 1);
  for (int i = 0; i < n; ++i) source.data[i] = uniform(random);

  const std::vector<double> planning = measure_cycles(clock, {[&](int calls) {
                                                        for (int call = 0; call < calls; ++call)
                                                          Ours<Sample>::init(&spec, n, block.data);
                                                      }},
                                                      options.rounds);
  const std::vector<double> cycles = measure_cycles(clock, contenders, options.rounds);
  double peer = std::numeric_limits<double>::quiet_NaN();
  for (std::size_t i = 0; i + 1 < cycles.size(); ++i) peer = std::fmin(peer, cycles[i]);
  return {cycles.back(), planning[0], peer};
}

struct Summary {
  double log_sum = 0, lowest = std::numeric_limits<double>::infinity();
  int count = 0;
};

template <class Sample>
void run(const bench::Clock& clock, const Options& options, std::FILE* csv, Summary& summary) {
  if (!options.type.empty() && options.type != Ours<Sample>::kName) return;
  for (int n = options.shortest; n <= options.longest; n *= 2) {
    const Figures f = measure<Sample>(clock, n, options);
    const double ratio = f.peer / f.ours;
    std::printf("%4s %8d %12.1f %9.2f %14.1f %7.2f %14.0f %8.1f\n", Ours<Sample>::kName, n, f.ours,
                f.ours / n, f.peer, ratio, f.planning, f.planning / f.ours);
    std::fflush(stdout);
    if (csv) {
      std::fprintf(csv, "%s,%d,%.1f,%.1f,%.3f,%.0f\n", Ours<Sample>::kName, n, f.ours, f.peer,
                   ratio, f.planning);
      std::fflush(csv);
    }
    if (std::isnan(ratio)) continue;
    summary.log_sum += std::log(ratio);
    summary.lowest = std::min(summary.lowest, ratio);
    ++summary.count;
  }
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; i += 2) {
    const std::string option = argv[i];
    const char* value = i + 1 < argc ? argv[i + 1] : nullptr;
    if (value != nullptr && option == "--type") {
      options.type = value;
    } else if (value != nullptr && option == "--shortest") {
      options.shortest = std::max(2, std::atoi(value));
    } else if (value != nullptr && option == "--longest") {
      options.longest = std::min(1 << 24, std::atoi(value));
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
  std::FILE* csv = options.csv.empty() ? nullptr : std::fopen(options.csv.c_str(), "w");
  if (!options.csv.empty() && csv == nullptr) {
    std::fprintf(stderr, "zulgen-bench-dct4: can't write %s\n", options.csv.c_str());
    return 1;
  }
  if (csv) std::fprintf(csv, "type,length,cycles,fftw_sse2,ratio,planning\n");
  std::printf("core cycles a call; ratio: FFTW's over ours\n");
  std::printf("%4s %8s %12s %9s %14s %7s %14s %8s\n", "type", "length", "cycles", "a sample",
              "FFTW SSE2", "ratio", "planning", "in calls");
  const bench::Clock clock;
  Summary summary;
  run<float>(clock, options, csv, summary);
  run<double>(clock, options, csv, summary);
  if (summary.count > 0) {
    std::printf("ratio over %d lengths: geometric mean %.3f, lowest %.3f\n", summary.count,
                std::exp(summary.log_sum / summary.count), summary.lowest);
  }
  if (csv) std::fclose(csv);
  return 0;
}
