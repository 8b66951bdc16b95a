/* pxls.h - Vector functions of libpxlia6.
 *
 * pxls<Stem>_<type>[_<descriptor>]: one-dimensional arrays, length counts
 * elements; descriptors I (in place) and Sfs (scale factor, last).
 *
 * This file is generated from the family registry (tools/registry) by
 * tools/pxlgen.py --write-headers; edit the registry, not this file. */
#ifndef PXLS_H
#define PXLS_H

#include "pxldefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- pxlsAdd: src1 + src2, scaled by 2^-scale, rounded to nearest even and saturated */
PXL_API PxlStatus PXL_CALL pxlsAdd_16s_Sfs(const Pxl16s* src1, const Pxl16s* src2, Pxl16s* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_16s_ISfs(const Pxl16s* src, Pxl16s* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_32s_Sfs(const Pxl32s* src1, const Pxl32s* src2, Pxl32s* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_32s_ISfs(const Pxl32s* src, Pxl32s* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_16sc_Sfs(const Pxl16sc* src1, const Pxl16sc* src2, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_16sc_ISfs(const Pxl16sc* src, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_32sc_Sfs(const Pxl32sc* src1, const Pxl32sc* src2, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAdd_32sc_ISfs(const Pxl32sc* src, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsAdd */
PXL_API PxlStatus PXL_CALL pxlsAdd_32f(const Pxl32f* src1, const Pxl32f* src2, Pxl32f* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsAdd_32f_I(const Pxl32f* src, Pxl32f* srcDst, int length);
PXL_API PxlStatus PXL_CALL pxlsAdd_32fc(const Pxl32fc* src1, const Pxl32fc* src2, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsAdd_32fc_I(const Pxl32fc* src, Pxl32fc* srcDst, int length);

/* ---- pxlsAddC: src + value, scaled like Add */
PXL_API PxlStatus PXL_CALL pxlsAddC_16sc_Sfs(const Pxl16sc* src, Pxl16sc value, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAddC_16sc_ISfs(Pxl16sc value, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsAddC_32sc_Sfs(const Pxl32sc* src, Pxl32sc value, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsAddC_32sc_ISfs(Pxl32sc value, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsAddC */
PXL_API PxlStatus PXL_CALL pxlsAddC_32fc(const Pxl32fc* src, Pxl32fc value, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsAddC_32fc_I(Pxl32fc value, Pxl32fc* srcDst, int length);

/* ---- pxlsSub: src2 - src1 (in place: srcDst - src), scaled by 2^-scale, rounded to nearest even and saturated */
PXL_API PxlStatus PXL_CALL pxlsSub_16s_Sfs(const Pxl16s* src1, const Pxl16s* src2, Pxl16s* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_16s_ISfs(const Pxl16s* src, Pxl16s* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_32s_Sfs(const Pxl32s* src1, const Pxl32s* src2, Pxl32s* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_32s_ISfs(const Pxl32s* src, Pxl32s* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_16sc_Sfs(const Pxl16sc* src1, const Pxl16sc* src2, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_16sc_ISfs(const Pxl16sc* src, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_32sc_Sfs(const Pxl32sc* src1, const Pxl32sc* src2, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSub_32sc_ISfs(const Pxl32sc* src, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsSub */
PXL_API PxlStatus PXL_CALL pxlsSub_32f(const Pxl32f* src1, const Pxl32f* src2, Pxl32f* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsSub_32f_I(const Pxl32f* src, Pxl32f* srcDst, int length);
PXL_API PxlStatus PXL_CALL pxlsSub_32fc(const Pxl32fc* src1, const Pxl32fc* src2, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsSub_32fc_I(const Pxl32fc* src, Pxl32fc* srcDst, int length);

/* ---- pxlsSubC: src - value, scaled like Sub */
PXL_API PxlStatus PXL_CALL pxlsSubC_16sc_Sfs(const Pxl16sc* src, Pxl16sc value, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSubC_16sc_ISfs(Pxl16sc value, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsSubC_32sc_Sfs(const Pxl32sc* src, Pxl32sc value, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsSubC_32sc_ISfs(Pxl32sc value, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsSubC */
PXL_API PxlStatus PXL_CALL pxlsSubC_32f(const Pxl32f* src, Pxl32f value, Pxl32f* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSubC_32f_I(Pxl32f value, Pxl32f* srcDst, int length);
PXL_API PxlStatus PXL_CALL pxlsSubC_32fc(const Pxl32fc* src, Pxl32fc value, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsSubC_32fc_I(Pxl32fc value, Pxl32fc* srcDst, int length);

/* ---- pxlsMul: complex src1 * src2, scaled per part */
PXL_API PxlStatus PXL_CALL pxlsMul_16sc_Sfs(const Pxl16sc* src1, const Pxl16sc* src2, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsMul_16sc_ISfs(const Pxl16sc* src, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsMul_32sc_Sfs(const Pxl32sc* src1, const Pxl32sc* src2, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsMul_32sc_ISfs(const Pxl32sc* src, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsMul */
PXL_API PxlStatus PXL_CALL pxlsMul_32fc(const Pxl32fc* src1, const Pxl32fc* src2, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsMul_32fc_I(const Pxl32fc* src, Pxl32fc* srcDst, int length);

/* ---- pxlsMul */
PXL_API PxlStatus PXL_CALL pxlsMul_64fc_I(const Pxl64fc* src, Pxl64fc* srcDst, int length);

/* ---- pxlsMulC: src * value, scaled per part */
PXL_API PxlStatus PXL_CALL pxlsMulC_16sc_Sfs(const Pxl16sc* src, Pxl16sc value, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsMulC_16sc_ISfs(Pxl16sc value, Pxl16sc* srcDst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsMulC_32sc_Sfs(const Pxl32sc* src, Pxl32sc value, Pxl32sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsMulC_32sc_ISfs(Pxl32sc value, Pxl32sc* srcDst, int length,
    int scale);

/* ---- pxlsMulC */
PXL_API PxlStatus PXL_CALL pxlsMulC_32f_I(Pxl32f value, Pxl32f* srcDst, int length);

/* ---- pxlsMulC */
PXL_API PxlStatus PXL_CALL pxlsMulC_32fc(const Pxl32fc* src, Pxl32fc value, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsMulC_32fc_I(Pxl32fc value, Pxl32fc* srcDst, int length);

/* ---- pxlsMulC */
PXL_API PxlStatus PXL_CALL pxlsMulC_64fc_I(Pxl64fc value, Pxl64fc* srcDst, int length);

/* ---- pxlsDiv: src2 / src1; a zero divisor gives defined values and pxlStsDivByZero */
PXL_API PxlStatus PXL_CALL pxlsDiv_8u_Sfs(const Pxl8u* src1, const Pxl8u* src2, Pxl8u* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsDiv_16s_Sfs(const Pxl16s* src1, const Pxl16s* src2, Pxl16s* dst,
    int length, int scale);

/* ---- pxlsDiv */
PXL_API PxlStatus PXL_CALL pxlsDiv_16sc_Sfs(const Pxl16sc* src1, const Pxl16sc* src2, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsDiv_16sc_ISfs(const Pxl16sc* src, Pxl16sc* srcDst, int length,
    int scale);

/* ---- pxlsDiv */
PXL_API PxlStatus PXL_CALL pxlsDiv_32f(const Pxl32f* src1, const Pxl32f* src2, Pxl32f* dst,
    int length);

/* ---- pxlsDiv */
PXL_API PxlStatus PXL_CALL pxlsDiv_32fc(const Pxl32fc* src1, const Pxl32fc* src2, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsDiv_32fc_I(const Pxl32fc* src, Pxl32fc* srcDst, int length);
PXL_API PxlStatus PXL_CALL pxlsDiv_64fc(const Pxl64fc* src1, const Pxl64fc* src2, Pxl64fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsDiv_64fc_I(const Pxl64fc* src, Pxl64fc* srcDst, int length);

/* ---- pxlsDivC: src / value; a zero constant gives pxlStsDivByZeroConst */
PXL_API PxlStatus PXL_CALL pxlsDivC_8u_Sfs(const Pxl8u* src, Pxl8u value, Pxl8u* dst, int length,
    int scale);
PXL_API PxlStatus PXL_CALL pxlsDivC_16s_Sfs(const Pxl16s* src, Pxl16s value, Pxl16s* dst,
    int length, int scale);

/* ---- pxlsDivC */
PXL_API PxlStatus PXL_CALL pxlsDivC_16sc_Sfs(const Pxl16sc* src, Pxl16sc value, Pxl16sc* dst,
    int length, int scale);
PXL_API PxlStatus PXL_CALL pxlsDivC_16sc_ISfs(Pxl16sc value, Pxl16sc* srcDst, int length,
    int scale);

/* ---- pxlsDivC */
PXL_API PxlStatus PXL_CALL pxlsDivC_32fc(const Pxl32fc* src, Pxl32fc value, Pxl32fc* dst,
    int length);
PXL_API PxlStatus PXL_CALL pxlsDivC_32fc_I(Pxl32fc value, Pxl32fc* srcDst, int length);

/* ---- pxlsMalloc: 32-byte aligned vector of length elements, or NULL */
PXL_API Pxl8u* PXL_CALL pxlsMalloc_8u(int length);
PXL_API Pxl8s* PXL_CALL pxlsMalloc_8s(int length);
PXL_API Pxl16u* PXL_CALL pxlsMalloc_16u(int length);
PXL_API Pxl16s* PXL_CALL pxlsMalloc_16s(int length);
PXL_API Pxl32u* PXL_CALL pxlsMalloc_32u(int length);
PXL_API Pxl32s* PXL_CALL pxlsMalloc_32s(int length);
PXL_API Pxl32f* PXL_CALL pxlsMalloc_32f(int length);
PXL_API Pxl64s* PXL_CALL pxlsMalloc_64s(int length);
PXL_API Pxl16sc* PXL_CALL pxlsMalloc_16sc(int length);
PXL_API Pxl32sc* PXL_CALL pxlsMalloc_32sc(int length);
PXL_API Pxl32fc* PXL_CALL pxlsMalloc_32fc(int length);
PXL_API Pxl64fc* PXL_CALL pxlsMalloc_64fc(int length);

/* ---- pxlsFree: free a block of the allocators; NULL is ignored */
PXL_API void PXL_CALL pxlsFree(void* ptr);

/* ---- pxlsConvert: the value in the destination type */
PXL_API PxlStatus PXL_CALL pxlsConvert_8u32f(const Pxl8u* src, Pxl32f* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsConvert_32s32f(const Pxl32s* src, Pxl32f* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsConvert_32s64f(const Pxl32s* src, Pxl64f* dst, int length);

/* ---- pxlsConvert: times 2^-scale, clamped, rounded by roundMode */
PXL_API PxlStatus PXL_CALL pxlsConvert_32f8u_Sfs(const Pxl32f* src, Pxl8u* dst, int length,
    int roundMode, int scale);
PXL_API PxlStatus PXL_CALL pxlsConvert_32f16s_Sfs(const Pxl32f* src, Pxl16s* dst, int length,
    int roundMode, int scale);
PXL_API PxlStatus PXL_CALL pxlsConvert_32f32s_Sfs(const Pxl32f* src, Pxl32s* dst, int length,
    int roundMode, int scale);
PXL_API PxlStatus PXL_CALL pxlsConvert_64f32s_Sfs(const Pxl64f* src, Pxl32s* dst, int length,
    int roundMode, int scale);

/* ---- pxlsCopy: dst = src; the ranges must not overlap */
PXL_API PxlStatus PXL_CALL pxlsCopy_8u(const Pxl8u* src, Pxl8u* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsCopy_32f(const Pxl32f* src, Pxl32f* dst, int length);

/* ---- pxlsMove: dst = src; the ranges may overlap */
PXL_API PxlStatus PXL_CALL pxlsMove_16s(const Pxl16s* src, Pxl16s* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsMove_32f(const Pxl32f* src, Pxl32f* dst, int length);

/* ---- pxlsSet: every element = value */
PXL_API PxlStatus PXL_CALL pxlsSet_8u(Pxl8u value, Pxl8u* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSet_16s(Pxl16s value, Pxl16s* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSet_32s(Pxl32s value, Pxl32s* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSet_32f(Pxl32f value, Pxl32f* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSet_16sc(Pxl16sc value, Pxl16sc* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsSet_32fc(Pxl32fc value, Pxl32fc* dst, int length);

/* ---- pxlsZero: every element = 0 */
PXL_API PxlStatus PXL_CALL pxlsZero_8u(Pxl8u* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsZero_16s(Pxl16s* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsZero_32f(Pxl32f* dst, int length);
PXL_API PxlStatus PXL_CALL pxlsZero_16sc(Pxl16sc* dst, int length);

/* ---- pxlsFFT: one-dimensional FFT of length 2^order: plans and transforms */
PXL_API PxlStatus PXL_CALL pxlsFFTGetSize_C_32fc(int order, int flag, int hint, int* specSize,
    int* initSize, int* bufSize);
PXL_API PxlStatus PXL_CALL pxlsFFTInit_C_32fc(PxlFftCtx** spec, int order, int flag, int hint,
    Pxl8u* specMem, Pxl8u* initBuf);
PXL_API PxlStatus PXL_CALL pxlsFFTInitAlloc_C_32fc(PxlFftCtx** spec, int order, int flag, int hint);
PXL_API PxlStatus PXL_CALL pxlsFFTFree_C_32fc(PxlFftCtx* spec);
PXL_API PxlStatus PXL_CALL pxlsFFTGetBufSize_C_32fc(const PxlFftCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxlsFFTGetSize_R_32f(int order, int flag, int hint, int* specSize,
    int* initSize, int* bufSize);
PXL_API PxlStatus PXL_CALL pxlsFFTInit_R_32f(PxlFftCtx** spec, int order, int flag, int hint,
    Pxl8u* specMem, Pxl8u* initBuf);
PXL_API PxlStatus PXL_CALL pxlsFFTInitAlloc_R_32f(PxlFftCtx** spec, int order, int flag, int hint);
PXL_API PxlStatus PXL_CALL pxlsFFTFree_R_32f(PxlFftCtx* spec);
PXL_API PxlStatus PXL_CALL pxlsFFTGetBufSize_R_32f(const PxlFftCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxlsFFTFwd_CToC_32fc(const Pxl32fc* src, Pxl32fc* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsFFTInv_CToC_32fc(const Pxl32fc* src, Pxl32fc* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsFFTFwd_RToPack_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsFFTFwd_RToPerm_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsFFTInv_PackToR_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsFFTInv_PermToR_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlFftCtx* spec, Pxl8u* buffer);

/* ---- pxlsDFT: one-dimensional DFT of any length: plans and transforms */
PXL_API PxlStatus PXL_CALL pxlsDFTInitAlloc_C_32fc(PxlDftCtx** spec, int length, int flag,
    int hint);
PXL_API PxlStatus PXL_CALL pxlsDFTFree_C_32fc(PxlDftCtx* spec);
PXL_API PxlStatus PXL_CALL pxlsDFTGetBufSize_C_32fc(const PxlDftCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxlsDFTInitAlloc_R_32f(PxlDftCtx** spec, int length, int flag, int hint);
PXL_API PxlStatus PXL_CALL pxlsDFTFree_R_32f(PxlDftCtx* spec);
PXL_API PxlStatus PXL_CALL pxlsDFTGetBufSize_R_32f(const PxlDftCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxlsDFTFwd_CToC_32fc(const Pxl32fc* src, Pxl32fc* dst,
    const PxlDftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsDFTInv_CToC_32fc(const Pxl32fc* src, Pxl32fc* dst,
    const PxlDftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsDFTFwd_RToPack_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlDftCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxlsDFTInv_PackToR_32f(const Pxl32f* src, Pxl32f* dst,
    const PxlDftCtx* spec, Pxl8u* buffer);

#ifdef __cplusplus
}
#endif
#endif /* PXLS_H */
