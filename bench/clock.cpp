#include "bench/clock.h"

#include <x86intrin.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace bench {
namespace {

constexpr int kChainCycles = 4800;  // some processors count time in steps of 25
constexpr double kSampleCycles = 40000;
constexpr double kClockTolerance = 0.02;   // between the two chains around a sample
constexpr double kCanaryTolerance = 0.05;  // over the quiet core
// A kernel can run at several speeds, by where its code happens to sit in the core's caches; every
// sample has one of them. Sorted samples form a cluster as long as neighbours are this close.
constexpr double kClusterGap = 0.01;
constexpr int kSmallestCluster = 31;
constexpr int kPatience = 1000;      // canaries to wait for a quiet one
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

// 1600 dependent multiplications of three cycles each.
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
  for (int i = 0; i < 300; ++i) {
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
  for (int i = 0; i < 150; ++i) {
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
  double fastest = clock.rough_cycles([&] { contender(10); });
  for (int i = 0; i < 20; ++i) {
    fastest = std::min(fastest, clock.rough_cycles([&] { contender(10); }));
  }
  return std::clamp(static_cast<int>(kSampleCycles / (fastest / 10)), 1, 100000);
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
  std::vector<double> empty, chain, ports, memory;
  for (int i = 0; i < 20000; ++i) {
    empty.push_back(ticks([] {}));
    const Canaries canary = canaries();
    chain.push_back(canary.chain);
    ports.push_back(canary.ports);
    memory.push_back(canary.memory);
  }
  empty_ticks_ = quantile(empty, 0.5);
  // However busy the neighbours are, some canaries were alone.
  const double chain_ticks = quantile(chain, 0.3);
  cycles_per_tick_ = kChainCycles / (chain_ticks - empty_ticks_);
  quiet_ports_ = quantile(ports, 0.003) / chain_ticks;
  quiet_memory_ = quantile(memory, 0.003) / chain_ticks;
}

double Clock::rough_cycles(const std::function<void()>& work) const {
  return std::max(1.0, (ticks(work) - empty_ticks_) * cycles_per_tick_);
}

bool Clock::is_quiet(const Canaries& canary) const {
  const double limit = (1 + kCanaryTolerance) * canary.chain;
  return canary.ports <= quiet_ports_ * limit && canary.memory <= quiet_memory_ * limit;
}

std::optional<double> Clock::sample(const std::function<void()>& work) const {
  Canaries before = canaries();
  for (int i = 0; i < kPatience && !is_quiet(before); ++i) before = canaries();
  if (!is_quiet(before)) return std::nullopt;
  const double taken = ticks(work);
  const Canaries after = canaries();
  if (!is_quiet(after)) return std::nullopt;
  if (std::abs(before.chain - after.chain) > kClockTolerance * before.chain) return std::nullopt;
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
    if (std::all_of(result.begin(), result.end(), [](const auto& r) { return r.has_value(); })) {
      break;
    }
  }
  return result;
}

}  // namespace bench
