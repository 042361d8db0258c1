#pragma once

// The converter library is built with hidden visibility; only what is
// marked here is part of its binary interface.
#if defined(NELMO_BUILDING_LIBRARY)
#define NELMO_EXPORT __attribute__((visibility("default")))
#else
#define NELMO_EXPORT
#endif
