// Puts every kernel of a library to the checks, and compares what it computes with the digests of
// the data flows that the kernels were made from. A crash ends the check that it happens in.
// Usage: kernel_checks LIBRARY LIBRARY_TXT DIGESTS
#include <dlfcn.h>

#include <cstdio>
#include <functional>
#include <map>

#include "tests/harness/checks.h"
#include "tests/harness/digest.h"
#include "tests/harness/guarded_array.h"

namespace {

using harness::Findings;
using harness::Subject;

// The processor lacks what the library is built for.
constexpr int kSkipped = 77;

Findings all_findings(const Subject& subject, const std::string& digest) {
  if (subject.function == nullptr) return {"missing"};
  const std::pair<const char*, std::function<Findings()>> checks[] = {
      {"bits", [&] { return check_bits(subject, digest); }},
      {"scale", [&] { return check_scale(subject); }},
      {"alignment", [&] { return check_alignment(subject); }},
      {"memory", [&] { return check_memory(subject); }},
      {"arguments", [&] { return check_arguments(subject); }},
      {"calling convention", [&] { return check_calling_convention(subject); }},
      {"flags", [&] { return check_flags(subject); }}};
  Findings all;
  for (const auto& [name, check] : checks) {
    Findings findings;
    if (!harness::runs_without_fault([&] { findings = check(); })) {
      findings = {std::string("crashes in the check of its ") + name};
    }
    all.insert(all.end(), findings.begin(), findings.end());
  }
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  void* const library = argc == 4 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (library == nullptr) {
    const std::string error =
        argc == 4 ? dlerror() : "usage: kernel_checks LIBRARY LIBRARY_TXT DIGESTS";
    std::fprintf(stderr, "%s\n", error.c_str());
    return error.find("CPU ISA level") == std::string::npos ? 2 : kSkipped;
  }
  const std::map<std::string, std::string> digests = harness::read_digests(argv[3]);
  std::size_t checked = 0, faulty = 0;
  for (const generate::KernelLine& kernel : generate::read_contents(argv[2]).kernels) {
    Subject subject{{kernel}};
    void* const function = dlsym(library, kernel.name.c_str());
    subject.function = reinterpret_cast<harness::KernelFunction>(function);
    const auto digest = digests.find(kernel.name);
    const Findings findings = all_findings(subject, digest == digests.end() ? "" : digest->second);
    for (const std::string& finding : findings) {
      std::printf("%s: %s\n", kernel.name.c_str(), finding.c_str());
    }
    ++checked;
    faulty += !findings.empty();
  }
  std::printf("%zu kernels, %zu faulty\n", checked, faulty);
  return checked == digests.size() && checked > 0 && faulty == 0 ? 0 : 1;
}
