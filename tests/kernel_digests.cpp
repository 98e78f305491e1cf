// Prints a digest of what every kernel and plan of a library computes, for comparing libraries that
// were built differently.
// Usage: kernel_digests LIBRARY
#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "gen/manifest.h"
#include "tests/harness/subject.h"

namespace {

using harness::Subject;
// A kernel that takes no work buffer doesn't look for one; the others help themselves.
using Kernel = zulgResult (*)(const void*, void*, zulgScaleFlag, void* work);

// FNV-1a.
class Digest {
 public:
  void add(const void* memory, std::size_t count) {
    const auto* const bytes = static_cast<const unsigned char*>(memory);
    for (std::size_t i = 0; i < count; ++i) value_ = (value_ ^ bytes[i]) * 0x100000001b3;
  }
  unsigned long long value() const { return value_; }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

// Both bodies, every flag, numbers of every magnitude and zeros of either sign.
unsigned long long digest_of(const Subject& subject, Kernel kernel) {
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
          const zulgResult result = kernel(source + offset, destination + offset, flag, nullptr);
          digest.add(&result, sizeof result);
          digest.add(destination + offset, destination_bytes);
        }
      }
    }
  }
  std::free(source);
  std::free(destination);
  return digest.value();
}

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
  for (int n = 2; n <= 1 << 16; n *= 2) {
    Digest digest;
    std::vector<Sample> source(n), destination(n);
    std::mt19937 random(n);
    std::uniform_real_distribution<Sample> uniform(-1, 1);
    for (Sample& sample : source) sample = uniform(random);
    void* spec = nullptr;
    if (init(&spec, n) != ZULG_OK) return false;
    if (transform(source.data(), destination.data(), spec) != ZULG_OK) return false;
    free_plan(spec);
    digest.add(destination.data(), n * sizeof(Sample));
    std::printf("zulgDCT4_%s %d %016llx\n", type.c_str(), n, digest.value());
  }
  return true;
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
                digest_of({kernel, nullptr}, reinterpret_cast<Kernel>(function)));
  }
  if (!print_dct4<float>(library, "32f") || !print_dct4<double>(library, "64f")) {
    std::fprintf(stderr, "a DCT-IV fails\n");
    return 1;
  }
}
