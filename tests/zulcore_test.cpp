#include "zulcore.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

namespace {

TEST(Zulcore, GivesAlignedBlocksToManyThreads) {
  const auto worker = [](int seed, int* failures) {
    std::vector<std::pair<unsigned char*, std::size_t>> blocks;
    for (int i = 0; i < 2000; ++i) {
      const std::size_t size = (i * 37 + seed * 101) % 5000;
      auto* block = static_cast<unsigned char*>(zulMalloc(size));
      *failures += block == nullptr || reinterpret_cast<std::uintptr_t>(block) % 16 != 0;
      std::memset(block, seed, size);
      blocks.emplace_back(block, size);
    }
    for (const auto& [block, size] : blocks) {
      for (std::size_t i = 0; i < size; ++i) *failures += block[i] != seed;
      zulFree(block);
    }
  };
  int failures[4] = {};
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) threads.emplace_back(worker, i, &failures[i]);
  for (std::thread& thread : threads) thread.join();
  for (int count : failures) EXPECT_EQ(count, 0);
}

TEST(Zulcore, HasNothingForTheImpossible) {
  EXPECT_EQ(zulMalloc(SIZE_MAX - 100), nullptr);
  zulFree(nullptr);
}

}  // namespace
