// The planner from inside, of the sample type that the build names the source of.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/dct4_model.h"

// Whose names have internal linkage.
#include DCT4_SOURCE

namespace zulgen::DCT4_NAMESPACE {
namespace {

constexpr bool kSingle = L == 4;

// A block for a plan, aligned on 64, with room for a plan that fails.
struct PlanBlock {
  explicit PlanBlock(int n, int least = 8192) {
    int size = least;
    DCT4_ENTRY(GetSize)(n, &size);
    storage.resize(std::max(size, least) + 128);
    data = storage.data() + (64 - reinterpret_cast<uintptr_t>(storage.data()) % 64);
  }
  char* cursor() const { return reinterpret_cast<const Arena*>(data)->cursor; }
  int used() const { return static_cast<int>(cursor() - reinterpret_cast<char*>(data)); }
  std::vector<unsigned char> storage;
  unsigned char* data;
};

env1* plan(const PlanBlock& block, int n) {
  Spec* spec = nullptr;
  EXPECT_EQ(DCT4_ENTRY(Init)(&spec, n, block.data), ZULG_OK) << n;
  return reinterpret_cast<env1*>(spec);
}

template <class Object>
Object* at(const EnvList* list, int index) {
  return static_cast<Object*>(EnvList_get(list, index));
}

std::vector<int> lengths(int last) {
  std::vector<int> result;
  for (int n = 2; n <= last; n *= 2) result.push_back(n);
  return result;
}

std::vector<Sample> random_samples(int n, int seed = 1) {
  return dct4_model::random_samples<Sample>(n, seed);
}

TEST(Arena, IsACounter) {
  EXPECT_EQ(zulgAlignSize32Bytes(0), 0);
  EXPECT_EQ(zulgAlignSize32Bytes(1), 32);
  EXPECT_EQ(zulgAlignSize32Bytes(32), 32);
  EXPECT_EQ(zulgAlignSize32Bytes(33), 64);
  EXPECT_EQ(zulgAlignSize32Bytes(INT32_MAX), INT32_MIN);
  alignas(32) char room[512];
  char* const memory = room + 128;
  Arena arena = {memory};
  char* const first = static_cast<char*>(zulgArenaMalloc(&arena, 12));
  EXPECT_EQ(first, memory);
  EXPECT_EQ(zulgArenaMalloc(&arena, 0), memory + 32);
  EXPECT_EQ(zulgArenaMalloc(&arena, 12), memory + 32);
  zulgArenaFree(&arena, memory, 0);
  EXPECT_EQ(arena.cursor, memory + 64);
  zulgArenaFree(&arena, nullptr, 40);
  EXPECT_EQ(arena.cursor, memory);
}

TEST(Arena, StartsBehindItsCursor) {
  const auto start = [](uintptr_t address) {
    return reinterpret_cast<uintptr_t>(first_cursor(reinterpret_cast<unsigned char*>(address)));
  };
  EXPECT_EQ(start(0x1000), 0x1040u);
  EXPECT_EQ(start(0x1001), 0x1040u);
  EXPECT_EQ(start(0x101f), 0x1040u);
  if (sizeof(void*) != 4) return;
  EXPECT_EQ(start(0xf0001000), 0xf0001040u);
  EXPECT_EQ(start(0xf0001001), 0xf0001060u);
  EXPECT_EQ(start(0xf000101f), 0xf0001060u);
}

int destroyed;
struct Counted {
  void (*__del__)(void*) = [](void*) { ++destroyed; };
  int size = 40;
};

TEST(EnvList, HoldsObjectsInOrder) {
  alignas(32) char room[512];
  char* const memory = room + 128;
  Arena arena = {memory};
  EnvList list;
  EXPECT_EQ(EnvList___init__(&list, &arena), &list);
  EXPECT_EQ(EnvList_get(&list, 0), nullptr);
  Counted a, b;
  EXPECT_EQ(EnvList_add(&list, &a), &a);
  EXPECT_EQ(arena.cursor, memory);
  EXPECT_EQ(EnvList_get(&list, 5), nullptr);
  EXPECT_EQ(EnvList_get(&list, -1), nullptr);
  // An empty place at the end is filled first.
  EnvList_add(&list, nullptr);
  EnvList_add(&list, &b);
  EXPECT_EQ(arena.cursor, memory + zulgAlignSize32Bytes(sizeof(EnvList)));
  EXPECT_EQ(EnvList_get(&list, 0), &a);
  EXPECT_EQ(EnvList_get(&list, 1), &b);

  destroyed = 0;
  EnvList_freeChildren(nullptr);
  list.value = nullptr;
  EnvList_freeChildren(&list);
  EXPECT_EQ(destroyed, 1);
  EXPECT_EQ(arena.cursor, memory + zulgAlignSize32Bytes(sizeof(EnvList)) - 64);
  EnvList* const second = list.next;
  EnvList___del__(&list);
  EXPECT_EQ(list.next, second);
  EXPECT_EQ(arena.cursor, memory - 64);
}

TEST(Rules, SplitAsStated) {
  const auto divisor = [](int n) {
    int result = -1;
    const int code = divisorsIntNonTriv(&result, n);
    EXPECT_EQ(code, result < 0 ? ZULG_ERR_SIZE : ZULG_OK);
    return result;
  };
  const std::vector<std::pair<int, int>> wanted = {
      {512, 32}, {496, 16}, {500, 4},  {36, 4}, {16, 4}, {14, 2},   {4, 2},    {3, -1},
      {2, -1},   {33, -1},  {-64, -1}, {32, 8}, {64, 8}, {128, 16}, {256, 16}, {1 << 30, 32}};
  for (const auto& [n, result] : wanted) EXPECT_EQ(divisor(n), result) << n;
  EXPECT_EQ(env5__chooseRule(64), 6);
  EXPECT_EQ(env9__chooseRule(128), 7);
  EXPECT_EQ(env5__chooseRule(3), 7);
  EXPECT_EQ(env8__chooseRule(64), 0);
  EXPECT_EQ(env8__chooseRule(24), 0);
  EXPECT_EQ(env4__chooseRule(1), 1);
  EXPECT_EQ(env4__chooseRule(64), 0);
  EXPECT_EQ(env1__chooseRule(32), 5);
  EXPECT_EQ(env1__chooseRule(64), 6);
}

bool is_accepted(int n) { return dct4_model::is_accepted<Sample>(n); }

// 0 if there is none.
int size_of(int n) {
  int size = 0;
  const zulgResult result = DCT4_ENTRY(GetSize)(n, &size);
  EXPECT_EQ(result, size == 0 ? ZULG_ERR_SIZE : ZULG_OK) << n;
  return size;
}

TEST(Sizes, AcceptPowersOfTwo) {
  const auto check = [](int n) { ASSERT_EQ(size_of(n) > 0, is_accepted(n)) << n; };
  for (int n = -1000; n <= 300000; ++n) check(n);
  for (int n = 1 << 10; n > 0; n = n > 1 << 29 ? 0 : 2 * n) {
    for (int near : {-2, -1, 0, 1, 2}) {
      check(n + near);
      check(n / 2 * 3 + near);
    }
  }
  check(INT32_MIN);
  check(INT32_MAX);
}

TEST(Sizes, AreThoseOfTheTable) {
  if (sizeof(void*) != 4) GTEST_SKIP() << "sizes are told for pointers of 4 bytes";
  const std::vector<int> single = {224,  224,   224,   224,    224,    1632,   2144,   3168,   5216,
                                   9312, 17504, 52768, 103968, 206112, 410912, 820000, 2164960};
  const std::vector<int> double_ = {224,    224,    224,    224,     224,    2144,
                                    3168,   5216,   9312,   17504,   33888,  101920,
                                    202272, 402720, 804128, 1606432, 4262112};
  const std::vector<int>& wanted = kSingle ? single : double_;
  for (std::size_t i = 0; i < wanted.size(); ++i) EXPECT_EQ(size_of(2 << i), wanted[i]) << (2 << i);
  EXPECT_EQ(size_of(kSingle ? 33 : 9), kSingle ? 1408 : 1280);
  EXPECT_EQ(size_of(kSingle ? 1 << 26 : 1 << 25), kSingle ? 1375733920 : 1358957216);
  EXPECT_EQ(size_of(1 << 30), 536874336);
  const std::vector<std::size_t> objects = {
      sizeof(env1),        sizeof(env2),      sizeof(env3),     sizeof(env4),
      sizeof(env5),        sizeof(env7),      sizeof(env8),     sizeof(env9),
      sizeof(envfCompose), sizeof(envfsplit), sizeof(envlambda)};
  EXPECT_EQ(objects, (std::vector<std::size_t>{44, 64, 60, 64, 60, 64, 72, 68, 36, 28, 24}));
}

// Sizing is above what planning takes by a fixed amount: nodes that lists don't need, once for the
// root and its halves and once for each split. All of it is given back.
TEST(Plan, EndsWhereItsSizeSays) {
  const int node = zulgAlignSize32Bytes(sizeof(EnvList));
  std::vector<int> all = lengths(1 << 18);
  for (int n : {9, 17, 33, 65, 129}) {
    if (is_accepted(n)) all.push_back(n);
  }
  for (int n : all) {
    const PlanBlock block(n, 0);
    env1* const root = plan(block, n);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(root) % 32, 0u);
    const int splits = n < 4096 ? 0 : n < 131072 ? 1 : 2, spare = root->rule == 6 ? 7 : 0;
    EXPECT_EQ(block.used(), size_of(n) - (spare + 5 * splits) * node) << n;
    env1___del__(root);
    zulgArenaFree(root->step.arena, root, sizeof(env1));
    EXPECT_EQ(block.cursor(), first_cursor(block.data)) << n;
  }
}

TEST(Plan, HasTheObjectsOfItsLength) {
  for (int n : lengths(32)) {
    const PlanBlock block(n);
    const env1* root = plan(block, n);
    EXPECT_EQ(2 << (root->rule - 1), n);
    EXPECT_EQ(root->work, nullptr);
    for (const EnvList* list : {root->children, root->stage1, root->stage2}) {
      EXPECT_EQ(list->value, nullptr);
      EXPECT_EQ(list->next, nullptr);
    }
  }
  const PlanBlock block(64);
  const env1* root = plan(block, 64);
  const auto second = at<env2>(root->children, 1);
  const auto first = at<env3>(root->children, 2);
  const auto leaf = at<env4>(second->children, 1);
  const auto columns = at<env5>(first->children, 0);
  const std::vector<int> rules = {root->rule, second->rule, leaf->rule, columns->rule};
  const std::vector<int> numbers = {root->d, second->m, leaf->groups, columns->N};
  EXPECT_EQ(rules, (std::vector{6, 1, 4, 3}));
  EXPECT_EQ(numbers, (std::vector{8, 4, 4 / L, 8}));
  EXPECT_EQ(second->twiddle, at<envfCompose>(root->children, 0));
  EXPECT_EQ(leaf->twiddle, at<envfsplit>(second->children, 0));
  EXPECT_EQ(leaf->twiddle->compose, second->twiddle);
  EXPECT_EQ(EnvList_get(root->stage2, 0), second);
  EXPECT_EQ(EnvList_get(root->stage1, 0), first);
  EXPECT_EQ(EnvList_get(second->steps, 0), leaf);
  EXPECT_EQ(EnvList_get(first->steps, 0), columns);
  EXPECT_EQ(columns->children->value, nullptr);
  // The work buffer comes last.
  EXPECT_EQ(reinterpret_cast<char*>(root->work + 64), block.cursor());
}

TEST(Plan, SplitsWhatIsTooLongForAKernel) {
  const auto columns = [](const env1* root) {
    return at<env5>(at<env3>(root->stage1, 0)->steps, 0);
  };
  const auto numbers = [](const env7* split) {
    const auto sums = at<env8>(split->first, 0);
    const auto parts = at<env9>(split->second, 0);
    EXPECT_EQ(EnvList_get(split->children, 0), sums->lambda);
    return std::vector<int>{split->r,   split->in_stride, split->out_stride, sums->rule,
                            sums->sums, parts->rule,      parts->M,          parts->inner_in};
  };
  const PlanBlock block(4096), long_block(131072);
  EXPECT_EQ(numbers(at<env7>(columns(plan(block, 4096))->steps, 0)),
            (std::vector{8, 64, 32, 3, 8, 4, 16, 512}));
  const auto outer = at<env7>(columns(plan(long_block, 131072))->steps, 0);
  EXPECT_EQ(numbers(outer), (std::vector{32, 64, 32, 5, 64, 7, 128, 2048}));
  EXPECT_EQ(numbers(at<env7>(at<env9>(outer->second, 0)->steps, 0)),
            (std::vector{8, 2048, 1024, 3, 8, 4, 16, 16384}));
}

TEST(Plan, ThatFailsIsTakenDown) {
  for (int n : {-64, 0, 1, 3, 12, 17, 96, 192, 384, 1280, 2047}) {
    if (is_accepted(n)) continue;
    const PlanBlock block(n, 65536);
    Spec* const before = reinterpret_cast<Spec*>(block.data);
    Spec* spec = before;
    EXPECT_EQ(DCT4_ENTRY(Init)(&spec, n, block.data), ZULG_ERR_SIZE) << n;
    EXPECT_EQ(spec, before) << n;
    // It gives back a work buffer that it never came to take.
    if (n > 0) {
      EXPECT_LT(block.cursor(), first_cursor(block.data)) << n;
    }
  }
  // With 3 vectors of 2 values, the second stage stops before it builds anything.
  const PlanBlock block(12);
  Arena* const arena = reinterpret_cast<Arena*>(block.data);
  arena->cursor = first_cursor(block.data);
  env1* const root = env1___init__(new_object<env1>(arena), arena, 12);
  EXPECT_EQ(env1_plan(root), ZULG_ERR_SIZE);
  const auto second = at<env2>(root->stage2, 0);
  EXPECT_EQ(second->rule, 0);
  EXPECT_EQ(second->children->value, nullptr);
  EXPECT_EQ(root->stage1->value, nullptr);
  env1___del__(root);
}

// An env8 by itself, for any r.
struct SkewStep {
  SkewStep(int r, int M) : arena{reinterpret_cast<char*>(memory.data)} {
    lambda = envlambda___init__(new_object<envlambda>(&arena), &arena, r * M, r);
    step = env8___init__(new_object<env8>(&arena), &arena, r, 4096, 32, r * M, lambda);
    EXPECT_EQ(env8_plan(step), ZULG_OK);
  }
  PlanBlock memory{0, 1 << 18};
  Arena arena;
  envlambda* lambda;
  env8* step;
};

TEST(Tables, OfSkewTransformsHaveTheStatedBits) {
  for (int r : {2, 4, 8, 16, 32}) {
    const int M = 16;
    const SkewStep skew(r, M);
    const Sample* table = skew.step->table;
    const auto expect_part = [&](int parts, int size, int whole) {
      for (int kappa = 0; kappa < M / 2; ++kappa) {
        const Sample lambda = (kappa + Sample(0.5)) / M;
        EXPECT_EQ(envlambda_at(skew.lambda, kappa, 0, 0), lambda);
        for (const auto& pair : dct4_model::skew_rotations(lambda, parts, size, whole)) {
          for (int lane = 0; lane < L; ++lane) ASSERT_EQ(*table++, pair.cosine.v);
          for (int lane = 0; lane < L; ++lane) ASSERT_EQ(*table++, pair.sine.v);
        }
      }
    };
    if (r <= 8) {
      expect_part(1, r, r);
    } else if (r == 32 && !kSingle) {
      expect_part(1, 8, 8);
      expect_part(8, 4, 32);
    } else {
      expect_part(r / 4, 4, r);
      expect_part(1, r / 4, r / 4);
    }
    EXPECT_EQ(reinterpret_cast<const char*>(table), skew.arena.cursor);
  }
}

// All kernels on vectors, also those that no length of use reaches, against the definitions.

using Value = std::complex<long double>;
Value unit(long double half_turns) { return std::polar(1.0L, M_PIl * half_turns); }

// Values below 8 after at most 12 operations each.
constexpr double kTolerance = 64 * (kSingle ? 0x1p-24 : 0x1p-53);

void expect_value(Value wanted, Sample re, Sample im, int size) {
  EXPECT_LT(std::abs(wanted - Value(re, im)), kTolerance * std::sqrt(size)) << size;
}

template <int N>
void check_first_stages() {
  // Twice, two columns on, with rows 3 vectors apart.
  constexpr int stride = 20, row = 3 * W;
  const std::vector<Sample> x = random_samples(stride * N);
  alignas(16) Sample z[N * row];
  run_first_stages<WideVector, N>({.forward = x.data(),
                                   .reversed = x.data() + stride - 1,
                                   .in_stride = stride,
                                   .rows = z,
                                   .out_stride = row,
                                   .count = 2,
                                   .in_step = 2,
                                   .out_step = W});
  for (int i = 0; i < 2 * W; ++i) {
    const int column = i % W + i / W * 2;
    for (int q = 0; q < N / 2; ++q) {
      Value sum = 0;
      for (int s = 0; s < N; ++s) {
        const int t = s % 2 == 0 ? s / 2 : -(s + 1) / 2;
        const int at = s / 2 * stride + (s % 2 == 0 ? column : stride - 1 - column);
        sum += static_cast<long double>(x[at]) * unit(t * (2 * q + 1.0L) / N);
      }
      expect_value(sum, z[2 * q * row + i], z[(2 * q + 1) * row + i], N);
    }
  }
}

template <int r>
void check_skew_sums() {
  const int M = 16, row = 2 * W;
  const SkewStep skew(r, M);
  alignas(16) Sample in[r * M * W], out[r * M * row];
  std::ranges::copy(random_samples(r * M * W), in);
  EXPECT_EQ(env8_compute(skew.step, out, row, in), ZULG_OK);
  for (int q = 0; q < M * r / 2; ++q) {
    const bool conjugated = q % M >= M / 2;
    const int kappa = conjugated ? M - 1 - q % M : q % M, a = conjugated ? r - 1 - q / M : q / M;
    for (int lane = 0; lane < W; ++lane) {
      Value sum = 0;
      for (int rho = 0; rho < r; ++rho) {
        const Sample* z = in + (2 * kappa * r + rho) * W + lane;
        sum += Value(z[0], z[r * W]) * unit(2 * rho * ((kappa + 0.5L) / M + a) / r);
      }
      const Sample* y = out + 2 * q * row + lane;
      expect_value(conjugated ? std::conj(sum) : sum, y[0], y[row], r);
    }
  }
}

template <int d>
void check_second_stages() {
  constexpr int groups = 2, m = groups * L, n = 2 * m * d;
  alignas(16) Sample rows[n], pairs[n], y[n];
  std::ranges::copy(random_samples(n), rows);
  std::ranges::copy(random_samples(n, 2), pairs);
  env4 step = {};
  step.rule = env4__chooseRule(d);
  step.table = pairs;
  step.groups = groups;
  step.last = 2 * n - 1;
  EXPECT_EQ(env4_compute(&step, y, rows), ZULG_OK);
  for (int q = 0; q < m; ++q) {
    for (int l = 0; l < d; ++l) {
      Value up = 0, down = 0;  // of which the real parts are the results
      for (int i = 0; i < d; ++i) {
        const int p = i % 2 == 0 ? i / 2 : d - 1 - i / 2;
        const Sample* pair = pairs + 2 * L * (q / L * d + i) + q % L;
        const Value z =
            Value(rows[2 * q * d + p], rows[(2 * q + 1) * d + p]) * Value(pair[0], pair[L]);
        up += z * unit((2 * p + 1.0L) * l / (2 * d));
        down += z * unit(-(2 * p + 1.0L) * (l + 1) / (2 * d));
      }
      EXPECT_NEAR(y[2 * m * l + q], up.real(), kTolerance * std::sqrt(d)) << d;
      EXPECT_NEAR(y[2 * m * (l + 1) - 1 - q], down.real(), kTolerance * std::sqrt(d)) << d;
    }
  }
}

template <int... sizes>
void check_all() {
  (check_first_stages<2 * sizes>(), ...);
  (check_skew_sums < sizes == 1 ? 2 : sizes > (), ...);
  (check_second_stages<sizes>(), ...);
}

TEST(Kernels, EqualTheirDefinitions) { check_all<1, 2, 4, 8, 16, 32>(); }

std::vector<Sample> transformed(const std::vector<Sample>& x) {
  const int n = static_cast<int>(x.size());
  const PlanBlock block(n);
  std::vector<Sample> y(n);
  EXPECT_EQ(DCT4_ENTRY()(x.data(), y.data(), reinterpret_cast<Spec*>(plan(block, n))), ZULG_OK);
  return y;
}

TEST(Transform, HasTheBitsOfItsDefinition) {
  for (int n : lengths(1 << 18)) {
    const std::vector<Sample> x = random_samples(n);
    EXPECT_EQ(transformed(x), dct4_model::transform(x)) << n;
  }
}

TEST(Transform, NoticesAPlanThatWasOverwritten) {
  const PlanBlock block(64);
  env1* const root = plan(block, 64);
  Spec* const spec = reinterpret_cast<Spec*>(root);
  const std::vector<Sample> x(64, 1), before(64, 3);
  std::vector<Sample> y = before;
  const auto expect_nothing_done = [&](zulgResult result) {
    EXPECT_EQ(DCT4_ENTRY()(x.data(), y.data(), spec), result);
    EXPECT_EQ(y, before);
  };
  for (int rule : {-1, 0, 7}) {
    root->rule = rule;
    expect_nothing_done(ZULG_ERR_CONTEXT);
  }
  root->rule = 6;
  // Below the root a half is left out, and nobody is told.
  env2* const second = at<env2>(root->stage2, 0);
  second->rule = 0;
  expect_nothing_done(ZULG_OK);
  second->rule = 1;
  at<env4>(second->steps, 0)->rule = 0;
  expect_nothing_done(ZULG_OK);
}

}  // namespace
}  // namespace zulgen::DCT4_NAMESPACE
