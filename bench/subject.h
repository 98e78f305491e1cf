// What is timed: kernels, and the DCT-IV of many lengths.
#pragma once

#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench/clock.h"
#include "generate/contents.h"
#include "zulgen.h"

namespace bench {

// A library of this program's architecture: the plain one, or that of a level.
struct Level {
  std::string name;
  void* library;  // of dlopen()
};

// Those of this build that the processor can run, the plain one first.
std::vector<Level> levels();

// Kernels as library.txt lists them, and two more transforms: "dct4", and "plan", which makes the
// plan for it.
using Subject = generate::KernelLine;
std::vector<Subject> subjects();

// Source, destination and work buffer of any subject, each on a cache line of its own.
class Arrays {
 public:
  static constexpr std::size_t kBytes = (std::size_t{1} << 20) + 4096;

  // Random numbers, or zeros, in the precision of the subject.
  void fill(const Subject& subject);
  void clear();

  char* source() { return source_.get(); }
  char* destination() { return destination_.get(); }
  char* work() { return work_.get(); }

 private:
  struct Free {
    void operator()(char* memory) const { std::free(memory); }
  };
  static std::unique_ptr<char, Free> memory() {
    return std::unique_ptr<char, Free>(static_cast<char*>(std::aligned_alloc(4096, kBytes)));
  }
  std::unique_ptr<char, Free> source_ = memory(), destination_ = memory(), work_ = memory();
};

// Calls of the library's function. The arrays begin `offset` elements behind a cache line. Throws
// std::runtime_error if there is no such function.
Contender calls_of(const Subject& subject, const Level& level, Arrays& arrays, int offset = 0);

}  // namespace bench
