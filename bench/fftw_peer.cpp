#include "bench/peers.h"

#include <dlfcn.h>
#include <fftw3.h>
#include <xmmintrin.h>

#include <bit>
#include <cstdint>
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

  // The plans that may carry out the subject's transform.
  std::vector<Plan> plans(const Subject& subject, void* source, void* destination) const {
    const auto complex = [](void* x) { return static_cast<Complex*>(x); };
    const auto real = [](void* x) { return static_cast<Real*>(x); };
    const int n = subject.length;
    const bool forward = subject.direction == "forward";
    const auto plan_r2r = [&](fftw_r2r_kind kind, unsigned flags) {
      return r2r(n, real(source), real(destination), kind, FFTW_PATIENT | flags);
    };
    if (subject.transform == "walsh") {
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
    if (subject.transform == "hartley") return {plan_r2r(FFTW_DHT, 0)};
    if (subject.transform == "dct4") return {plan_r2r(FFTW_REDFT11, 0)};
    if (subject.transform == "complex") {
      return {dft(n, complex(source), complex(destination), forward ? FFTW_FORWARD : FFTW_BACKWARD,
                  FFTW_PATIENT)};
    }
    if (subject.transform != "real") return {};
    if (forward) {
      return {r2c(n, real(source), complex(destination), FFTW_PATIENT), plan_r2r(FFTW_R2HC, 0)};
    }
    std::vector<Plan> result;
    for (const unsigned flag : {FFTW_PRESERVE_INPUT, FFTW_DESTROY_INPUT}) {
      result.push_back(c2r(n, complex(source), real(destination), FFTW_PATIENT | flag));
      result.push_back(plan_r2r(FFTW_HC2R, flag));
    }
    return result;
  }
};

using Single = Api<fftwf_complex, float, fftwf_plan>;
using Double = Api<fftw_complex, double, fftw_plan>;

// Puts the upper halves of the registers back to what they are in a process that never used AVX, as
// SSE code is slow where they aren't. In a 32-bit process vzeroupper isn't enough: it leaves out
// half of the registers, and some processors then take three times as long for all SSE code until
// the system happens to save and load the registers.
void forget_avx() {
  if (!__builtin_cpu_supports("avx")) return;
  // Of the image nothing but MXCSR is read: its header says that AVX is as at the start.
  alignas(64) std::uint32_t image[256] = {};
  image[6] = _mm_getcsr();
  asm volatile("xrstor %0" : : "m"(image), "a"(1 << 2), "d"(0));
}

template <class Api>
std::vector<Contender> contenders(const Api& fftw, const Subject& subject, Arrays& arrays,
                                  int count) {
  std::vector<Contender> result;
  for (int i = 0; i < count; ++i) {
    for (const auto plan : fftw.plans(subject, arrays.source(), arrays.destination())) {
      if (plan == nullptr) continue;
      result.push_back([plan, execute = fftw.execute](int calls) {
        for (int call = 0; call < calls; ++call) execute(plan);
        forget_avx();
      });
    }
    fftw.forget_wisdom();
  }
  forget_avx();
  return result;
}

class Fftw : public Peer {
 public:
  Fftw(std::string name, const Single& single, const Double& full, int plans)
      : name_(std::move(name)), single_(single), double_(full), plans_(plans) {}

  std::string name() const override { return name_; }
  std::vector<Contender> ways(const Subject& subject, Arrays& arrays) override {
    return subject.is_single() ? contenders(single_, subject, arrays, plans_)
                               : contenders(double_, subject, arrays, plans_);
  }

 private:
  const std::string name_;
  const Single single_;
  const Double double_;
  const int plans_;
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

std::unique_ptr<Peer> fftw_held_to_sse2(int plans) {
  const Single single = {fftwf_plan_dft_1d,  fftwf_plan_dft_r2c_1d, fftwf_plan_dft_c2r_1d,
                         fftwf_plan_r2r_1d,  fftwf_plan_r2r,        fftwf_execute,
                         fftwf_forget_wisdom};
  const Double full = {fftw_plan_dft_1d,  fftw_plan_dft_r2c_1d, fftw_plan_dft_c2r_1d,
                       fftw_plan_r2r_1d,  fftw_plan_r2r,        fftw_execute,
                       fftw_forget_wisdom};
  return std::make_unique<Fftw>("fftw_sse2", single, full, plans);
}

std::unique_ptr<Peer> fftw_installed(int plans) {
  Single single;
  Double full;
  if (!load("libfftw3f.so.3", "fftwf_", single) || !load("libfftw3.so.3", "fftw_", full)) {
    return nullptr;
  }
  return std::make_unique<Fftw>("fftw", single, full, plans);
}

}  // namespace bench
