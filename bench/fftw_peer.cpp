#include "bench/fftw_peer.h"

#include <dlfcn.h>
#include <fftw3.h>

#include <bit>
#include <string>

// The static libraries ask these whether they may use AVX.
extern "C" int fftwf_have_simd_avx(void) { return 0; }
extern "C" int fftw_have_simd_avx(void) { return 0; }

namespace bench {
namespace {

// What the benchmark calls of FFTW in one precision.
template <class Complex, class Real, class PlanType>
struct Api {
  using Plan = PlanType;
  Plan (*dft)(int, Complex*, Complex*, int, unsigned);
  Plan (*r2c)(int, Real*, Complex*, unsigned);
  Plan (*c2r)(int, Complex*, Real*, unsigned);
  Plan (*r2r)(int, Real*, Real*, fftw_r2r_kind, unsigned);
  Plan (*r2r_of_rank)(int, const int*, Real*, Real*, const fftw_r2r_kind*, unsigned);
  void (*execute)(Plan);
  void (*forget_wisdom)();

  // The plans that may carry out the kernel's transform, up to the order of its real values.
  std::vector<Plan> plans(const gen::Kernel& kernel, void* source, void* destination) const {
    const auto complex = [](void* x) { return static_cast<Complex*>(x); };
    const auto real = [](void* x) { return static_cast<Real*>(x); };
    const auto is = [&kernel](const char* part) {
      return kernel.name.find(part) != std::string::npos;
    };
    const int n = kernel.length;
    const auto plan_r2r = [&](fftw_r2r_kind kind, unsigned flags) {
      return r2r(n, real(source), real(destination), kind, FFTW_PATIENT | flags);
    };
    if (is("WHT")) {
      // 2 by 2 by ... by 2 points, by either of the two names of that butterfly.
      const int rank = std::countr_zero(static_cast<unsigned>(n));
      const std::vector<int> sizes(rank, 2);
      std::vector<Plan> result;
      for (const fftw_r2r_kind kind : {FFTW_DHT, FFTW_R2HC}) {
        const std::vector<fftw_r2r_kind> kinds(rank, kind);
        result.push_back(r2r_of_rank(rank, sizes.data(), real(source), real(destination),
                                     kinds.data(), FFTW_PATIENT));
      }
      return result;
    }
    if (is("Hartley")) return {plan_r2r(FFTW_DHT, 0)};
    if (is("_RTo")) {
      return {r2c(n, real(source), complex(destination), FFTW_PATIENT), plan_r2r(FFTW_R2HC, 0)};
    }
    if (is("ToR_")) {
      std::vector<Plan> result;
      for (const unsigned flag : {FFTW_PRESERVE_INPUT, FFTW_DESTROY_INPUT}) {
        result.push_back(c2r(n, complex(source), real(destination), FFTW_PATIENT | flag));
        result.push_back(plan_r2r(FFTW_HC2R, flag));
      }
      return result;
    }
    const int sign = kernel.scale_rule == gen::ScaleRule::kForward ? FFTW_FORWARD : FFTW_BACKWARD;
    return {dft(n, complex(source), complex(destination), sign, FFTW_PATIENT)};
  }
};

using Single = Api<fftwf_complex, float, fftwf_plan>;
using Double = Api<fftw_complex, double, fftw_plan>;

// What AVX code may leave in the upper halves of its registers slows down all SSE code behind it.
void clear_upper_halves() {
  if (__builtin_cpu_supports("avx")) asm volatile("vzeroupper");
}

template <class Api>
std::vector<Contender> contenders(const Api& fftw, const gen::Kernel& kernel, void* source,
                                  void* destination, int count) {
  std::vector<Contender> result;
  for (int i = 0; i < count; ++i) {
    for (const typename Api::Plan plan : fftw.plans(kernel, source, destination)) {
      if (plan == nullptr) continue;
      result.push_back([plan, execute = fftw.execute](int calls) {
        for (int call = 0; call < calls; ++call) execute(plan);
        clear_upper_halves();
      });
    }
    fftw.forget_wisdom();
  }
  return result;
}

class Peer : public FftwPeer {
 public:
  Peer(const Single& single_precision, const Double& double_precision)
      : single_(single_precision), double_(double_precision) {}

  std::vector<Contender> plans(const gen::Kernel& kernel, void* source, void* destination,
                               int count) override {
    return kernel.precision == gen::Precision::kSingle
               ? contenders(single_, kernel, source, destination, count)
               : contenders(double_, kernel, source, destination, count);
  }

 private:
  const Single single_;
  const Double double_;
};

template <class Api>
bool load(const char* file, const std::string& prefix, Api& api) {
  void* library = dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
  if (library == nullptr) return false;
  const auto find = [&](const char* name, auto& function) {
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(
        dlsym(library, (prefix + name).c_str()));
  };
  find("plan_dft_1d", api.dft);
  find("plan_dft_r2c_1d", api.r2c);
  find("plan_dft_c2r_1d", api.c2r);
  find("plan_r2r_1d", api.r2r);
  find("plan_r2r", api.r2r_of_rank);
  find("execute", api.execute);
  find("forget_wisdom", api.forget_wisdom);
  return true;
}

}  // namespace

std::unique_ptr<FftwPeer> FftwPeer::sse2() {
  const Single single = {fftwf_plan_dft_1d,  fftwf_plan_dft_r2c_1d, fftwf_plan_dft_c2r_1d,
                         fftwf_plan_r2r_1d,  fftwf_plan_r2r,        fftwf_execute,
                         fftwf_forget_wisdom};
  const Double full = {fftw_plan_dft_1d,  fftw_plan_dft_r2c_1d, fftw_plan_dft_c2r_1d,
                       fftw_plan_r2r_1d,  fftw_plan_r2r,        fftw_execute,
                       fftw_forget_wisdom};
  return std::make_unique<Peer>(single, full);
}

std::unique_ptr<FftwPeer> FftwPeer::installed() {
  Single single;
  Double full;
  if (!load("libfftw3f.so.3", "fftwf_", single) || !load("libfftw3.so.3", "fftw_", full)) {
    return nullptr;
  }
  return std::make_unique<Peer>(single, full);
}

}  // namespace bench
