// The exported functions.
#pragma once

#include "dct4/compute.h"
#include "dct4/plan.h"

namespace zulgen {

ZULGEN_EXPORT zulgResult zulgDCT4GetSize(int n, int* size) {
  const int mem = env1_mem(n);
  if (mem < 0) return ZULG_ERR_SIZE;
  *size = wrapping_sum(mem, 2 * zulgAlignSize32Bytes(1));
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult zulgDCT4Init(Spec** spec, int n, unsigned char* buffer) {
  if (spec == nullptr || buffer == nullptr) return ZULG_ERR_NULL_PTR;
  Arena* const arena = reinterpret_cast<Arena*>(buffer);
  arena->cursor = first_cursor(buffer);
  env1* const root = env1___init__(zulgArenaMalloc(arena, sizeof(env1)), arena, n);
  const zulgResult result = env1_plan(root);
  if (result != ZULG_OK) {
    env1___del__(root);
    zulgArenaFree(arena, root, sizeof(env1));
    return result;
  }
  *spec = reinterpret_cast<Spec*>(root);
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult zulgDCT4InitAlloc(Spec** spec, int n) {
  if (spec == nullptr) return ZULG_ERR_NULL_PTR;
  int size;
  zulgResult result = zulgDCT4GetSize(n, &size);
  if (result != ZULG_OK) return result;
  // With nothing to be had, Init finds the null pointer.
  const auto block = static_cast<unsigned char*>(zulMalloc(static_cast<size_t>(size)));
  result = zulgDCT4Init(spec, n, block);
  if (result != ZULG_OK) zulFree(block);
  return result;
}

ZULGEN_EXPORT zulgResult zulgDCT4Free(Spec* spec) {
  if (spec == nullptr) return ZULG_ERR_NULL_PTR;
  env1* const root = reinterpret_cast<env1*>(spec);
  Arena* const arena = root->step.arena;
  env1___del__(root);
  zulgArenaFree(arena, root, sizeof(env1));
  zulFree(arena);
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult zulgDCT4(const Sample* src, Sample* dst, Spec* spec) {
  if (spec == nullptr || src == nullptr || dst == nullptr) return ZULG_ERR_NULL_PTR;
  return env1_compute(reinterpret_cast<const env1*>(spec), dst, src);
}

}  // namespace zulgen
