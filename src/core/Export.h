#ifndef ZUM_CORE_EXPORT_H
#define ZUM_CORE_EXPORT_H

// The library is built with hidden symbols; only classes marked here form its
// boundary.
#define ZUM_EXPORT __attribute__((visibility("default")))

#endif
