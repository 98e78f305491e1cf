// Memory between two pages that can't be touched.
#pragma once

#include <cstddef>
#include <functional>

namespace harness {

class GuardedArray {
 public:
  explicit GuardedArray(std::size_t bytes);
  ~GuardedArray();
  GuardedArray(const GuardedArray&) = delete;
  GuardedArray& operator=(const GuardedArray&) = delete;

  // The `bytes` bytes as near to the upper page as an address of offset modulo 32 gets, or as near
  // to the lower one.
  char* at_end(std::size_t bytes, unsigned offset) const;
  char* at_begin(unsigned offset) const { return data_ + offset; }

  // Fills all of the memory between the pages.
  void fill(unsigned char pattern);
  // Whether it holds the pattern still, but for `bytes` bytes at `array`.
  bool is_intact(unsigned char pattern, const char* array, std::size_t bytes) const;
  void set_writable(bool writable);

 private:
  char* data_;
  std::size_t size_;
};

// Runs `action`; false if it touches memory that it may not, or does anything else that a processor
// refuses.
bool runs_without_fault(const std::function<void()>& action);

}  // namespace harness
