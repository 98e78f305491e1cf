// The exported functions.
#pragma once

#include "dct4/compute.h"
#include "dct4/plan.h"
#include "zulcore.h"

namespace zulgen::DCT4_NAMESPACE {

using Spec = DCT4_OF_TYPE(zulgDCT4Spec_, );
#define DCT4_ENTRY(name) DCT4_OF_TYPE(zulgDCT4##name##_, )

ZULGEN_EXPORT zulgResult DCT4_ENTRY(GetSize)(int n, int* size) {
  const int mem = env1_mem(n);
  if (mem < 0) return ZULG_ERR_SIZE;
  *size = wrapping_sum(mem, 2 * zulgAlignSize32Bytes(1));
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult DCT4_ENTRY(Init)(Spec** spec, int n, unsigned char* buffer) {
  if (spec == nullptr || buffer == nullptr) return ZULG_ERR_NULL_PTR;
  Arena* const arena = reinterpret_cast<Arena*>(buffer);
  arena->cursor = first_cursor(buffer);
  env1* const root = env1___init__(new_object<env1>(arena), arena, n);
  const zulgResult result = env1_plan(root);
  if (result != ZULG_OK) {
    env1___del__(root);
    zulgArenaFree(arena, root, sizeof(env1));
    return result;
  }
  *spec = reinterpret_cast<Spec*>(root);
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult DCT4_ENTRY(InitAlloc)(Spec** spec, int n) {
  if (spec == nullptr) return ZULG_ERR_NULL_PTR;
  int size;
  zulgResult result = DCT4_ENTRY(GetSize)(n, &size);
  if (result != ZULG_OK) return result;
  // With nothing to be had, Init finds the null pointer.
  const auto block = static_cast<unsigned char*>(zulMalloc(static_cast<size_t>(size)));
  result = DCT4_ENTRY(Init)(spec, n, block);
  if (result != ZULG_OK) zulFree(block);
  return result;
}

ZULGEN_EXPORT zulgResult DCT4_ENTRY(Free)(Spec* spec) {
  if (spec == nullptr) return ZULG_ERR_NULL_PTR;
  env1* const root = reinterpret_cast<env1*>(spec);
  Arena* const arena = root->step.arena;
  env1___del__(root);
  zulgArenaFree(arena, root, sizeof(env1));
  zulFree(arena);
  return ZULG_OK;
}

ZULGEN_EXPORT zulgResult DCT4_ENTRY()(const Sample* src, Sample* dst, Spec* spec) {
  if (spec == nullptr || src == nullptr || dst == nullptr) return ZULG_ERR_NULL_PTR;
  return env1_compute(reinterpret_cast<const env1*>(spec), dst, src);
}

}  // namespace zulgen::DCT4_NAMESPACE
