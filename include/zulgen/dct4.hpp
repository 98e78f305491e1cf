// A plan for the DCT-IV as an object: include zulgen.hpp.
#ifndef ZULGEN_DCT4_HPP
#define ZULGEN_DCT4_HPP

#include <bit>
#include <concepts>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>

#include "zulgen.h"
#include "zulgen/extents.hpp"

namespace zulgen {
namespace detail {

template <class Real>
struct Dct4Functions;
#define ZULGEN_DCT4(real, type, longest)                         \
  template <>                                                    \
  struct Dct4Functions<real> {                                   \
    using Spec = zulgDCT4Spec_##type;                            \
    static constexpr std::size_t kLongest = longest;             \
    static constexpr auto get_size = zulgDCT4GetSize_##type;     \
    static constexpr auto init = zulgDCT4Init_##type;            \
    static constexpr auto init_alloc = zulgDCT4InitAlloc_##type; \
    static constexpr auto run = zulgDCT4_##type;                 \
    static constexpr auto free = zulgDCT4Free_##type;            \
  }
ZULGEN_DCT4(float, 32f, 67108864);
ZULGEN_DCT4(double, 64f, 33554432);
#undef ZULGEN_DCT4

}  // namespace detail

// A plan for the DCT-IV of one length: zulgen/dct4.h. It owns the memory that it has allocated. As
// the plan is what the transform works in, calls of one plan must not run side by side.
template <FloatOrDouble Real>
class Dct4 {
  using Functions = detail::Dct4Functions<Real>;

 public:
  // Without a plan, as after being moved from.
  Dct4() = default;
  Dct4(Dct4&& other) noexcept
      : spec_(std::exchange(other.spec_, nullptr)),
        size_(std::exchange(other.size_, 0)),
        is_owner_(std::exchange(other.is_owner_, false)) {}
  Dct4& operator=(Dct4&& other) noexcept {
    std::swap(spec_, other.spec_);
    std::swap(size_, other.size_);
    std::swap(is_owner_, other.is_owner_);
    return *this;
  }
  ~Dct4() {
    if (is_owner_) Functions::free(spec_);
  }

  // Whether there is a plan for n samples: for the powers of two from 2 to 67108864, and with
  // double to 33554432.
  static constexpr bool has_length(std::size_t n) noexcept {
    return 2 <= n && n <= Functions::kLongest && std::has_single_bit(n);
  }

  // The bytes of a plan in memory of the caller's, wherever it lies; 0 if there is none.
  static std::size_t plan_bytes(std::size_t n) noexcept {
    return has_length(n) ? block_bytes(n) + kAlignment - 1 : 0;
  }

  // Makes the plan, in memory from zulMalloc. ZULG_OK, ZULG_ERR_SIZE if there is no plan of that
  // length, ZULG_ERR_NULL_PTR if there is no memory. After an error there is no plan.
  [[nodiscard]] zulgResult plan(std::size_t n) noexcept {
    *this = Dct4();
    if (!has_length(n)) return ZULG_ERR_SIZE;
    const zulgResult result = Functions::init_alloc(&spec_, static_cast<int>(n));
    if (result != ZULG_OK) return result;
    size_ = n;
    is_owner_ = true;
    return ZULG_OK;
  }

  // Makes the plan in the caller's memory, which has to stay as it is until the plan has been used
  // for the last time. ZULG_ERR_SIZE, and nothing written, also if it is less than plan_bytes(n)
  // and doesn't do where it lies.
  [[nodiscard]] zulgResult plan(std::size_t n, std::span<std::byte> memory) noexcept {
    *this = Dct4();
    if (!has_length(n)) return ZULG_ERR_SIZE;
    void* block = memory.data();
    std::size_t room = memory.size();
    if (!std::align(kAlignment, block_bytes(n), block, room)) return ZULG_ERR_SIZE;
    const zulgResult result =
        Functions::init(&spec_, static_cast<int>(n), static_cast<unsigned char*>(block));
    if (result == ZULG_OK) size_ = n;
    return result;
  }

  // The planned length; 0 if there is no plan.
  std::size_t size() const noexcept { return size_; }

  // ZULG_ERR_SIZE, and nothing written, unless both arrays have the planned length.
  template <class Src, class Dst>
  requires RealArrays<Src, Dst> && std::same_as<detail::ValueOf<Src>, Real> &&
      EqualSizes<detail::kUnknown, Src, Dst>
  [[nodiscard]] zulgResult operator()(Src&& src, Dst&& dst) noexcept {
    const std::span from(src);
    const std::span to(dst);
    if (size_ == 0 || from.size() != size_ || to.size() != size_) return ZULG_ERR_SIZE;
    return Functions::run(from.data(), to.data(), spec_);
  }

 private:
  // What zulgDCT4Init asks of a block.
  static constexpr std::size_t kAlignment = 32;
  static std::size_t block_bytes(std::size_t n) noexcept {
    int bytes = 0;
    Functions::get_size(static_cast<int>(n), &bytes);
    return static_cast<std::size_t>(bytes);
  }

  typename Functions::Spec* spec_ = nullptr;
  std::size_t size_ = 0;
  bool is_owner_ = false;
};

}  // namespace zulgen

#endif
