// Times the variants of one kernel in a shared library of their own: zulgen-variants FILE NAME
// COUNT prints the cycles that NAME_0, NAME_1, ... take a call, a line each.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/arrays.h"
#include "bench/clock.h"
#include "gen/manifest.h"

int main(int argc, char** argv) {
  void* library = argc == 4 ? dlopen(argv[1], RTLD_NOW) : nullptr;
  if (library == nullptr) {
    std::fputs("usage: zulgen-variants FILE NAME COUNT\n", stderr);
    return 2;
  }
  static bench::Arrays arrays;
  const std::string name = argv[2];
  arrays.fill(name.find("_32f") != std::string::npos ? gen::Precision::kSingle
                                                     : gen::Precision::kDouble);
  std::vector<bench::Contender> contenders;
  for (int i = 0; i < std::atoi(argv[3]); ++i) {
    contenders.push_back(
        bench::calls_of(dlsym(library, (name + "_" + std::to_string(i)).c_str()), arrays));
  }
  const bench::Clock clock;
  for (double cycles : cycles_per_call(clock, contenders, 120)) std::printf("%.2f\n", cycles);
}
