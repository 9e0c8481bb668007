// PIXMOSA_CLONES before a function builds it twice, for the baseline machine and for AVX2; the machine that
// runs it picks at start. Both give the same bits.
#pragma once

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(PIXMOSA_SANITIZED)
#define PIXMOSA_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define PIXMOSA_CLONES
#endif
