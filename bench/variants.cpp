// Times the variants of one kernel in a shared library of their own: zulgen-variants FILE NAME
// COUNT prints the cycles that NAME_0, NAME_1, ... take a call, a line each.
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

#include "bench/subject.h"

int main(int argc, char** argv) {
  void* const library = argc == 4 ? dlopen(argv[1], RTLD_NOW) : nullptr;
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", argc == 4 ? dlerror() : "usage: zulgen-variants FILE NAME COUNT");
    return 2;
  }
  bench::Subject subject;
  const std::string name = argv[2];
  subject.element_size = name.find("_32f") != std::string::npos ? 4 : 8;
  bench::Arrays arrays;
  arrays.fill(subject);
  std::vector<bench::Contender> contenders;
  for (int i = 0; i < std::atoi(argv[3]); ++i) {
    subject.name = name + "_" + std::to_string(i);
    contenders.push_back(calls_of(subject, {"variants", library}, arrays));
  }
  const bench::Clock clock;
  for (const auto& cycles : cycles_per_call(clock, contenders, 60)) {
    cycles ? std::printf("%.2f\n", *cycles) : std::puts("-");
  }
}
