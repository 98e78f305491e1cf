#include <dlfcn.h>

#include "bench/peers.h"

namespace bench {
namespace {

// Its functions, as the headers declare them: Debian has it in single precision.
struct Api {
  void* (*plan)(int n, int inverse, void* memory, std::size_t* size);
  void (*run)(void* plan, const void* source, void* destination);
  void* (*plan_real)(int n, int inverse, void* memory, std::size_t* size);
  void (*run_forward)(void* plan, const void* samples, void* spectrum);
  void (*run_inverse)(void* plan, const void* spectrum, void* samples);
};

bool load(const char* file, Api& api) {
  void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return false;
  const auto find = [&](const char* name, auto& function) {
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
    return function != nullptr;
  };
  return find("kiss_fft_alloc", api.plan) && find("kiss_fft", api.run) &&
         find("kiss_fftr_alloc", api.plan_real) && find("kiss_fftr", api.run_forward) &&
         find("kiss_fftri", api.run_inverse);
}

class KissFft : public Peer {
 public:
  explicit KissFft(const Api& api) : api_(api) {}

  std::string name() const override { return "kissfft"; }

  std::vector<Contender> ways(const Subject& subject, Arrays& arrays) override {
    if (!subject.is_single()) return {};
    const bool inverse = subject.direction == "inverse";
    const bool is_real = subject.transform == "real" && subject.length % 2 == 0;
    if (!is_real && subject.transform != "complex") return {};
    const std::shared_ptr<void> plan(
        (is_real ? api_.plan_real : api_.plan)(subject.length, inverse, nullptr, nullptr),
        std::free);
    const auto run = !is_real ? api_.run : inverse ? api_.run_inverse : api_.run_forward;
    return {[=, source = arrays.source(), destination = arrays.destination()](int calls) {
      for (int call = 0; call < calls; ++call) run(plan.get(), source, destination);
    }};
  }

 private:
  const Api api_;
};

}  // namespace

std::unique_ptr<Peer> kissfft() {
  Api api;
  if (!load("libkissfft-float.so.131", api)) return nullptr;
  return std::make_unique<KissFft>(api);
}

}  // namespace bench
