#include "bench/subject.h"

#include <dlfcn.h>

#include <cstring>
#include <stdexcept>

namespace bench {
namespace {

constexpr int kLongestDct4 = 131072;

// Kernels without a work buffer don't look at the last argument.
using KernelFunction = zulgResult (*)(const void*, void*, zulgScaleFlag, void*);

struct Dct4 {
  zulgResult (*init)(void** spec, int n);
  zulgResult (*run)(const void*, void*, void* spec);
  zulgResult (*release)(void* spec);
};

template <class Function>
void find(const Level& level, const std::string& name, Function& function) {
  void* const found = dlsym(level.library, name.c_str());
  if (found == nullptr) throw std::runtime_error(level.name + " has no " + name);
  function = reinterpret_cast<Function>(found);
}

Dct4 find_dct4(const Level& level, const std::string& type) {
  Dct4 functions;
  find(level, "zulgDCT4InitAlloc_" + type, functions.init);
  find(level, "zulgDCT4_" + type, functions.run);
  find(level, "zulgDCT4Free_" + type, functions.release);
  return functions;
}

bool can_run(const std::string& level) {
  return level != "x86-64-v3" || (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2"));
}

}  // namespace

std::vector<Level> levels() {
  // NAME=FILE, in blanks.
  std::istringstream words(ZULGEN_LIBRARIES);
  std::vector<Level> result;
  for (std::string word; words >> word;) {
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    if (!can_run(name)) continue;
    void* const library = dlopen(word.substr(equals + 1).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) throw std::runtime_error(dlerror());
    result.push_back({name, library});
  }
  return result;
}

std::vector<Subject> subjects() {
  std::vector<Subject> result = generate::read_contents(ZULGEN_LIBRARY_TXT).kernels;
  for (const char* type : {"32f", "64f"}) {
    for (int n = 2; n <= kLongestDct4; n *= 2) {
      Subject subject;
      subject.name = "zulgDCT4_" + std::string(type) + "_" + std::to_string(n);
      subject.element_size = type[0] == '3' ? 4 : 8;
      subject.source_elements = subject.destination_elements = subject.length = n;
      subject.transform = "dct4";
      subject.direction = "itself";
      result.push_back(subject);
      subject.name.insert(8, "Init");
      subject.transform = "plan";
      result.push_back(subject);
    }
  }
  return result;
}

void Arrays::fill(const Subject& subject) {
  std::mt19937 random(1);
  for (std::size_t at = 0; at < kBytes; at += subject.element_size) {
    const double value = random() * 0x1p-31 - 1;
    const float single = static_cast<float>(value);
    std::memcpy(source() + at, subject.is_single() ? static_cast<const void*>(&single) : &value,
                subject.element_size);
  }
}

void Arrays::clear() { std::memset(source(), 0, kBytes); }

Contender calls_of(const Subject& subject, const Level& level, Arrays& arrays, int offset) {
  const char* const source = arrays.source() + offset * subject.element_size;
  char* const destination = arrays.destination() + offset * subject.element_size;
  const std::string type = subject.is_single() ? "32f" : "64f";
  if (subject.transform == "plan") {
    return [functions = find_dct4(level, type), n = subject.length](int calls) {
      for (int call = 0; call < calls; ++call) {
        void* spec = nullptr;
        functions.init(&spec, n);
        functions.release(spec);
      }
    };
  }
  if (subject.transform == "dct4") {
    const Dct4 functions = find_dct4(level, type);
    void* plan = nullptr;
    functions.init(&plan, subject.length);
    const std::shared_ptr<void> spec(plan, functions.release);
    return [=](int calls) {
      for (int call = 0; call < calls; ++call) functions.run(source, destination, spec.get());
    };
  }
  KernelFunction kernel;
  find(level, subject.name, kernel);
  return [=, work = arrays.work()](int calls) {
    for (int call = 0; call < calls; ++call) kernel(source, destination, ZULG_SCALE_NONE, work);
  };
}

}  // namespace bench
