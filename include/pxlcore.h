/* pxlcore.h - the companion library libpxlcore: thread count, a NaN constant
 * and the floating-point control helpers that libpxlia6 uses.
 *
 * threads_omp_of_n_pxl is the number of threads that each parallel region of
 * libpxlia6 asks for. It is read at every region, so an application may change
 * it between calls; it defaults to the number of processors. */
#ifndef PXLCORE_H
#define PXLCORE_H

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define PXLCORE_API __attribute__((visibility("default")))
#else
#define PXLCORE_API
#endif

extern PXLCORE_API int threads_omp_of_n_pxl;
extern PXLCORE_API const double pxlConstantOfNAN_64f;

/* SSE control register: set the rounding field (0 nearest, 24576 truncation,
 * bits in their register position) and return the whole previous register. */
PXLCORE_API int pxl_set_rc_ssx(int rc);
/* SSE control register: write the whole register. */
PXLCORE_API void pxl_set_cw_ssx(int cw);
/* x87 control word: set the bits under mask to value, return the previous word.
 * mask 3072 selects the rounding field (0 nearest, 3072 truncation). */
PXLCORE_API int pxl_set_rcpc_fpu(int value, int mask);
/* x87 control word: write the whole word. */
PXLCORE_API void pxl_set_cw_fpu(int cw);

#ifdef __cplusplus
}
#endif
#endif /* PXLCORE_H */
