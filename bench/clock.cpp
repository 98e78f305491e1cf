#include "bench/clock.h"

#include <x86intrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace bench {
namespace {

constexpr int kChainCycles = 1200;
constexpr double kSampleCycles = 30000;
constexpr double kClockTolerance = 0.02;  // between the two chains around a sample
constexpr double kPortTolerance = 0.05;   // over the quiet core
// A kernel can run at several speeds, by where its code happens to sit in the core's caches; every
// sample has one of them. Sorted samples form a cluster as long as neighbours are this close.
constexpr double kClusterGap = 0.01;
constexpr int kSmallestCluster = 31;

double ticks(const std::function<void()>& work) {
  _mm_lfence();
  const std::uint64_t begin = __rdtsc();
  _mm_lfence();
  work();
  _mm_lfence();
  const std::uint64_t end = __rdtsc();
  return static_cast<double>(end - begin);
}

// 400 dependent multiplications of three cycles each.
void chain() {
  unsigned x = 3;
  for (int i = 0; i < kChainCycles / 30; ++i) {
    asm volatile(
        "imul %0, %0\n imul %0, %0\n imul %0, %0\n imul %0, %0\n imul %0, %0\n"
        "imul %0, %0\n imul %0, %0\n imul %0, %0\n imul %0, %0\n imul %0, %0"
        : "+r"(x));
  }
}

// Independent vector additions, as many at a time as two ports with a latency of three can do.
void ports() {
  __m128 a = _mm_setzero_ps(), b = a, c = a, d = a, e = a, f = a;
  for (int i = 0; i < 100; ++i) {
    asm volatile(
        "addps %0, %0\n addps %1, %1\n addps %2, %2\n addps %3, %3\n addps %4, %4\n addps %5, %5\n"
        "addps %0, %0\n addps %1, %1\n addps %2, %2\n addps %3, %3\n addps %4, %4\n addps %5, %5"
        : "+x"(a), "+x"(b), "+x"(c), "+x"(d), "+x"(e), "+x"(f));
  }
}

double quantile(std::vector<double> values, double part) {
  const auto at = values.begin() + static_cast<long>(part * (values.size() - 1));
  std::nth_element(values.begin(), at, values.end());
  return *at;
}

// The median of the lowest cluster that is large enough; NaN if there is none.
double lowest_cluster_median(std::vector<double> samples) {
  std::sort(samples.begin(), samples.end());
  for (std::size_t begin = 0, end = 0; begin < samples.size(); begin = end) {
    for (end = begin + 1; end < samples.size(); ++end) {
      if (samples[end] > samples[end - 1] * (1 + kClusterGap)) break;
    }
    if (end - begin >= kSmallestCluster) return samples[(begin + end) / 2];
  }
  return std::nan("");
}

}  // namespace

Clock::Clock() {
  std::vector<double> empty, ratios;
  for (int i = 0; i < 2000; ++i) {
    empty.push_back(ticks([] {}));
    ratios.push_back(ticks(ports) / ticks(chain));
  }
  empty_ticks_ = quantile(empty, 0.5);
  quiet_ratio_ = quantile(ratios, 0.1);
}

double Clock::sample(const std::function<void()>& work) const {
  const double chain_before = ticks(chain), ports_before = ticks(ports);
  const double taken = ticks(work);
  const double ports_after = ticks(ports), chain_after = ticks(chain);
  const double limit = quiet_ratio_ * (1 + kPortTolerance);
  if (std::abs(chain_before - chain_after) > kClockTolerance * chain_before) return -1;
  if (ports_before > limit * chain_before || ports_after > limit * chain_after) return -1;
  const double ticks_per_cycle = ((chain_before + chain_after) / 2 - empty_ticks_) / kChainCycles;
  return (taken - empty_ticks_) / ticks_per_cycle;
}

std::vector<double> cycles_per_call(const Clock& clock, const std::vector<Contender>& contenders,
                                    int rounds) {
  std::vector<int> calls;
  for (const Contender& contender : contenders) {
    double fastest = kSampleCycles;
    for (int i = 0; i < 20; ++i) {
      const double cycles = clock.sample([&] { contender(10); }) / 10;
      if (cycles > 0) fastest = std::min(fastest, cycles);
    }
    calls.push_back(std::max(1, static_cast<int>(kSampleCycles / fastest)));
  }
  std::vector<std::vector<double>> samples(contenders.size());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < contenders.size(); ++i) {
      const double cycles = clock.sample([&] { contenders[i](calls[i]); });
      if (cycles > 0) samples[i].push_back(cycles / calls[i]);
    }
  }
  std::vector<double> result;
  for (const std::vector<double>& clean : samples) {
    result.push_back(lowest_cluster_median(clean));
  }
  return result;
}

}  // namespace bench
