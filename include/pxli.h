/* pxli.h - Image functions of libpxlia6.
 *
 * Each name states the operation, the sample type, the channel layout and
 * the form of the argument list: pxli<Stem>[_<Qualifier>]_<type>_<descriptor>.
 * Steps are in bytes; roi counts pixels; every function returns a PxlStatus
 * (0 success, negative error with nothing written, positive warning).
 *
 * This file is generated from the family registry (tools/registry) by
 * tools/pxlgen.py --write-headers; edit the registry, not this file. */
#ifndef PXLI_H
#define PXLI_H

#include "pxldefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- pxliAdd: src1 + src2, scaled by 2^-scale, rounded to nearest even and saturated */
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C1RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C1IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C3RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C3IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_C4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_AC4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_8u_AC4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C1RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C1IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C3RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C3IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_C4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_AC4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16u_AC4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C1RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C1IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C3RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C3IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_C4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_AC4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16s_AC4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliAdd */
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C1R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C1IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C3R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C3IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_C4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_AC4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32f_AC4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliAdd */
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_C1RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_C3RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_C1RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_C3RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAdd_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliAdd */
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAdd_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliAddC: src + value, scaled like Add */
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C1RSfs(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C1IRSfs(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C3RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C3IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_C4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_AC4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_8u_AC4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C1RSfs(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C1IRSfs(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C3RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C3IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_C4IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_AC4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16u_AC4IRSfs(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C1RSfs(const Pxl16s* src, int srcStep, Pxl16s value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C1IRSfs(Pxl16s value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C3RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C3IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_C4IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_AC4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16s_AC4IRSfs(const Pxl16s* value, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliAddC */
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C1IR(Pxl32f value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C3R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C3IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_C4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_AC4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32f_AC4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliAddC */
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value,
    Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_C3RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_C3IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_16sc_AC4IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value,
    Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_C3RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_C3IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliAddC_32sc_AC4IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliAddC */
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_C3IR(const Pxl32fc* value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAddC_32fc_AC4IR(const Pxl32fc* value, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliSub: src2 - src1 (in place: srcDst - src), scaled by 2^-scale, rounded to nearest even and saturated */
PXL_API PxlStatus PXL_CALL pxliSub_8u_C1RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_C1IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_C3RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_C3IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_C4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_C4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_AC4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_8u_AC4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C1RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C1IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C3RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C3IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_C4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_AC4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16u_AC4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C1RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C1IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C3RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C3IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_C4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_AC4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16s_AC4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliSub */
PXL_API PxlStatus PXL_CALL pxliSub_32f_C1R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_C1IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_C3R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_C3IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_C4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_C4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_AC4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32f_AC4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliSub */
PXL_API PxlStatus PXL_CALL pxliSub_16sc_C1RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16sc_C3RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_C1RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_C3RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSub_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliSub */
PXL_API PxlStatus PXL_CALL pxliSub_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSub_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliSubC: src - value, scaled like Sub */
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C1RSfs(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C1IRSfs(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C3RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C3IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_C4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_AC4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_8u_AC4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C1RSfs(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C1IRSfs(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C3RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C3IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_C4IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_AC4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16u_AC4IRSfs(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C1RSfs(const Pxl16s* src, int srcStep, Pxl16s value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C1IRSfs(Pxl16s value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C3RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C3IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_C4IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_AC4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16s_AC4IRSfs(const Pxl16s* value, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliSubC */
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C1IR(Pxl32f value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C3R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C3IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_C4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_AC4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32f_AC4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliSubC */
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value,
    Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_C3RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_C3IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_16sc_AC4IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value,
    Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_C3RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_C3IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliSubC_32sc_AC4IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliSubC */
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_C3IR(const Pxl32fc* value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSubC_32fc_AC4IR(const Pxl32fc* value, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMul: src1 * src2, scaled by 2^-scale, rounded to nearest even and saturated */
PXL_API PxlStatus PXL_CALL pxliMul_8u_C1RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_C1IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_C3RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_C3IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_C4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_C4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_AC4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_8u_AC4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C1RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C1IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C3RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C3IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_C4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_AC4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16u_AC4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C1RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C1IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C3RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C3IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_C4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_AC4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16s_AC4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliMul */
PXL_API PxlStatus PXL_CALL pxliMul_32f_C1R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_C1IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_C3R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_C3IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_C4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_C4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_AC4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32f_AC4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMul */
PXL_API PxlStatus PXL_CALL pxliMul_16sc_C1RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16sc_C3RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_C1RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_C3RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMul_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliMul */
PXL_API PxlStatus PXL_CALL pxliMul_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMul_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMulC: src * value, scaled like Mul */
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C1RSfs(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C1IRSfs(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C3RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C3IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_C4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_AC4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_8u_AC4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C1RSfs(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C1IRSfs(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C3RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C3IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_C4IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_AC4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16u_AC4IRSfs(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C1RSfs(const Pxl16s* src, int srcStep, Pxl16s value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C1IRSfs(Pxl16s value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C3RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C3IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_C4IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_AC4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16s_AC4IRSfs(const Pxl16s* value, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliMulC */
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C1IR(Pxl32f value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C3R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C3IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_C4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_AC4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32f_AC4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliMulC */
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value,
    Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_C3RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_C3IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_16sc_AC4IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value,
    Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_C3RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_C3IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliMulC_32sc_AC4IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliMulC */
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_C3IR(const Pxl32fc* value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulC_32fc_AC4IR(const Pxl32fc* value, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliDiv: src2 / src1 (in place: srcDst / src), scaled; a zero divisor warns */
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C1RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C1IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C3RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C3IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_C4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_AC4RSfs(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_8u_AC4IRSfs(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C1RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C1IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C3RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C3IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_C4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_AC4RSfs(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16u_AC4IRSfs(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C1RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C1IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C3RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C3IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_C4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_AC4RSfs(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16s_AC4IRSfs(const Pxl16s* src, int srcStep, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliDiv */
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C1R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C1IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C3R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C3IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_C4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_AC4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32f_AC4IR(const Pxl32f* src, int srcStep, Pxl32f* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliDiv */
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_C1RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_C3RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step,
    const Pxl16sc* src2, int src2Step, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_C1RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_C3RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step,
    const Pxl32sc* src2, int src2Step, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDiv_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliDiv */
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2,
    int src2Step, Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDiv_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliDivC: src / value, scaled; a zero constant is an error */
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C1RSfs(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C1IRSfs(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C3RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C3IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_C4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_AC4RSfs(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_8u_AC4IRSfs(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C1RSfs(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C1IRSfs(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C3RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C3IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_C4IRSfs(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_AC4RSfs(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16u_AC4IRSfs(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C1RSfs(const Pxl16s* src, int srcStep, Pxl16s value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C1IRSfs(Pxl16s value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C3RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C3IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_C4IRSfs(const Pxl16s* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_AC4RSfs(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl16s* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16s_AC4IRSfs(const Pxl16s* value, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliDivC */
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C1IR(Pxl32f value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C3R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C3IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_C4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_AC4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32f_AC4IR(const Pxl32f* value, Pxl32f* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliDivC */
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value,
    Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_C3RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_C3IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep,
    const Pxl16sc* value, Pxl16sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_16sc_AC4IRSfs(const Pxl16sc* value, Pxl16sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value,
    Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep,
    PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_C3RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_C3IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep,
    const Pxl32sc* value, Pxl32sc* dst, int dstStep, PxlSize roi, int scale);
PXL_API PxlStatus PXL_CALL pxliDivC_32sc_AC4IRSfs(const Pxl32sc* value, Pxl32sc* srcDst,
    int srcDstStep, PxlSize roi, int scale);

/* ---- pxliDivC */
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_C3IR(const Pxl32fc* value, Pxl32fc* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc* value,
    Pxl32fc* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDivC_32fc_AC4IR(const Pxl32fc* value, Pxl32fc* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMulScale: src1 * src2 / max, both fractions of full scale */
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C1IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C3IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_C4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_8u_AC4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C1IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C3IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_C4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulScale_16u_AC4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMulCScale: src * value / max */
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C1IR(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C3R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C3IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_C4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_8u_AC4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C1IR(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C3R(const Pxl16u* src, int srcStep,
    const Pxl16u* value, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C3IR(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C4R(const Pxl16u* src, int srcStep,
    const Pxl16u* value, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_C4IR(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_AC4R(const Pxl16u* src, int srcStep,
    const Pxl16u* value, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliMulCScale_16u_AC4IR(const Pxl16u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliMalloc: image with rows on 32-byte boundaries; the step goes to *stepBytes */
PXL_API Pxl8u* PXL_CALL pxliMalloc_8u_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl8u* PXL_CALL pxliMalloc_8u_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl8u* PXL_CALL pxliMalloc_8u_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl8u* PXL_CALL pxliMalloc_8u_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl8u* PXL_CALL pxliMalloc_8u_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16u* PXL_CALL pxliMalloc_16u_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16u* PXL_CALL pxliMalloc_16u_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16u* PXL_CALL pxliMalloc_16u_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16u* PXL_CALL pxliMalloc_16u_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16u* PXL_CALL pxliMalloc_16u_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16s* PXL_CALL pxliMalloc_16s_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16s* PXL_CALL pxliMalloc_16s_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16s* PXL_CALL pxliMalloc_16s_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16s* PXL_CALL pxliMalloc_16s_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl16s* PXL_CALL pxliMalloc_16s_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32s* PXL_CALL pxliMalloc_32s_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32s* PXL_CALL pxliMalloc_32s_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32s* PXL_CALL pxliMalloc_32s_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32s* PXL_CALL pxliMalloc_32s_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32s* PXL_CALL pxliMalloc_32s_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32f* PXL_CALL pxliMalloc_32f_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32f* PXL_CALL pxliMalloc_32f_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32f* PXL_CALL pxliMalloc_32f_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32f* PXL_CALL pxliMalloc_32f_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32f* PXL_CALL pxliMalloc_32f_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32sc* PXL_CALL pxliMalloc_32sc_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32sc* PXL_CALL pxliMalloc_32sc_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32sc* PXL_CALL pxliMalloc_32sc_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32sc* PXL_CALL pxliMalloc_32sc_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32sc* PXL_CALL pxliMalloc_32sc_AC4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32fc* PXL_CALL pxliMalloc_32fc_C1(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32fc* PXL_CALL pxliMalloc_32fc_C2(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32fc* PXL_CALL pxliMalloc_32fc_C3(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32fc* PXL_CALL pxliMalloc_32fc_C4(int widthPixels, int heightPixels, int* stepBytes);
PXL_API Pxl32fc* PXL_CALL pxliMalloc_32fc_AC4(int widthPixels, int heightPixels, int* stepBytes);

/* ---- pxliFree: free an image of pxliMalloc; NULL is ignored */
PXL_API void PXL_CALL pxliFree(void* ptr);

/* ---- pxliGetLibVersion: the static version record of this build */
PXL_API const PxlLibVersion* PXL_CALL pxliGetLibVersion(void);

#ifdef __cplusplus
}
#endif
#endif /* PXLI_H */
