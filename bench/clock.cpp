#include "bench/clock.h"

#include <x86intrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace bench {
namespace {

constexpr int kChainCycles = 1200;
constexpr double kSampleCycles = 30000;
constexpr double kClockTolerance = 0.02;   // between the two chains around a sample
constexpr double kCanaryTolerance = 0.05;  // over the quiet core
// A kernel can run at several speeds, by where its code happens to sit in the core's caches; every
// sample has one of them. Sorted samples form a cluster as long as neighbours are this close.
constexpr double kClusterGap = 0.01;
constexpr int kSmallestCluster = 31;
constexpr double kAgreement = 0.03;  // of two passes
constexpr int kMostPasses = 12;

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

// Independent vector additions, as many at a time as two ports with a latency of three can do, each
// with two instructions beside it that take nothing but their place.
void ports() {
  __m128 a = _mm_setzero_ps(), b = a, c = a, d = a, e = a, f = a;
  for (int i = 0; i < 100; ++i) {
    asm volatile(
        ".macro add x\n addps \\x, \\x\n nopl (%%eax)\n nopl (%%eax)\n .endm\n"
        "add %0\n add %1\n add %2\n add %3\n add %4\n add %5\n"
        "add %0\n add %1\n add %2\n add %3\n add %4\n add %5\n"
        ".purgem add"
        : "+x"(a), "+x"(b), "+x"(c), "+x"(d), "+x"(e), "+x"(f));
  }
}

// Two loads and a store at a time.
void memory() {
  alignas(64) static char block[512];
  for (int i = 0; i < 40; ++i) {
    asm volatile(
        ".macro move at\n movaps \\at(%0), %%xmm0\n movaps \\at + 16(%0), %%xmm1\n"
        " movaps %%xmm0, \\at + 32(%0)\n .endm\n"
        "move 0\n move 48\n move 96\n move 144\n move 192\n move 240\n move 288\n move 336\n"
        ".purgem move"
        :
        : "r"(block)
        : "xmm0", "xmm1", "memory");
  }
}

double quantile(std::vector<double> values, double part) {
  const auto at = values.begin() + static_cast<long>(part * (values.size() - 1));
  std::nth_element(values.begin(), at, values.end());
  return *at;
}

// The median of the lowest cluster that is large enough.
std::optional<double> lowest_cluster_median(std::vector<double> samples) {
  std::sort(samples.begin(), samples.end());
  for (std::size_t begin = 0, end = 0; begin < samples.size(); begin = end) {
    for (end = begin + 1; end < samples.size(); ++end) {
      if (samples[end] > samples[end - 1] * (1 + kClusterGap)) break;
    }
    if (end - begin >= kSmallestCluster) return samples[(begin + end) / 2];
  }
  return std::nullopt;
}

// The number of calls that make a sample.
int calls_in_sample(const Clock& clock, const Contender& contender) {
  double fastest = kSampleCycles;
  for (int i = 0; i < 20; ++i) {
    const auto cycles = clock.sample([&] { contender(10); });
    if (cycles) fastest = std::min(fastest, *cycles / 10);
  }
  return std::max(1, static_cast<int>(kSampleCycles / fastest));
}

// The lower of two figures that agree, if the two lowest do.
std::optional<double> agreed(std::vector<double> figures) {
  if (figures.size() < 2) return std::nullopt;
  std::sort(figures.begin(), figures.end());
  if (figures[1] > figures[0] * (1 + kAgreement)) return std::nullopt;
  return figures[0];
}

}  // namespace

Clock::Canaries Clock::canaries() { return {ticks(chain), ticks(ports), ticks(memory)}; }

Clock::Clock() {
  std::vector<double> empty, ports, memory;
  for (int i = 0; i < 2000; ++i) {
    empty.push_back(ticks([] {}));
    const Canaries quiet = canaries();
    ports.push_back(quiet.ports / quiet.chain);
    memory.push_back(quiet.memory / quiet.chain);
  }
  empty_ticks_ = quantile(empty, 0.5);
  quiet_ports_ = quantile(ports, 0.1);
  quiet_memory_ = quantile(memory, 0.1);
}

std::optional<double> Clock::sample(const std::function<void()>& work) const {
  const Canaries before = canaries();
  const double taken = ticks(work);
  const Canaries after = canaries();
  if (std::abs(before.chain - after.chain) > kClockTolerance * before.chain) return std::nullopt;
  for (const Canaries& canary : {before, after}) {
    const double limit = (1 + kCanaryTolerance) * canary.chain;
    if (canary.ports > quiet_ports_ * limit) return std::nullopt;
    if (canary.memory > quiet_memory_ * limit) return std::nullopt;
  }
  const double ticks_per_cycle = ((before.chain + after.chain) / 2 - empty_ticks_) / kChainCycles;
  return (taken - empty_ticks_) / ticks_per_cycle;
}

std::vector<std::optional<double>> cycles_per_call(const Clock& clock,
                                                   const std::vector<Contender>& contenders,
                                                   int rounds) {
  const std::size_t count = contenders.size();
  std::vector<int> calls;
  for (const Contender& contender : contenders) calls.push_back(calls_in_sample(clock, contender));
  std::vector<std::vector<double>> figures(count);
  std::vector<std::optional<double>> result(count);
  for (int pass = 0; pass < kMostPasses; ++pass) {
    std::vector<std::vector<double>> samples(count);
    for (int round = 0; round < rounds; ++round) {
      for (std::size_t i = 0; i < count; ++i) {
        if (result[i]) continue;
        const auto cycles = clock.sample([&] { contenders[i](calls[i]); });
        if (cycles) samples[i].push_back(*cycles / calls[i]);
      }
    }
    for (std::size_t i = 0; i < count; ++i) {
      const auto figure = lowest_cluster_median(samples[i]);
      if (figure) figures[i].push_back(*figure);
      if (!result[i]) result[i] = agreed(figures[i]);
    }
  }
  return result;
}

}  // namespace bench
