/* zulcore: the allocator that zulgen takes memory from, libzulcore.so.6.1. C89 and C++.
 *
 * Linking zulgen doesn't need it, a program that calls zulMalloc or zulFree itself does: -lzulcore.
 *
 * It is a library of its own so that a program can put its own pair in front: two functions of these
 * names in the program, or in a library loaded before, serve zulgen as well. Such a zulMalloc has to
 * align blocks on 16 bytes at least, and to return null if there is no memory; zulFree has to take
 * null. Both have to be safe for concurrent use, if zulgen is used from several threads. */
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
