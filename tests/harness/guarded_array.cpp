#include "tests/harness/guarded_array.h"

#include <setjmp.h>
#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <iterator>
#include <stdexcept>

namespace harness {
namespace {

std::size_t page_size() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

sigjmp_buf fault_return;

void on_fault(int) { siglongjmp(fault_return, 1); }

}  // namespace

GuardedArray::GuardedArray(std::size_t bytes) {
  const std::size_t page = page_size();
  size_ = (bytes + 32 + page - 1) / page * page;
  void* all = mmap(nullptr, size_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (all == MAP_FAILED) throw std::runtime_error("no memory for a guarded array");
  data_ = static_cast<char*>(all) + page;
  set_writable(true);
}

GuardedArray::~GuardedArray() { munmap(data_ - page_size(), size_ + 2 * page_size()); }

char* GuardedArray::at_end(std::size_t bytes, unsigned offset) const {
  char* array = data_ + size_ - bytes;
  return array - (reinterpret_cast<std::uintptr_t>(array) - offset) % 32;
}

void GuardedArray::fill(unsigned char pattern) { std::memset(data_, pattern, size_); }

bool GuardedArray::is_intact(unsigned char pattern, const char* array, std::size_t bytes) const {
  for (const char* p = data_; p < data_ + size_; ++p) {
    if (p == array) p += bytes;
    if (p < data_ + size_ && static_cast<unsigned char>(*p) != pattern) return false;
  }
  return true;
}

void GuardedArray::set_writable(bool writable) {
  if (mprotect(data_, size_, writable ? PROT_READ | PROT_WRITE : PROT_READ) != 0) {
    throw std::runtime_error("mprotect failed");
  }
}

bool runs_without_fault(const std::function<void()>& action) {
  constexpr int kFaults[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE};
  struct sigaction handler = {}, before[std::size(kFaults)];
  handler.sa_handler = on_fault;
  for (std::size_t i = 0; i < std::size(kFaults); ++i) sigaction(kFaults[i], &handler, &before[i]);
  // What is run may run something in this way itself.
  sigjmp_buf outer_return;
  std::memcpy(&outer_return, &fault_return, sizeof outer_return);
  const bool fault = sigsetjmp(fault_return, 1) != 0;
  if (!fault) action();
  std::memcpy(&fault_return, &outer_return, sizeof outer_return);
  for (std::size_t i = 0; i < std::size(kFaults); ++i) sigaction(kFaults[i], &before[i], nullptr);
  return !fault;
}

}  // namespace harness
