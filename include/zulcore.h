/* zulcore: the allocator that zulgen takes memory from, libzulcore.so.6.1. C89 and C++.
 *
 * It is a library of its own so that a program can put its own pair in front: two functions of these
 * names in the program, or in a library loaded before, serve zulgen as well. */
#ifndef ZULCORE_H
#define ZULCORE_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* `size` bytes aligned on 64, or null if there are none to be had. Safe for concurrent use. */
void* zulMalloc(size_t size);

/* Gives back what zulMalloc returned; does nothing for null. Safe for concurrent use. */
void zulFree(void* block);

#ifdef __cplusplus
}
#endif

#endif
