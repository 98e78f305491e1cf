#include "tests/harness/checks.h"

#include <xmmintrin.h>

#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>

#include "convention.h"  // the target's
#include "tests/harness/digest.h"
#include "tests/harness/guarded_array.h"

extern "C" int bare_call(harness::KernelFunction function, const void* source, void* destination,
                         int flag, int stack_offset, int* broken);

namespace harness {
namespace {

constexpr unsigned char kPattern = 0xa5;
constexpr std::size_t kMargin = 64;
// The widest vector there is.
constexpr unsigned kAlignment = 32;

// An array with room on both sides, at an address of a given offset modulo kAlignment.
class PlacedArray {
 public:
  PlacedArray(std::size_t bytes, unsigned offset) : memory_(bytes + 2 * kMargin, kPattern) {
    const auto address = reinterpret_cast<std::uintptr_t>(memory_.data()) + kMargin;
    array_ = memory_.data() + kMargin + (kAlignment - address % kAlignment + offset) % kAlignment;
  }
  void* get() { return array_; }

 private:
  std::vector<unsigned char> memory_;
  unsigned char* array_;
};

// Calls the function in a way that survives whatever it does to registers.
zulgResult call(const Subject& subject, const void* source, void* destination, zulgScaleFlag flag) {
  int broken = 0;
  return bare_call(subject.function, source, destination, flag, 0, &broken);
}

// The destination after a call with the arrays at these offsets; in place without a second one.
std::vector<double> run_at(const Subject& subject, const std::vector<double>& input,
                           zulgScaleFlag flag, unsigned source_offset,
                           std::optional<unsigned> destination_offset) {
  PlacedArray source(subject.shared_bytes(), source_offset);
  PlacedArray other(subject.destination_bytes(), destination_offset.value_or(0));
  void* const destination = (destination_offset ? other : source).get();
  store_elements(subject, input, source.get());
  call(subject, source.get(), destination, flag);
  return load_elements(subject, destination, subject.destination_elements);
}

}  // namespace

std::vector<double> run(const Subject& subject, const std::vector<double>& source,
                        zulgScaleFlag flag) {
  return run_at(subject, source, flag, 0, 0);
}

std::string digest_of_results(const Subject& subject) {
  return digest_of(subject, [&](const std::vector<double>& input, zulgScaleFlag flag) {
    return run(subject, input, flag);
  });
}

Findings check_bits(const Subject& subject, const std::string& digest) {
  if (digest_of_results(subject) == digest) return {};
  return {"not the bits of its data flow"};
}

Findings check_scale(const Subject& subject) {
  Findings findings;
  const std::string& name = subject.name;
  const auto is = [&](const char* part) { return name.find(part) != std::string::npos; };
  const int number = std::stoi(name.substr(name.find_first_of("0123456789")));
  const double n = is("WHT") ? std::ldexp(1, number) : number;
  const std::vector<double> input = make_input(subject, Data::kUniform, 5);
  const std::vector<double> unscaled = run(subject, input, ZULG_SCALE_NONE);
  // The factor, the product and the unscaled value are rounded.
  const double tolerance = 3 * (subject.is_single() ? 0x1.01p-24 : 0x1.01p-53);
  for (const zulgScaleFlag flag : kFlags) {
    const bool by_n = (flag == ZULG_SCALE_FWD_BY_N && !is("Inv_")) ||
                      (flag == ZULG_SCALE_INV_BY_N && !is("Fwd_"));
    const double factor = flag == ZULG_SCALE_BY_SQRT_N ? 1 / std::sqrt(n) : by_n ? 1 / n : 1;
    const std::vector<double> scaled = run(subject, input, flag);
    for (std::size_t i = 0; i < scaled.size(); ++i) {
      const double wanted = factor * unscaled[i];
      if (std::abs(scaled[i] - wanted) <= tolerance * std::abs(wanted)) continue;
      findings.push_back("another factor under flag " + std::to_string(flag));
      break;
    }
  }
  return findings;
}

Findings check_alignment(const Subject& subject) {
  Findings findings;
  const unsigned step = subject.element_size;
  for (const Data data : kAllData) {
    const std::vector<double> input = make_input(subject, data, 1);
    const std::vector<double> expected = run(subject, input, ZULG_SCALE_BY_SQRT_N);
    for (unsigned source = 0; source < kAlignment; source += step) {
      for (unsigned destination = 0; destination < kAlignment; destination += step) {
        if (!same_bits(run_at(subject, input, ZULG_SCALE_BY_SQRT_N, source, destination),
                       expected)) {
          findings.push_back("other bits at offsets " + std::to_string(source) + " and " +
                             std::to_string(destination));
        }
      }
      if (!same_bits(run_at(subject, input, ZULG_SCALE_BY_SQRT_N, source, {}), expected)) {
        findings.push_back("other bits in place, at offset " + std::to_string(source));
      }
    }
  }
  return findings;
}

Findings check_memory(const Subject& subject) {
  Findings findings;
  const std::vector<double> input = make_input(subject, Data::kUniform, 2);
  const std::vector<double> expected = run(subject, input, ZULG_SCALE_NONE);
  GuardedArray source(subject.shared_bytes()), destination(subject.destination_bytes());

  // `array` gets the input, in memory that is otherwise full of NaNs.
  const auto prepare = [&](GuardedArray& memory, char* array) {
    memory.fill(0xff);
    store_elements(subject, input, array);
  };
  const auto expect = [&](bool condition, const std::string& finding) {
    if (!condition) findings.push_back(finding);
  };
  for (unsigned offset = 0; offset < kAlignment; offset += subject.element_size) {
    for (const bool end : {false, true}) {
      const std::string where = std::string(end ? " behind" : " before") + " an array at offset " +
                                std::to_string(offset);
      const auto place = [&](GuardedArray& memory, std::size_t bytes) {
        return end ? memory.at_end(bytes, offset) : memory.at_begin(offset);
      };
      char* from = place(source, subject.source_bytes());
      char* to = place(destination, subject.destination_bytes());
      prepare(source, from);
      source.set_writable(false);
      destination.fill(kPattern);
      const bool fine = runs_without_fault([&] { call(subject, from, to, ZULG_SCALE_NONE); });
      source.set_writable(true);
      expect(fine, "touches memory" + where + ", or writes to its source");
      if (!fine) continue;
      expect(destination.is_intact(kPattern, to, subject.destination_bytes()), "writes" + where);
      expect(same_bits(load_elements(subject, to, subject.destination_elements), expected),
             "its result depends on memory" + where);

      char* both = place(source, subject.shared_bytes());
      prepare(source, both);
      expect(runs_without_fault([&] { call(subject, both, both, ZULG_SCALE_NONE); }),
             "touches memory in place" + where);
      expect(source.is_intact(0xff, both, subject.shared_bytes()), "writes in place" + where);
    }
  }
  return findings;
}

Findings check_arguments(const Subject& subject) {
  Findings findings;
  const std::vector<double> input = make_input(subject, Data::kUniform, 3);
  const auto try_call = [&](bool source, bool destination, zulgScaleFlag flag, unsigned offset,
                            zulgResult expected) {
    PlacedArray from(subject.source_bytes(), offset), to(subject.destination_bytes(), offset);
    store_elements(subject, input, from.get());
    const std::vector<double> before =
        load_elements(subject, to.get(), subject.destination_elements);
    zulgResult result = ZULG_OK;
    const bool fine = runs_without_fault([&] {
      result = call(subject, source ? from.get() : nullptr, destination ? to.get() : nullptr, flag);
    });
    const std::string call = std::string(source ? "" : " null source") +
                             (destination ? "" : " null destination") + " flag " +
                             std::to_string(flag) + " at offset " + std::to_string(offset);
    if (!fine || result != expected) {
      findings.push_back((fine ? std::to_string(result) : "a fault") + " instead of " +
                         std::to_string(expected) + " for" + call);
    }
    const bool touched =
        !same_bits(before, load_elements(subject, to.get(), subject.destination_elements));
    if (touched != (expected == ZULG_OK)) findings.push_back("destination wrong after" + call);
  };
  for (const unsigned offset : {0u, static_cast<unsigned>(subject.element_size)}) {
    for (const zulgScaleFlag flag : kFlags) {
      try_call(true, true, flag, offset, ZULG_OK);
      try_call(false, true, flag, offset, ZULG_ERR_NULL_PTR);
      try_call(true, false, flag, offset, ZULG_ERR_NULL_PTR);
    }
    for (const zulgScaleFlag flag : {0, 3, 5, 6, 7, 9, 12, 16, 32 + 8, 1 << 30, -1, -8}) {
      try_call(true, true, flag, offset, ZULG_ERR_FLAG);
      try_call(false, true, flag, offset, ZULG_ERR_NULL_PTR);
      try_call(true, false, flag, offset, ZULG_ERR_NULL_PTR);
      try_call(false, false, flag, offset, ZULG_ERR_NULL_PTR);
    }
  }
  return findings;
}

Findings check_calling_convention(const Subject& subject) {
  Findings findings;
  const std::vector<double> input = make_input(subject, Data::kUniform, 4);
  const std::vector<double> expected = run(subject, input, ZULG_SCALE_NONE);
  for (const int stack_offset : kStackOffsets) {
    for (const unsigned offset : {0u, static_cast<unsigned>(subject.element_size)}) {
      PlacedArray source(subject.source_bytes(), offset);
      PlacedArray destination(subject.destination_bytes(), offset);
      store_elements(subject, input, source.get());
      int broken = 0, result = 1;
      const bool fine = runs_without_fault([&] {
        result = bare_call(subject.function, source.get(), destination.get(), ZULG_SCALE_NONE,
                           stack_offset, &broken);
      });
      const std::string where = " with the stack " + std::to_string(stack_offset) + " off";
      const auto output = load_elements(subject, destination.get(), subject.destination_elements);
      if (!fine || result != ZULG_OK || !same_bits(output, expected)) {
        findings.push_back("fails" + where);
      }
      for (std::size_t bit = 0; bit < std::size(kKept); ++bit) {
        if (broken >> bit & 1) findings.push_back("changes the " + std::string(kKept[bit]) + where);
      }
    }
  }
  return findings;
}

// Lanes that nobody reads may hold anything but what is no number, or hardly one; which shows by
// chance.
Findings check_flags(const Subject& subject) {
  constexpr unsigned kSubnormal = _MM_EXCEPT_DENORM | _MM_EXCEPT_UNDERFLOW;
  const bool is_complex = subject.name.ends_with("_32fc");
  const unsigned allowed = _MM_EXCEPT_INEXACT | (is_complex ? kSubnormal : 0);
  PlacedArray source(subject.source_bytes(), 0), destination(subject.destination_bytes(), 0);
  unsigned raised = 0;
  for (int seed = 0; seed < 50; ++seed) {
    store_elements(subject, make_input(subject, Data::kUniform, seed), source.get());
    _MM_SET_EXCEPTION_STATE(0);
    subject.function(source.get(), destination.get(), ZULG_SCALE_NONE, nullptr);
    raised |= _MM_GET_EXCEPTION_STATE();
  }
  if ((raised & ~allowed) == 0) return {};
  return {"raises flags " + std::to_string(raised)};
}

}  // namespace harness
