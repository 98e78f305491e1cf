// Prints a digest of what every kernel of a library computes, and its DCT-IV, for comparing
// libraries that were built differently.
// Usage: kernel_digests LIBRARY LIBRARY_TXT
#include <dlfcn.h>

#include <cstdio>
#include <random>

#include "tests/harness/checks.h"
#include "tests/harness/digest.h"

namespace {

// A plan of the DCT-IV by the functions of one precision.
template <class Sample>
bool print_dct4(void* library, const std::string& type) {
  using InitAlloc = zulgResult (*)(void** spec, int n);
  using Transform = zulgResult (*)(const Sample*, Sample*, void* spec);
  using Free = zulgResult (*)(void* spec);
  const auto find = [&](const char* name) { return dlsym(library, (name + type).c_str()); };
  const auto init = reinterpret_cast<InitAlloc>(find("zulgDCT4InitAlloc_"));
  const auto transform = reinterpret_cast<Transform>(find("zulgDCT4_"));
  const auto free_plan = reinterpret_cast<Free>(find("zulgDCT4Free_"));
  if (init == nullptr || transform == nullptr || free_plan == nullptr) return false;
  for (int n = 2; n <= 1 << 18; n *= 2) {
    std::vector<Sample> source(n), destination(n);
    std::mt19937 random(n);
    for (Sample& sample : source) sample = static_cast<Sample>(random() * 0x1p-31 - 1);
    void* spec = nullptr;
    if (init(&spec, n) != ZULG_OK) return false;
    if (transform(source.data(), destination.data(), spec) != ZULG_OK) return false;
    free_plan(spec);
    harness::Digest digest;
    for (const Sample sample : destination) digest.add(sample);
    std::printf("zulgDCT4_%s,%d %s\n", type.c_str(), n, digest.text().c_str());
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  void* const library = argc == 3 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n",
                 argc == 3 ? dlerror() : "usage: kernel_digests LIBRARY LIBRARY_TXT");
    return 2;
  }
  for (const generate::KernelLine& kernel : generate::read_contents(argv[2]).kernels) {
    harness::Subject subject{{kernel}};
    void* const function = dlsym(library, kernel.name.c_str());
    subject.function = reinterpret_cast<harness::KernelFunction>(function);
    if (function == nullptr) {
      std::fprintf(stderr, "%s is missing\n", kernel.name.c_str());
      return 1;
    }
    std::printf("%s %s\n", kernel.name.c_str(), harness::digest_of_results(subject).c_str());
  }
  if (!print_dct4<float>(library, "32f") || !print_dct4<double>(library, "64f")) {
    std::fprintf(stderr, "a DCT-IV fails\n");
    return 1;
  }
}
