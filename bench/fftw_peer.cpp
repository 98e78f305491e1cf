#include "bench/fftw_peer.h"

#include <dlfcn.h>
#include <fftw3.h>

// The static library asks these whether it may use AVX.
extern "C" int fftwf_have_simd_avx(void) { return 0; }
extern "C" int fftw_have_simd_avx(void) { return 0; }

namespace bench {
namespace {

// The functions that the benchmark calls, from either library.
struct Functions {
  decltype(&fftwf_plan_dft_1d) plan_dft_f;
  decltype(&fftwf_execute) execute_f;
  decltype(&fftwf_forget_wisdom) forget_wisdom_f;
};

// What AVX code may leave in the upper halves of its registers slows down all SSE code behind it.
void clear_upper_halves() {
  if (__builtin_cpu_supports("avx")) asm volatile("vzeroupper");
}

class Peer : public FftwPeer {
 public:
  explicit Peer(const Functions& functions) : fftw_(functions) {}

  std::vector<Contender> plans(const gen::Kernel& kernel, void* source, void* destination,
                               int count) override {
    std::vector<Contender> result;
    const int sign = kernel.scale_rule == gen::ScaleRule::kForward ? FFTW_FORWARD : FFTW_BACKWARD;
    for (int i = 0; i < count; ++i) {
      const fftwf_plan plan =
          fftw_.plan_dft_f(kernel.length, static_cast<fftwf_complex*>(source),
                           static_cast<fftwf_complex*>(destination), sign, FFTW_PATIENT);
      fftw_.forget_wisdom_f();
      result.push_back([plan, execute = fftw_.execute_f](int calls) {
        for (int call = 0; call < calls; ++call) execute(plan);
        clear_upper_halves();
      });
    }
    return result;
  }

 private:
  const Functions fftw_;
};

}  // namespace

std::unique_ptr<FftwPeer> FftwPeer::sse2() {
  return std::make_unique<Peer>(Functions{fftwf_plan_dft_1d, fftwf_execute, fftwf_forget_wisdom});
}

std::unique_ptr<FftwPeer> FftwPeer::installed() {
  void* single = dlopen("libfftw3f.so.3", RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  if (single == nullptr) return nullptr;
  Functions functions;
  const auto find = [](void* library, const char* name, auto& function) {
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
  };
  find(single, "fftwf_plan_dft_1d", functions.plan_dft_f);
  find(single, "fftwf_execute", functions.execute_f);
  find(single, "fftwf_forget_wisdom", functions.forget_wisdom_f);
  return std::make_unique<Peer>(functions);
}

}  // namespace bench
