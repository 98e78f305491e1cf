// What a kernel computes on fixed inputs, in one number: equal for equal bits, whatever NaNs hold.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>

#include "tests/harness/subject.h"

namespace harness {

// FNV-1a.
class Digest {
 public:
  template <class Sample>
  void add(Sample sample) {
    if (sample != sample) sample = static_cast<Sample>(__builtin_nan(""));
    unsigned char bytes[sizeof sample];
    std::memcpy(bytes, &sample, sizeof sample);
    for (const unsigned char byte : bytes) value_ = (value_ ^ byte) * 0x100000001b3;
  }
  std::string text() const {
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(value_));
    return text;
  }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

// `run(input, flag)` gives the destination's elements.
template <class Run>
std::string digest_of(const Shape& shape, Run run) {
  Digest digest;
  for (const Data data : kAllData) {
    for (unsigned seed = 0; seed < 4; ++seed) {
      const std::vector<double> input = make_input(shape, data, seed);
      for (const zulgScaleFlag flag : kFlags) {
        for (const double value : run(input, flag)) {
          shape.is_single() ? digest.add(static_cast<float>(value)) : digest.add(value);
        }
      }
    }
  }
  return digest.text();
}

// The digests that a file holds by name.
inline std::map<std::string, std::string> read_digests(const char* file) {
  std::ifstream in(file);
  std::map<std::string, std::string> digests;
  for (std::string name, digest; in >> name >> digest;) digests[name] = digest;
  return digests;
}

}  // namespace harness
