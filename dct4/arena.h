// The block that a plan lives in, and the lists with which its objects hold one another.
//
// The block's first word is the cursor: where the next allocation goes. There is no end, no free
// list and no failure; what protects the block is that the sizing pass was right. Giving back only
// moves the cursor down, in any order and by any amount: after a plan that failed it may end below
// its start.
#pragma once

#include <stdint.h>

namespace zulgen {

// Sums and products of 32-bit integers that wrap.
template <class... Terms>
constexpr int wrapping_sum(Terms... terms) {
  return static_cast<int>((0u + ... + static_cast<unsigned>(terms)));
}
template <class... Factors>
constexpr int wrapping_product(Factors... factors) {
  return static_cast<int>((1u * ... * static_cast<unsigned>(factors)));
}

// `size` rounded up to a multiple of 32. Wraps.
constexpr int zulgAlignSize32Bytes(int size) { return wrapping_sum(size, 31) & ~31; }

// The block. Off 32 bytes it has to be 32 bytes longer than the sizing pass says: see first_cursor.
struct __attribute__((packed)) Arena {
  char* cursor;
};

// Where a block's objects begin: aligned on 32 bytes, behind the cursor. The remainder is that of a
// signed division, so at an unaligned address with its top bit set this is 32 bytes further up.
inline char* first_cursor(unsigned char* block) {
  const intptr_t remainder = reinterpret_cast<intptr_t>(block) % zulgAlignSize32Bytes(1);
  return reinterpret_cast<char*>(block) + 2 * zulgAlignSize32Bytes(1) - remainder;
}

static inline void* zulgArenaMalloc(Arena* arena, int size) {
  char* const result = arena->cursor;
  arena->cursor += zulgAlignSize32Bytes(size);
  return result;
}

static inline void zulgArenaFree(Arena* arena, void* /*pointer*/, int size) {
  arena->cursor -= zulgAlignSize32Bytes(size);
}

// What every object in a list begins with.
struct ObjectHeader {
  void (*__del__)(void* object);
  int size;
};

// A node, and a list by its first node, which is empty while its value is null.
struct EnvList {
  void* value;
  EnvList* next;
  Arena* arena;
};

static inline EnvList* EnvList___init__(EnvList* list, Arena* arena) {
  *list = {nullptr, nullptr, arena};
  return list;
}

// Puts `value` into the last node if that is empty, and into a new node behind it if not.
static inline void* EnvList_add(EnvList* list, void* value) {
  EnvList* last = list;
  while (last->next != nullptr) last = last->next;
  if (last->value != nullptr) {
    void* const node = zulgArenaMalloc(list->arena, sizeof(EnvList));
    last->next = EnvList___init__(static_cast<EnvList*>(node), list->arena);
    last = last->next;
  }
  last->value = value;
  return value;
}

// What the sizing pass charges for `count` additions, also for the first, which needs nothing.
constexpr int EnvList_add_mem(int count) {
  return wrapping_product(count, zulgAlignSize32Bytes(sizeof(EnvList)));
}

// Null below 0 and beyond the end; an index equal to the number of nodes isn't guarded.
static inline void* EnvList_get(const EnvList* list, int index) {
  if (index < 0) return nullptr;
  int steps = 0;
  for (; steps < index && list != nullptr; ++steps) list = list->next;
  return steps < index ? nullptr : list->value;
}

// The first object, which is known to be one of this class.
template <class Object>
static inline Object* first_in(const EnvList* list) {
  return static_cast<Object*>(EnvList_get(list, 0));
}

// Destroys the objects of a list that owns them, first to last; the nodes stay.
static inline void EnvList_freeChildren(EnvList* list) {
  for (EnvList* node = list; node != nullptr; node = node->next) {
    const auto object = static_cast<ObjectHeader*>(node->value);
    if (object == nullptr) continue;
    object->__del__(object);
    zulgArenaFree(list->arena, object, object->size);
  }
}

// Gives back the nodes behind the first.
static inline void EnvList___del__(EnvList* list) {
  for (EnvList* node = list->next; node != nullptr;) {
    EnvList* const next = node->next;
    zulgArenaFree(list->arena, node, sizeof(EnvList));
    node = next;
  }
}

}  // namespace zulgen
