// The names of a plan's classes and operations. They exist once for each sample type: a source file
// defines DCT4_TYPE, 32f or 64f, before it includes anything, and serves that one.
//
// In the type's namespace they go by short names, such as `env1` and `env1_plan`. The full names,
// owngDCT4_32fw7_env1 and owngDCT4_32fw7_env1_plan, are made where a thing is defined, and are what
// a debugger and the symbol table show.
#pragma once

#define DCT4_JOIN(a, b, c) a##b##c
#define DCT4_EXPAND(a, b, c) DCT4_JOIN(a, b, c)
#define DCT4_OF_TYPE(before, after) DCT4_EXPAND(before, DCT4_TYPE, after)

#define DCT4_NAMESPACE DCT4_OF_TYPE(dct4_, )
#define DCT4_FULL(name) DCT4_OF_TYPE(owngDCT4_, w7_##name)

// DCT4_CLASS(name) { members };
#define DCT4_CLASS(name)               \
  using name = struct DCT4_FULL(name); \
  struct DCT4_FULL(name)

// DCT4_FUNCTION(result, name, arguments) { statements }, or if it has to be known before,
// DCT4_DECLARE(result, name, arguments); and later DCT4_DEFINE(result, name, arguments) { ... }
#define DCT4_FUNCTION(result, name, ...)   \
  DCT4_DECLARE(result, name, __VA_ARGS__); \
  DCT4_DEFINE(result, name, __VA_ARGS__)
#define DCT4_DECLARE(result, name, ...)       \
  static result DCT4_FULL(name)(__VA_ARGS__); \
  static constexpr auto& name = DCT4_FULL(name)
#define DCT4_DEFINE(result, name, ...) static result DCT4_FULL(name)(__VA_ARGS__)
