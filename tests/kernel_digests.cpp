// Prints a digest of what every kernel of a library computes, for comparing libraries that were
// built differently.
// Usage: kernel_digests LIBRARY
#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "gen/manifest.h"
#include "tests/harness/subject.h"

namespace {

using harness::Subject;

// FNV-1a.
class Digest {
 public:
  void add(const unsigned char* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) value_ = (value_ ^ bytes[i]) * 0x100000001b3;
  }
  unsigned long long value() const { return value_; }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

// The work buffer lies where a function without one doesn't look.
using Function = zulgResult (*)(const void* source, void* destination, zulgScaleFlag flag,
                                void* work);

// Both bodies, every flag, numbers of every magnitude and zeros of either sign.
unsigned long long digest_of(const Subject& subject, Function function) {
  Digest digest;
  const std::size_t destination_bytes = subject.destination_bytes();
  const std::size_t room = subject.shared_bytes() + 64;
  auto* const source = static_cast<unsigned char*>(std::aligned_alloc(64, (room + 63) / 64 * 64));
  auto* const destination =
      static_cast<unsigned char*>(std::aligned_alloc(64, (room + 63) / 64 * 64));
  for (const auto data : {harness::Data::kUniform, harness::Data::kWild, harness::Data::kSparse}) {
    for (unsigned seed = 0; seed < 8; ++seed) {
      const std::vector<double> input = make_input(subject, data, seed);
      for (const std::size_t offset : {std::size_t{0}, subject.element_size()}) {
        for (const zulgScaleFlag flag :
             {ZULG_SCALE_FWD_BY_N, ZULG_SCALE_INV_BY_N, ZULG_SCALE_BY_SQRT_N, ZULG_SCALE_NONE}) {
          store_elements(subject, input, source + offset);
          const zulgResult result = function(source + offset, destination + offset, flag, nullptr);
          digest.add(reinterpret_cast<const unsigned char*>(&result), sizeof result);
          digest.add(destination + offset, destination_bytes);
        }
      }
    }
  }
  std::free(source);
  std::free(destination);
  return digest.value();
}

}  // namespace

int main(int argc, char** argv) {
  void* const library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", argc == 2 ? dlerror() : "usage: kernel_digests LIBRARY");
    return 2;
  }
  for (const gen::Kernel& kernel : gen::all_kernels()) {
    void* const function = dlsym(library, kernel.name.c_str());
    if (function == nullptr) {
      std::fprintf(stderr, "%s is missing\n", kernel.name.c_str());
      return 1;
    }
    std::printf("%s %016llx\n", kernel.name.c_str(),
                digest_of({kernel, nullptr}, reinterpret_cast<Function>(function)));
  }
}
