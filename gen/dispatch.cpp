#include "gen/dispatch.h"

#include <map>
#include <stdexcept>

namespace gen {
namespace {

// See frame/dispatch.h.
constexpr const char* kTemplate = R"template(
asm(R"(
        .section .rodata.KERNELS, "a", @progbits
        .p2align 2
        .type   KERNELS, @object
KERNELS:
OFFSETS        .size   KERNELS, . - KERNELS
        .previous
)");

ZULGEN_EXPORT __attribute__((naked)) zulgResult ENTRY(
    const SOURCE*, DESTINATION*, int, zulgScaleFlagWORK) {
  asm(R"(
        movl    12(%esp), %eax
        subl    $LOWEST, %eax
        cmpl    $RANGE, %eax
        ja      1f
        call    zulgen_return_address
        addl    $_GLOBAL_OFFSET_TABLE_, %ecx
        movl    16(%esp), %edx
        movl    %edx, 12(%esp)
CLOSE_UP        addl    KERNELS@GOTOFF(%ecx,%eax,4), %ecx
        jmp     *%ecx
1:      movl    $-6, %eax
        ret
)");
}
)template";
constexpr const char* kCloseUpWork =
    "        movl    20(%esp), %edx\n        movl    %edx, 16(%esp)\n";

void replace_all(std::string& text, const std::string& word, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += by.size()) {
    text.replace(at, word.size(), by);
  }
}

}  // namespace

std::vector<DispatchEntry> dispatch_entries(const std::vector<Kernel>& kernels) {
  std::vector<DispatchEntry> entries;
  std::map<std::string, std::size_t> index_of;
  for (const Kernel& kernel : kernels) {
    const std::size_t type = kernel.name.rfind('_'), number = kernel.name.rfind('_', type - 1);
    const std::string name = kernel.name.substr(0, number) + kernel.name.substr(type);
    const int value = std::stoi(kernel.name.substr(number + 1, type - number - 1));
    const auto [known, is_new] = index_of.try_emplace(name, entries.size());
    if (is_new) {
      entries.push_back({name,
                         kernel.family,
                         kernel.source_type,
                         kernel.destination_type,
                         kernel.has_work_argument,
                         value,
                         {}});
    }
    DispatchEntry& entry = entries[known->second];
    if (value != entry.lowest + static_cast<int>(entry.kernels.size())) {
      throw std::runtime_error("there is a kernel missing before " + kernel.name);
    }
    entry.kernels.push_back(kernel.name);
  }
  return entries;
}

std::string emit_dispatch(const DispatchEntry& entry) {
  std::string offsets;
  for (const std::string& kernel : entry.kernels) {
    offsets += "        .long   " + kernel + "@GOTOFF\n";
  }
  std::string text = kTemplate;
  replace_all(text, "ENTRY", entry.name);
  replace_all(text, "KERNELS", "owng" + entry.name.substr(4) + "_kernels");
  replace_all(text, "OFFSETS", offsets);
  replace_all(text, "SOURCE", entry.source_type);
  replace_all(text, "DESTINATION", entry.destination_type);
  replace_all(text, "WORK", entry.has_work_argument ? ", void*" : "");
  replace_all(text, "LOWEST", std::to_string(entry.lowest));
  replace_all(text, "RANGE", std::to_string(entry.kernels.size() - 1));
  replace_all(text, "CLOSE_UP", entry.has_work_argument ? kCloseUpWork : "");
  return text;
}

}  // namespace gen
