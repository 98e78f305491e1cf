/* Which library this is. The record is the same in every release and at every level of the library:
 * it names the interface, 6.1, and tells neither the release nor when it was built. */
#ifndef ZULGEN_VERSION_H
#define ZULGEN_VERSION_H

typedef struct zulgLibVersion {
  int major;
  int minor;
  int majorBuild;
  int build;
  char targetCode[4];    /* the processor level that the library is built for, zero-padded */
  const char* name;      /* the library's file name */
  const char* version;   /* for display */
  const char* buildDate; /* for display */
} zulgLibVersion;

#ifdef __cplusplus
extern "C" {
#endif

/* The library's version record: never null, the same at every call, valid while the library is
 * loaded. It belongs to the library. */
const zulgLibVersion* zulgenGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
