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

/* ---- pxliFilterBox: 8u: by area and layout, truncated (C1, C4), rounded (C3, AC4), nearest /9 at 3x3 */
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterBox_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    PxlSize maskSize, PxlPoint anchor);

/* ---- pxliSumWindowRow: float sums of maskSize samples */
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_8u32f_C1R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_8u32f_C3R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_8u32f_C4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_16s32f_C1R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_16s32f_C3R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowRow_16s32f_C4R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);

/* ---- pxliSumWindowColumn: float sums of maskSize samples */
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_8u32f_C1R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_8u32f_C3R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_8u32f_C4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_16s32f_C1R(const Pxl16s* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_16s32f_C3R(const Pxl16s* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);
PXL_API PxlStatus PXL_CALL pxliSumWindowColumn_16s32f_C4R(const Pxl16s* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s maskSize, Pxl32s anchor);

/* ---- pxliFilterPrewittHoriz: row below minus row above */
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_16s_C4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_32f_C3R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_32f_C4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittHoriz_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliFilterPrewittVert: left column minus right column */
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_16s_C4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_32f_C3R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_32f_C4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterPrewittVert_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliFilterSobelHoriz: row below minus row above, 1 2 1 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliFilterSobelVert: left column minus right column, 1 2 1 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliFilterSharpen: (17 s - 3x3 sum) / 8, ties to even */
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterSharpen_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliFilterScharrHoriz: row below minus row above */
PXL_API PxlStatus PXL_CALL pxliFilterScharrHoriz_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterScharrHoriz_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterScharrHoriz_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliFilterScharrVert: right column minus left column */
PXL_API PxlStatus PXL_CALL pxliFilterScharrVert_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterScharrVert_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterScharrVert_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliFilterSobelHoriz: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHoriz_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelHorizMask: mask 33 is 3x3, any other 5x5 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelHorizMask_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelVert: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVert_8s16s_C1R(const Pxl8s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelVertMask: mask 33 is 3x3, any other 5x5 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelVertMask_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelHorizSecond: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelHorizSecond_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterSobelHorizSecond_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelHorizSecond: mask 33 is 3x3, any other 5x5 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelHorizSecond_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelVertSecond: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelVertSecond_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterSobelVertSecond_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelVertSecond: mask 33 is 3x3, any other 5x5 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelVertSecond_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelCross: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelCross_8u16s_C1R(const Pxl8u* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterSobelCross_8s16s_C1R(const Pxl8s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterSobelCross: mask 33 is 3x3, any other 5x5 */
PXL_API PxlStatus PXL_CALL pxliFilterSobelCross_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterLaplace: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterLaplace */
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLaplace_8s16s_C1R(const Pxl8s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterGauss: mask 33 (/16, ties to even) or 55 (/571, nearest) */
PXL_API PxlStatus PXL_CALL pxliFilterGauss_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterGauss_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterHipass: mask 33 (the Laplace filter) or 55 (25 s - 5x5 sum) */
PXL_API PxlStatus PXL_CALL pxliFilterHipass_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterHipass_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterLowpass: mask 33 (/9) or 55 (/25), nearest */
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterLowpass_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterRobertsUp: s(x, y) - s(x+1, y-1), saturated */
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsUp_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliFilterRobertsDown: s(x, y) - s(x-1, y-1), saturated */
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_32f_C3R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliFilterRobertsDown_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliFilter: integer kernel / divisor (16s through float taps) */
PXL_API PxlStatus PXL_CALL pxliFilter_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor, Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor, Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor, Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilter_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, PxlSize kernelSize, PxlPoint anchor,
    Pxl32s divisor);

/* ---- pxliFilter */
PXL_API PxlStatus PXL_CALL pxliFilter_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);

/* ---- pxliFilter32f: float kernel, rounded to the nearest, saturated */
PXL_API PxlStatus PXL_CALL pxliFilter32f_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilter32f_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, PxlSize kernelSize, PxlPoint anchor);

/* ---- pxliFilterRow: integer kernel / divisor (16s through float taps) */
PXL_API PxlStatus PXL_CALL pxliFilterRow_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s xAnchor,
    Pxl32s divisor);

/* ---- pxliFilterRow */
PXL_API PxlStatus PXL_CALL pxliFilterRow_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);

/* ---- pxliFilterRow32f: float kernel, rounded to the nearest, saturated */
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterRow32f_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s xAnchor);

/* ---- pxliFilterColumn: integer kernel / divisor (16s through float taps) */
PXL_API PxlStatus PXL_CALL pxliFilterColumn_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* kernel, Pxl32s kernelLength, Pxl32s yAnchor,
    Pxl32s divisor);

/* ---- pxliFilterColumn */
PXL_API PxlStatus PXL_CALL pxliFilterColumn_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);

/* ---- pxliFilterColumn32f: float kernel, rounded to the nearest, saturated */
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);
PXL_API PxlStatus PXL_CALL pxliFilterColumn32f_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32f* kernel, Pxl32s kernelLength, Pxl32s yAnchor);

/* ---- pxliFilterMedian: odd width and height, any anchor */
PXL_API PxlStatus PXL_CALL pxliFilterMedian_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMedian_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliFilterMedianHoriz: mask 31 or 51 */
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_16s_C4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianHoriz_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterMedianVert: mask 13 or 15 */
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianVert_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterMedianCross: mask 33 or 55 */
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianCross_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliFilterMedianColor: vector median, L1 distance, ties to the first in column order */
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_32f_C3R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);
PXL_API PxlStatus PXL_CALL pxliFilterMedianColor_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32s mask);

/* ---- pxliErode: over the non-zero cells of the mask */
PXL_API PxlStatus PXL_CALL pxliErode_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliErode */
PXL_API PxlStatus PXL_CALL pxliErode_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliErode_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliErode3x3: all nine cells */
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliErode3x3_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);

/* ---- pxliDilate: over the non-zero cells of the mask */
PXL_API PxlStatus PXL_CALL pxliDilate_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliDilate */
PXL_API PxlStatus PXL_CALL pxliDilate_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliDilate_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* mask, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliDilate3x3: all nine cells */
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliDilate3x3_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi);

/* ---- pxliFilterMin: over the whole rectangle */
PXL_API PxlStatus PXL_CALL pxliFilterMin_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMin_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);

/* ---- pxliFilterMax: over the whole rectangle */
PXL_API PxlStatus PXL_CALL pxliFilterMax_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);
PXL_API PxlStatus PXL_CALL pxliFilterMax_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, PxlSize maskSize, PxlPoint anchor);

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

/* ---- pxliAffineQueries: quadrangles (top-left, top-right, bottom-right, bottom-left) and bounds ((min x, min y), (max x, max y)) of a source rectangle; angles in degrees */
PXL_API PxlStatus PXL_CALL pxliGetAffineQuad(PxlRect srcRoi, double (*quad)[2],
    const double (*coeffs)[3]);
PXL_API PxlStatus PXL_CALL pxliGetAffineBound(PxlRect srcRoi, double (*bound)[2],
    const double (*coeffs)[3]);
PXL_API PxlStatus PXL_CALL pxliGetAffineTransform(PxlRect srcRoi, const double (*quad)[2],
    double (*coeffs)[3]);
PXL_API PxlStatus PXL_CALL pxliGetRotateQuad(PxlRect srcRoi, double (*quad)[2], double angle,
    double xShift, double yShift);
PXL_API PxlStatus PXL_CALL pxliGetRotateBound(PxlRect srcRoi, double (*bound)[2], double angle,
    double xShift, double yShift);
PXL_API PxlStatus PXL_CALL pxliGetRotateShift(double xCenter, double yCenter, double angle,
    double* xShift, double* yShift);
PXL_API PxlStatus PXL_CALL pxliAddRotateShift(double xCenter, double yCenter, double angle,
    double* xShift, double* yShift);
PXL_API PxlStatus PXL_CALL pxliGetShearQuad(PxlRect srcRoi, double (*quad)[2], double xShear,
    double yShear, double xShift, double yShift);
PXL_API PxlStatus PXL_CALL pxliGetShearBound(PxlRect srcRoi, double (*bound)[2], double xShear,
    double yShear, double xShift, double yShift);

/* ---- pxliWarpAffine: dst over the image of srcRoi through the forward transform coeffs, by spans; modes 1, 2, 4, or-ed with pxlInterSmoothEdge */
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_P3R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_8u_P4R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_AC4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_AC4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffine_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);

/* ---- pxliWarpAffineBack: the same with coeffs mapping dst to src; the smoothing flag has no effect */
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_AC4R(const Pxl8u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, const double (*coeffs)[3],
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_P3R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_8u_P4R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_C1R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_C3R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_C4R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_AC4R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_C1R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_C3R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_C4R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_AC4R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineBack_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi,
    const double (*coeffs)[3], int interpolation);

/* ---- pxliWarpAffineQuad: srcQuad of src onto dstQuad of dst (a fourth vertex off the parallelogram gives +28) */
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* dst, int dstStep, PxlRect dstRoi,
    const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* dst, int dstStep, PxlRect dstRoi,
    const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* dst, int dstStep, PxlRect dstRoi,
    const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_AC4R(const Pxl8u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_P3R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_8u_P4R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl8u* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_C1R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_C3R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_C4R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_AC4R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl16u* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_C1R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_C3R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_C4R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_AC4R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);
PXL_API PxlStatus PXL_CALL pxliWarpAffineQuad_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, const double (*srcQuad)[2], Pxl32f* const* dst, int dstStep,
    PxlRect dstRoi, const double (*dstQuad)[2], int interpolation);

/* ---- pxliRotate: rotation by angle degrees (counter-clockwise on screen) then the shift; right angles with whole shifts move pixels exactly */
PXL_API PxlStatus PXL_CALL pxliRotate_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_8u_P3R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_8u_P4R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_AC4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_AC4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xShift,
    double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotate_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xShift, double yShift, int interpolation);

/* ---- pxliRotateCenter: rotation by angle degrees about (xCenter, yCenter) */
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_P3R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_8u_P4R(const Pxl8u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_AC4R(const Pxl16u* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle, double xCenter,
    double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_AC4R(const Pxl32f* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRotateCenter_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double angle,
    double xCenter, double yCenter, int interpolation);

/* ---- pxliShear: x + xShear * y + xShift, yShear * x + y + yShift */
PXL_API PxlStatus PXL_CALL pxliShear_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_8u_P3R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_8u_P4R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_AC4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_P3R(const Pxl16u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_16u_P4R(const Pxl16u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_AC4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_P3R(const Pxl32f* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);
PXL_API PxlStatus PXL_CALL pxliShear_32f_P4R(const Pxl32f* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlRect dstRoi, double xShear, double yShear,
    double xShift, double yShift, int interpolation);

/* ---- pxliRemap: dst(x, y) = src at (xMap(x, y), yMap(x, y)); positions outside the source ROI leave dst as it was; modes 1, 2, 4 */
PXL_API PxlStatus PXL_CALL pxliRemap_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl8u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl8u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl8u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl8u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_8u_P3R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl8u* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_8u_P4R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl8u* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl16u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl16u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl16u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_AC4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl16u* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_P3R(const Pxl16u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl16u* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_16u_P4R(const Pxl16u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl16u* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl32f* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl32f* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl32f* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_AC4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep, Pxl32f* dst,
    int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_P3R(const Pxl32f* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl32f* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);
PXL_API PxlStatus PXL_CALL pxliRemap_32f_P4R(const Pxl32f* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, const Pxl32f* xMap, int xMapStep, const Pxl32f* yMap, int yMapStep,
    Pxl32f* const* dst, int dstStep, PxlSize dstRoiSize, int interpolation);

/* ---- pxliResize: the ROI of src scaled by xFactor, yFactor into dst; modes 1, 2, 4, 8 (area, factors at most 1), 16 (Lanczos, three lobes) */
PXL_API PxlStatus PXL_CALL pxliResize_8u_C1R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_8u_C3R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_8u_C4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_8u_AC4R(const Pxl8u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_8u_P3R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlSize dstRoiSize, double xFactor,
    double yFactor, int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_8u_P4R(const Pxl8u* const* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl8u* const* dst, int dstStep, PxlSize dstRoiSize, double xFactor,
    double yFactor, int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_C1R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_C3R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_C4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_AC4R(const Pxl16u* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl16u* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_P3R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlSize dstRoiSize,
    double xFactor, double yFactor, int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_16u_P4R(const Pxl16u* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl16u* const* dst, int dstStep, PxlSize dstRoiSize,
    double xFactor, double yFactor, int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_C1R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_C3R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_C4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_AC4R(const Pxl32f* src, PxlSize srcSize, int srcStep,
    PxlRect srcRoi, Pxl32f* dst, int dstStep, PxlSize dstRoiSize, double xFactor, double yFactor,
    int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_P3R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlSize dstRoiSize,
    double xFactor, double yFactor, int interpolation);
PXL_API PxlStatus PXL_CALL pxliResize_32f_P4R(const Pxl32f* const* src, PxlSize srcSize,
    int srcStep, PxlRect srcRoi, Pxl32f* const* dst, int dstStep, PxlSize dstRoiSize,
    double xFactor, double yFactor, int interpolation);

/* ---- pxliSum, pxliMean, pxliMin, pxliMax, pxliMinMax, pxliMinIndx, pxliMaxIndx, pxliCountInRange: per-channel results; 32f hint 2 takes the accurate route */
PXL_API PxlStatus PXL_CALL pxliSum_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* sum);
PXL_API PxlStatus PXL_CALL pxliSum_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi, Pxl64f* sum,
    Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliSum_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi, Pxl64f* sum,
    Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliSum_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi, Pxl64f* sum,
    Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliSum_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* sum, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliMean_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* mean);
PXL_API PxlStatus PXL_CALL pxliMean_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* mean, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliMean_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* mean, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliMean_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* mean, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliMean_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* mean, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliMin_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min);
PXL_API PxlStatus PXL_CALL pxliMax_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min,
    Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min);
PXL_API PxlStatus PXL_CALL pxliMax_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min,
    Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min);
PXL_API PxlStatus PXL_CALL pxliMax_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min,
    Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* min);
PXL_API PxlStatus PXL_CALL pxliMax_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi, Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* min, Pxl8u* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl8u* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min);
PXL_API PxlStatus PXL_CALL pxliMax_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min, Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min);
PXL_API PxlStatus PXL_CALL pxliMax_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min, Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min);
PXL_API PxlStatus PXL_CALL pxliMax_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min, Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min);
PXL_API PxlStatus PXL_CALL pxliMax_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* min, Pxl16s* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl16s* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min);
PXL_API PxlStatus PXL_CALL pxliMax_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min, Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min);
PXL_API PxlStatus PXL_CALL pxliMax_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min, Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min);
PXL_API PxlStatus PXL_CALL pxliMax_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min, Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMin_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min);
PXL_API PxlStatus PXL_CALL pxliMax_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinMax_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* min, Pxl32f* max);
PXL_API PxlStatus PXL_CALL pxliMinIndx_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliMaxIndx_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32f* value, Pxl32s* indexX, Pxl32s* indexY);
PXL_API PxlStatus PXL_CALL pxliCountInRange_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* counts, Pxl8u lower, Pxl8u upper);
PXL_API PxlStatus PXL_CALL pxliCountInRange_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* counts, const Pxl8u* lower, const Pxl8u* upper);
PXL_API PxlStatus PXL_CALL pxliCountInRange_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* counts, const Pxl8u* lower, const Pxl8u* upper);
PXL_API PxlStatus PXL_CALL pxliCountInRange_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* counts, Pxl32f lower, Pxl32f upper);
PXL_API PxlStatus PXL_CALL pxliCountInRange_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* counts, const Pxl32f* lower, const Pxl32f* upper);
PXL_API PxlStatus PXL_CALL pxliCountInRange_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* counts, const Pxl32f* lower, const Pxl32f* upper);

/* ---- pxliNorm, pxliNormDiff, pxliNormRel: Inf, L1, L2; NormRel warns (+6) on a zero denominator */
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_8u_C1R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_8u_C1R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_8u_C3R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_8u_C3R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_8u_C4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_8u_C4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_Inf_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_Inf_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_8u_C1R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_8u_C3R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_8u_C4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L1_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L1_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L1_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_8u_C1R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_8u_C3R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_8u_C4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_8u_AC4R(const Pxl8u* src1, int src1Step,
    const Pxl8u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16s_C1R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16s_C3R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16s_C4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16u_C1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16u_C3R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16u_C4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, PxlSize roi, Pxl64f* value);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_L2_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormDiff_L2_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNormRel_L2_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, PxlSize roi, Pxl64f* value, Pxl32s hint);
PXL_API PxlStatus PXL_CALL pxliNorm_Inf_32s_C1R(const Pxl32s* src, int srcStep, PxlSize roi,
    Pxl64f* value);

/* ---- pxliHistogramRange, pxliHistogramEven: bin k counts levels[k] <= x < levels[k + 1] */
PXL_API PxlStatus PXL_CALL pxliHistogramRange_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* hist, const Pxl32s* levels, int nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* hist, const Pxl32s* levels, int nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* hist, const Pxl32s* levels, int nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32s* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_32f_C1R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* hist, const Pxl32f* levels, int nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_32f_C3R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32f* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_32f_C4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32f* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramRange_32f_AC4R(const Pxl32f* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, const Pxl32f* const* levels, const int* nLevels);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_8u_C1R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* hist, Pxl32s* levels, int nLevels, Pxl32s lowerLevel, Pxl32s upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_8u_C3R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_8u_C4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_8u_AC4R(const Pxl8u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16s_C1R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* hist, Pxl32s* levels, int nLevels, Pxl32s lowerLevel, Pxl32s upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16s_C3R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16s_C4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16s_AC4R(const Pxl16s* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16u_C1R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* hist, Pxl32s* levels, int nLevels, Pxl32s lowerLevel, Pxl32s upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16u_C3R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16u_C4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);
PXL_API PxlStatus PXL_CALL pxliHistogramEven_16u_AC4R(const Pxl16u* src, int srcStep, PxlSize roi,
    Pxl32s* const* hist, Pxl32s* const* levels, const int* nLevels, const Pxl32s* lowerLevel,
    const Pxl32s* upperLevel);

/* ---- pxliCopyConstBorder: src placed at (top, left) of a dstRoi image, the rest filled with value */
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_8u_C1R(const Pxl8u* src, int srcStep, PxlSize srcRoi,
    Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left, Pxl8u value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_8u_C3R(const Pxl8u* src, int srcStep, PxlSize srcRoi,
    Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_8u_C4R(const Pxl8u* src, int srcStep, PxlSize srcRoi,
    Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_8u_AC4R(const Pxl8u* src, int srcStep,
    PxlSize srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_16s_C1R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left, Pxl16s value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_16s_C3R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_16s_C4R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_16s_AC4R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_32s_C1R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left, Pxl32s value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_32s_C3R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl32s* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_32s_C4R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl32s* value);
PXL_API PxlStatus PXL_CALL pxliCopyConstBorder_32s_AC4R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left,
    const Pxl32s* value);

/* ---- pxliCopyReplicateBorder: src placed at (top, left), edges repeated outwards; in place: srcDst is the source's origin inside the larger image */
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C1R(const Pxl8u* src, int srcStep,
    PxlSize srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C1IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C3R(const Pxl8u* src, int srcStep,
    PxlSize srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C3IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C4R(const Pxl8u* src, int srcStep,
    PxlSize srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_C4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_AC4R(const Pxl8u* src, int srcStep,
    PxlSize srcRoi, Pxl8u* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_8u_AC4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C1R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C1IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C3R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C3IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C4R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_C4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_AC4R(const Pxl16s* src, int srcStep,
    PxlSize srcRoi, Pxl16s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C1R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C1IR(Pxl32s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C3R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C3IR(Pxl32s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C4R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_C4IR(Pxl32s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_AC4R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyReplicateBorder_32s_AC4IR(Pxl32s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);

/* ---- pxliCopyWrapBorder: the periodic repeat of src, src at (top, left) */
PXL_API PxlStatus PXL_CALL pxliCopyWrapBorder_32s_C1R(const Pxl32s* src, int srcStep,
    PxlSize srcRoi, Pxl32s* dst, int dstStep, PxlSize dstRoi, int top, int left);
PXL_API PxlStatus PXL_CALL pxliCopyWrapBorder_32s_C1IR(Pxl32s* srcDst, int srcDstStep,
    PxlSize srcRoi, PxlSize dstRoi, int top, int left);

/* ---- pxliMirror: axis 0 reverses the row order, 1 each row, 2 both */
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C1IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C3IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_C4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_16u_AC4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C1IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C3IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_C4IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi,
    int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_AC4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, int axis);
PXL_API PxlStatus PXL_CALL pxliMirror_32s_AC4IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi,
    int axis);

/* ---- pxliTranspose: dst is roi.height pixels wide and roi.width rows high; in place: square only */
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C1IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C3IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_16u_C4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C1IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C3IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliTranspose_32s_C4IR(Pxl32s* srcDst, int srcDstStep, PxlSize roi);

/* ---- pxliConvert: the value in the destination type, saturated */
PXL_API PxlStatus PXL_CALL pxliConvert_8u16u_C1R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16u_C3R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16u_C4R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16u_AC4R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u8u_C1R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u8u_C3R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u8u_C4R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u8u_AC4R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16s_C3R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16s_C4R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u16s_AC4R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s8u_C1R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s8u_C3R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s8u_C4R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s8u_AC4R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32f_C1R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32f_C3R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32f_C4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32f_AC4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s32f_C1R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s32f_C3R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s32f_C4R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16s32f_AC4R(const Pxl16s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32f_C1R(const Pxl8s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32f_C3R(const Pxl8s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32f_C4R(const Pxl8s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32f_AC4R(const Pxl8s* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32f_C1R(const Pxl16u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32f_C3R(const Pxl16u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32f_C4R(const Pxl16u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32f_AC4R(const Pxl16u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32s_C1R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32s_C3R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32s_C4R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u32s_AC4R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8u_C1R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8u_C3R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8u_C4R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8u_AC4R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32s_C1R(const Pxl8s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32s_C3R(const Pxl8s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32s_C4R(const Pxl8s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8s32s_AC4R(const Pxl8s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8s_C1R(const Pxl32s* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8s_C3R(const Pxl32s* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8s_C4R(const Pxl32s* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_32s8s_AC4R(const Pxl32s* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32s_C1R(const Pxl16u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32s_C3R(const Pxl16u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32s_C4R(const Pxl16u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_16u32s_AC4R(const Pxl16u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);

/* ---- pxliConvert: clamped to the destination, then rounded: pxlRndNear to nearest even, else truncated */
PXL_API PxlStatus PXL_CALL pxliConvert_32f8u_C1R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8u_C3R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8u_C4R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8u_AC4R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16s_C1R(const Pxl32f* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16s_C3R(const Pxl32f* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16s_C4R(const Pxl32f* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16s_AC4R(const Pxl32f* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8s_C1R(const Pxl32f* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8s_C3R(const Pxl32f* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8s_C4R(const Pxl32f* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f8s_AC4R(const Pxl32f* src, int srcStep, Pxl8s* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16u_C1R(const Pxl32f* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16u_C3R(const Pxl32f* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16u_C4R(const Pxl32f* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int roundMode);
PXL_API PxlStatus PXL_CALL pxliConvert_32f16u_AC4R(const Pxl32f* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, int roundMode);

/* ---- pxliConvert: one bit per pixel, most significant bit first: set bits are 255; bytes to bits by error diffusion */
PXL_API PxlStatus PXL_CALL pxliConvert_1u8u_C1R(const Pxl8u* src, int srcStep, int srcBitOffset,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliConvert_8u1u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, int dstBitOffset, PxlSize roi, Pxl8u threshold);

/* ---- pxliScale: the 8u range onto the whole destination range */
PXL_API PxlStatus PXL_CALL pxliScale_8u16u_C1R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16u_C3R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16u_C4R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16u_AC4R(const Pxl8u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16s_C3R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16s_C4R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u16s_AC4R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u32s_C1R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u32s_C3R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u32s_C4R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliScale_8u32s_AC4R(const Pxl8u* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);

/* ---- pxliScale: the 8u range onto [vMin, vMax] and back; pxlStsScaleRange unless vMax > vMin */
PXL_API PxlStatus PXL_CALL pxliScale_8u32f_C1R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_8u32f_C3R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_8u32f_C4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_8u32f_AC4R(const Pxl8u* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_32f8u_C1R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_32f8u_C3R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_32f8u_C4R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);
PXL_API PxlStatus PXL_CALL pxliScale_32f8u_AC4R(const Pxl32f* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl32f vMin, Pxl32f vMax);

/* ---- pxliScale: the whole source range onto 8u: integer shifts, or x*a+b with pxlAlgHintAccurate */
PXL_API PxlStatus PXL_CALL pxliScale_16u8u_C1R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16u8u_C3R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16u8u_C4R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16u8u_AC4R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16s8u_C1R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16s8u_C3R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16s8u_C4R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_16s8u_AC4R(const Pxl16s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_32s8u_C1R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_32s8u_C3R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_32s8u_C4R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);
PXL_API PxlStatus PXL_CALL pxliScale_32s8u_AC4R(const Pxl32s* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, int hint);

/* ---- pxliCopy: dst = src; AC4 leaves the alpha of dst */
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_AC4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliCopy */
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C1MR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3MR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C4MR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_AC4MR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C1MR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3MR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C4MR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_AC4MR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C1MR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3MR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C4MR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_AC4MR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C1MR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3MR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C4MR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_AC4MR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl8u* mask, int maskStep);

/* ---- pxliCopy */
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3CR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C4CR(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3CR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C4CR(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3CR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C4CR(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3CR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C4CR(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliCopy */
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C4C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C1C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C1C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_AC4C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C4C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C1C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C1C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_AC4C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3C1R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C4C1R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C1C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C1C4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_AC4C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3AC4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C4C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C1C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C1C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_AC4C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliCopy */
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C3P3R(const Pxl8u* src, int srcStep, Pxl8u* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_C4P4R(const Pxl8u* src, int srcStep, Pxl8u* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_P3C3R(const Pxl8u* const* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_8u_P4C4R(const Pxl8u* const* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C3P3R(const Pxl16s* src, int srcStep, Pxl16s* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_C4P4R(const Pxl16s* src, int srcStep, Pxl16s* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_P3C3R(const Pxl16s* const* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_16s_P4C4R(const Pxl16s* const* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C3P3R(const Pxl32s* src, int srcStep, Pxl32s* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_C4P4R(const Pxl32s* src, int srcStep, Pxl32s* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_P3C3R(const Pxl32s* const* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32s_P4C4R(const Pxl32s* const* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C3P3R(const Pxl32f* src, int srcStep, Pxl32f* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_C4P4R(const Pxl32f* src, int srcStep, Pxl32f* const* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_P3C3R(const Pxl32f* const* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliCopy_32f_P4C4R(const Pxl32f* const* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi);

/* ---- pxliSet: every processed sample = value (C1, CR: by value; else one per channel) */
PXL_API PxlStatus PXL_CALL pxliSet_8u_C1R(Pxl8u value, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_8u_C3R(const Pxl8u* value, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_8u_C4R(const Pxl8u* value, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_8u_AC4R(const Pxl8u* value, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C1R(Pxl16s value, Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C3R(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C4R(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_AC4R(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C1R(Pxl32s value, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C3R(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C4R(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_AC4R(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C1R(Pxl32f value, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C3R(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C4R(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_AC4R(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi);

/* ---- pxliSet */
PXL_API PxlStatus PXL_CALL pxliSet_8u_C3CR(Pxl8u value, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_8u_C4CR(Pxl8u value, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C3CR(Pxl16s value, Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C4CR(Pxl16s value, Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C3CR(Pxl32s value, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C4CR(Pxl32s value, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C3CR(Pxl32f value, Pxl32f* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C4CR(Pxl32f value, Pxl32f* dst, int dstStep, PxlSize roi);

/* ---- pxliSet */
PXL_API PxlStatus PXL_CALL pxliSet_8u_C1MR(Pxl8u value, Pxl8u* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_8u_C3MR(const Pxl8u* value, Pxl8u* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_8u_C4MR(const Pxl8u* value, Pxl8u* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_8u_AC4MR(const Pxl8u* value, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C1MR(Pxl16s value, Pxl16s* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C3MR(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_16s_C4MR(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_16s_AC4MR(const Pxl16s* value, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C1MR(Pxl32s value, Pxl32s* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C3MR(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32s_C4MR(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32s_AC4MR(const Pxl32s* value, Pxl32s* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C1MR(Pxl32f value, Pxl32f* dst, int dstStep, PxlSize roi,
    const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C3MR(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32f_C4MR(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);
PXL_API PxlStatus PXL_CALL pxliSet_32f_AC4MR(const Pxl32f* value, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl8u* mask, int maskStep);

/* ---- pxliDup: each of the three samples of dst = src */
PXL_API PxlStatus PXL_CALL pxliDup_8u_C1C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);

/* ---- pxliSwapChannels: dst[c] = src[dstOrder[c]], entries 0 to 2, not necessarily a permutation */
PXL_API PxlStatus PXL_CALL pxliSwapChannels_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_32s_C3R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_32s_AC4R(const Pxl32s* src, int srcStep, Pxl32s* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const int* dstOrder);
PXL_API PxlStatus PXL_CALL pxliSwapChannels_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const int* dstOrder);

/* ---- pxliSwapChannels */
PXL_API PxlStatus PXL_CALL pxliSwapChannels_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const int* dstOrder);

/* ---- pxliAlphaComp: src1 composed with src2 by the operator; AC4 and AP4 write the alpha result */
PXL_API PxlStatus PXL_CALL pxliAlphaComp_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaComp_8u_AC1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaComp_8u_AP4R(const Pxl8u* const* src1, int src1Step,
    const Pxl8u* const* src2, int src2Step, Pxl8u* const* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaComp_16u_AC4R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaComp_16u_AC1R(const Pxl16u* src1, int src1Step,
    const Pxl16u* src2, int src2Step, Pxl16u* dst, int dstStep, PxlSize roi, int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaComp_16u_AP4R(const Pxl16u* const* src1, int src1Step,
    const Pxl16u* const* src2, int src2Step, Pxl16u* const* dst, int dstStep, PxlSize roi,
    int alphaType);

/* ---- pxliAlphaCompC: composition with one constant alpha per source */
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_8u_C1R(const Pxl8u* src1, int src1Step, Pxl8u alpha1,
    const Pxl8u* src2, int src2Step, Pxl8u alpha2, Pxl8u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_8u_C3R(const Pxl8u* src1, int src1Step, Pxl8u alpha1,
    const Pxl8u* src2, int src2Step, Pxl8u alpha2, Pxl8u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_8u_C4R(const Pxl8u* src1, int src1Step, Pxl8u alpha1,
    const Pxl8u* src2, int src2Step, Pxl8u alpha2, Pxl8u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_8u_AC4R(const Pxl8u* src1, int src1Step, Pxl8u alpha1,
    const Pxl8u* src2, int src2Step, Pxl8u alpha2, Pxl8u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_8u_AP4R(const Pxl8u* const* src1, int src1Step,
    Pxl8u alpha1, const Pxl8u* const* src2, int src2Step, Pxl8u alpha2, Pxl8u* const* dst,
    int dstStep, PxlSize roi, int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_16u_C1R(const Pxl16u* src1, int src1Step, Pxl16u alpha1,
    const Pxl16u* src2, int src2Step, Pxl16u alpha2, Pxl16u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_16u_C3R(const Pxl16u* src1, int src1Step, Pxl16u alpha1,
    const Pxl16u* src2, int src2Step, Pxl16u alpha2, Pxl16u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_16u_C4R(const Pxl16u* src1, int src1Step, Pxl16u alpha1,
    const Pxl16u* src2, int src2Step, Pxl16u alpha2, Pxl16u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_16u_AC4R(const Pxl16u* src1, int src1Step, Pxl16u alpha1,
    const Pxl16u* src2, int src2Step, Pxl16u alpha2, Pxl16u* dst, int dstStep, PxlSize roi,
    int alphaType);
PXL_API PxlStatus PXL_CALL pxliAlphaCompC_16u_AP4R(const Pxl16u* const* src1, int src1Step,
    Pxl16u alpha1, const Pxl16u* const* src2, int src2Step, Pxl16u alpha2, Pxl16u* const* dst,
    int dstStep, PxlSize roi, int alphaType);

/* ---- pxliAlphaPremul: colour samples times the pixel's alpha; alpha unchanged */
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_8u_AP4R(const Pxl8u* const* src, int srcStep,
    Pxl8u* const* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_8u_AP4IR(Pxl8u* const* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_16u_AC4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_16u_AP4R(const Pxl16u* const* src, int srcStep,
    Pxl16u* const* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremul_16u_AP4IR(Pxl16u* const* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliAlphaPremulC: every sample times the constant alpha */
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u alpha,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C1IR(Pxl8u alpha, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u alpha,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C3IR(Pxl8u alpha, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u alpha,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_C4IR(Pxl8u alpha, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u alpha,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_AC4IR(Pxl8u alpha, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_AP4R(const Pxl8u* const* src, int srcStep,
    Pxl8u alpha, Pxl8u* const* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_8u_AP4IR(Pxl8u alpha, Pxl8u* const* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u alpha,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C1IR(Pxl16u alpha, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u alpha,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C3IR(Pxl16u alpha, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u alpha,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_C4IR(Pxl16u alpha, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u alpha,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_AC4IR(Pxl16u alpha, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_AP4R(const Pxl16u* const* src, int srcStep,
    Pxl16u alpha, Pxl16u* const* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAlphaPremulC_16u_AP4IR(Pxl16u alpha, Pxl16u* const* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliCompare: dst = 255 where src1 (relation) src2 holds in every channel (AC4: the colour ones), else 0; a relation outside 0..4 writes nothing */
PXL_API PxlStatus PXL_CALL pxliCompare_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_16s_C1R(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_16s_C3R(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_16s_C4R(const Pxl16s* src1, int src1Step, const Pxl16s* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_16s_AC4R(const Pxl16s* src1, int src1Step,
    const Pxl16s* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_32f_C1R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_32f_C3R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_32f_C4R(const Pxl32f* src1, int src1Step, const Pxl32f* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompare_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);

/* ---- pxliCompareC: dst = 255 where src (relation) value holds in every channel; >= is "not <" and > "not <=" */
PXL_API PxlStatus PXL_CALL pxliCompareC_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_16s_C3R(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_16s_C4R(const Pxl16s* src, int srcStep, const Pxl16s* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_16s_AC4R(const Pxl16s* src, int srcStep,
    const Pxl16s* value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_32f_C3R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_32f_C4R(const Pxl32f* src, int srcStep, const Pxl32f* value,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliCompareC_32f_AC4R(const Pxl32f* src, int srcStep,
    const Pxl32f* value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32s relation);

/* ---- pxliCompareEqualEps: dst = 255 where |src1 - src2| <= eps in every channel; eps below 0 or NaN is refused */
PXL_API PxlStatus PXL_CALL pxliCompareEqualEps_32f_C1R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEps_32f_C3R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEps_32f_C4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEps_32f_AC4R(const Pxl32f* src1, int src1Step,
    const Pxl32f* src2, int src2Step, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);

/* ---- pxliCompareEqualEpsC: dst = 255 where |src - value| <= eps in every channel */
PXL_API PxlStatus PXL_CALL pxliCompareEqualEpsC_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEpsC_32f_C3R(const Pxl32f* src, int srcStep,
    const Pxl32f* value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEpsC_32f_C4R(const Pxl32f* src, int srcStep,
    const Pxl32f* value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);
PXL_API PxlStatus PXL_CALL pxliCompareEqualEpsC_32f_AC4R(const Pxl32f* src, int srcStep,
    const Pxl32f* value, Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f eps);

/* ---- pxliAnd: dst = src1 & src2; AC4 leaves the alpha of dst */
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C1IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C3IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_C4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_8u_AC4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C1R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C1IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C3R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C3IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_C4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_AC4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_16u_AC4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C1R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C1IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C3R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C3IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_C4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_AC4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAnd_32s_AC4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliAndC: dst = src & value (one constant per channel) */
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u value, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C1IR(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C3IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_C4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_8u_AC4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C1IR(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C3R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C3IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_C4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_AC4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_16u_AC4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C1IR(Pxl32s value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C3R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C3IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_C4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_AC4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliAndC_32s_AC4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliOr: dst = src1 | src2; AC4 leaves the alpha of dst */
PXL_API PxlStatus PXL_CALL pxliOr_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_C1IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_C3IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_C4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_8u_AC4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C1R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C1IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C3R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C3IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_C4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_AC4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_16u_AC4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C1R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C1IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C3R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C3IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_C4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_AC4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOr_32s_AC4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliOrC: dst = src | value (one constant per channel) */
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u value, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C1IR(Pxl8u value, Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C3IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_C4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_8u_AC4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C1IR(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C3R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C3IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_C4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_AC4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_16u_AC4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C1IR(Pxl32s value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C3R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C3IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_C4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_AC4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliOrC_32s_AC4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliXor: dst = src1 ^ src2; AC4 leaves the alpha of dst */
PXL_API PxlStatus PXL_CALL pxliXor_8u_C1R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_C1IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_C3R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_C3IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_C4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_C4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_AC4R(const Pxl8u* src1, int src1Step, const Pxl8u* src2,
    int src2Step, Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_8u_AC4IR(const Pxl8u* src, int srcStep, Pxl8u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C1R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C1IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C3R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C3IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_C4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_AC4R(const Pxl16u* src1, int src1Step, const Pxl16u* src2,
    int src2Step, Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_16u_AC4IR(const Pxl16u* src, int srcStep, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C1R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C1IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C3R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C3IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_C4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_AC4R(const Pxl32s* src1, int src1Step, const Pxl32s* src2,
    int src2Step, Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXor_32s_AC4IR(const Pxl32s* src, int srcStep, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliXorC: dst = src ^ value (one constant per channel) */
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u value, Pxl8u* dst,
    int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C1IR(Pxl8u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C3IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_C4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl8u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_8u_AC4IR(const Pxl8u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C1IR(Pxl16u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C3R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C3IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_C4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_AC4R(const Pxl16u* src, int srcStep, const Pxl16u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_16u_AC4IR(const Pxl16u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C1R(const Pxl32s* src, int srcStep, Pxl32s value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C1IR(Pxl32s value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C3R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C3IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_C4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_AC4R(const Pxl32s* src, int srcStep, const Pxl32s* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliXorC_32s_AC4IR(const Pxl32s* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);

/* ---- pxliNot: dst = ~src */
PXL_API PxlStatus PXL_CALL pxliNot_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliNot_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi);

/* ---- pxliLShiftC: dst = src << value (a count per channel); counts from the sample width on give 0 */
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C1R(const Pxl8u* src, int srcStep, Pxl32u value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C1IR(Pxl32u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C3IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_C4IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_8u_AC4IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C1R(const Pxl16u* src, int srcStep, Pxl32u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C1IR(Pxl32u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C3R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C3IR(const Pxl32u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C4R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_C4IR(const Pxl32u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_AC4R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_16u_AC4IR(const Pxl32u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C1R(const Pxl32s* src, int srcStep, Pxl32u value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C1IR(Pxl32u value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C3R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C3IR(const Pxl32u* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C4R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_C4IR(const Pxl32u* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_AC4R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliLShiftC_32s_AC4IR(const Pxl32u* value, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliRShiftC: dst = src >> value; arithmetic for signed samples, where counts past 31 act as 31 */
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C1R(const Pxl8u* src, int srcStep, Pxl32u value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C1IR(Pxl32u value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C3R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C3IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C4R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_C4IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_AC4R(const Pxl8u* src, int srcStep, const Pxl32u* value,
    Pxl8u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8u_AC4IR(const Pxl32u* value, Pxl8u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C1R(const Pxl8s* src, int srcStep, Pxl32u value,
    Pxl8s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C1IR(Pxl32u value, Pxl8s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C3R(const Pxl8s* src, int srcStep, const Pxl32u* value,
    Pxl8s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C3IR(const Pxl32u* value, Pxl8s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C4R(const Pxl8s* src, int srcStep, const Pxl32u* value,
    Pxl8s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_C4IR(const Pxl32u* value, Pxl8s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_AC4R(const Pxl8s* src, int srcStep, const Pxl32u* value,
    Pxl8s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_8s_AC4IR(const Pxl32u* value, Pxl8s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C1R(const Pxl16u* src, int srcStep, Pxl32u value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C1IR(Pxl32u value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C3R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C3IR(const Pxl32u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C4R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_C4IR(const Pxl32u* value, Pxl16u* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_AC4R(const Pxl16u* src, int srcStep, const Pxl32u* value,
    Pxl16u* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16u_AC4IR(const Pxl32u* value, Pxl16u* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C1R(const Pxl16s* src, int srcStep, Pxl32u value,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C1IR(Pxl32u value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C3R(const Pxl16s* src, int srcStep, const Pxl32u* value,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C3IR(const Pxl32u* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C4R(const Pxl16s* src, int srcStep, const Pxl32u* value,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_C4IR(const Pxl32u* value, Pxl16s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_AC4R(const Pxl16s* src, int srcStep, const Pxl32u* value,
    Pxl16s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_16s_AC4IR(const Pxl32u* value, Pxl16s* srcDst,
    int srcDstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C1R(const Pxl32s* src, int srcStep, Pxl32u value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C1IR(Pxl32u value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C3R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C3IR(const Pxl32u* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C4R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_C4IR(const Pxl32u* value, Pxl32s* srcDst, int srcDstStep,
    PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_AC4R(const Pxl32s* src, int srcStep, const Pxl32u* value,
    Pxl32s* dst, int dstStep, PxlSize roi);
PXL_API PxlStatus PXL_CALL pxliRShiftC_32s_AC4IR(const Pxl32u* value, Pxl32s* srcDst,
    int srcDstStep, PxlSize roi);

/* ---- pxliLUT: values[k] for a sample in [levels[k], levels[k+1]); others unchanged */
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u* dst, int dstStep,
    PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C1IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);

/* ---- pxliLUT */
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C3IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u* dst, int dstStep,
    PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_C4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_16u_AC4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUT */
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);

/* ---- pxliLUT */
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst, int dstStep,
    PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUT_Linear: values interpolated linearly between levels */
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C1IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);

/* ---- pxliLUT_Linear */
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C3IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_C4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_16u_AC4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUT_Linear */
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);

/* ---- pxliLUT_Linear */
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Linear_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUT_Cubic: cubics through four consecutive levels */
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C1R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C1IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* values, const Pxl32s* levels, Pxl32s nLevels);

/* ---- pxliLUT_Cubic */
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C3R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C3IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_C4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_AC4R(const Pxl16u* src, int srcStep, Pxl16u* dst,
    int dstStep, PxlSize roi, const Pxl32s* const* values, const Pxl32s* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_16u_AC4IR(Pxl16u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32s* const* values, const Pxl32s* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUT_Cubic */
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* values, const Pxl32f* levels, Pxl32s nLevels);

/* ---- pxliLUT_Cubic */
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* const* values, const Pxl32f* const* levels,
    const Pxl32s* nLevels);
PXL_API PxlStatus PXL_CALL pxliLUT_Cubic_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* const* values, const Pxl32f* const* levels, const Pxl32s* nLevels);

/* ---- pxliLUTPalette: table[src & ((1 << nBitSize) - 1)], one table entry per pixel */
PXL_API PxlStatus PXL_CALL pxliLUTPalette_8u24u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* table, int nBitSize);

/* ---- pxliLUTPalette */
PXL_API PxlStatus PXL_CALL pxliLUTPalette_8u32u_C1R(const Pxl8u* src, int srcStep, Pxl32u* dst,
    int dstStep, PxlSize roi, const Pxl32u* table, int nBitSize);

/* ---- pxliLUTPalette */
PXL_API PxlStatus PXL_CALL pxliLUTPalette_16u8u_C1R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* table, int nBitSize);

/* ---- pxliLUTPalette */
PXL_API PxlStatus PXL_CALL pxliLUTPalette_16u24u_C1R(const Pxl16u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* table, int nBitSize);

/* ---- pxliLUTPalette */
PXL_API PxlStatus PXL_CALL pxliLUTPalette_16u32u_C1R(const Pxl16u* src, int srcStep, Pxl32u* dst,
    int dstStep, PxlSize roi, const Pxl32u* table, int nBitSize);

/* ---- pxliThreshold: relation 4: min(src, threshold); 0: max(src, threshold); a NaN sample gives the threshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold, Pxl32s relation);

/* ---- pxliThreshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, Pxl32s relation);

/* ---- pxliThreshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold, Pxl32s relation);

/* ---- pxliThreshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, Pxl32s relation);

/* ---- pxliThreshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold, Pxl32s relation);

/* ---- pxliThreshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, Pxl32s relation);

/* ---- pxliThreshold_GT: min(src, threshold) */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold);

/* ---- pxliThreshold_GT */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold);

/* ---- pxliThreshold_GT */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold);

/* ---- pxliThreshold_GT */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold);

/* ---- pxliThreshold_GT */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold);

/* ---- pxliThreshold_GT */
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_GT_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold);

/* ---- pxliThreshold_LT: max(src, threshold) */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold);

/* ---- pxliThreshold_LT */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold);

/* ---- pxliThreshold_LT */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold);

/* ---- pxliThreshold_LT */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold);

/* ---- pxliThreshold_LT */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold);

/* ---- pxliThreshold_LT */
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold);
PXL_API PxlStatus PXL_CALL pxliThreshold_LT_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold);

/* ---- pxliThreshold_Val: relation 4: value where src > threshold (NaN kept); 0: value where src < threshold (NaN replaced); the relation is checked first of all */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold, Pxl8u value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold, Pxl8u value, Pxl32s relation);

/* ---- pxliThreshold_Val */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value, Pxl32s relation);

/* ---- pxliThreshold_Val */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold, Pxl16s value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold, Pxl16s value, Pxl32s relation);

/* ---- pxliThreshold_Val */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_16s_AC4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value, Pxl32s relation);

/* ---- pxliThreshold_Val */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold, Pxl32f value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold, Pxl32f value, Pxl32s relation);

/* ---- pxliThreshold_Val */
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value, Pxl32s relation);
PXL_API PxlStatus PXL_CALL pxliThreshold_Val_32f_AC4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value, Pxl32s relation);

/* ---- pxliThreshold_GTVal: value where src > threshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold, Pxl8u value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold, Pxl8u value);

/* ---- pxliThreshold_GTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);

/* ---- pxliThreshold_GTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold, Pxl16s value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold, Pxl16s value);

/* ---- pxliThreshold_GTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);

/* ---- pxliThreshold_GTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold, Pxl32f value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold, Pxl32f value);

/* ---- pxliThreshold_GTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_GTVal_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);

/* ---- pxliThreshold_LTVal: value where src < threshold */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C1R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, Pxl8u threshold, Pxl8u value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C1IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    Pxl8u threshold, Pxl8u value);

/* ---- pxliThreshold_LTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C3R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C3IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_C4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_AC4R(const Pxl8u* src, int srcStep, Pxl8u* dst,
    int dstStep, PxlSize roi, const Pxl8u* threshold, const Pxl8u* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_8u_AC4IR(Pxl8u* srcDst, int srcDstStep, PxlSize roi,
    const Pxl8u* threshold, const Pxl8u* value);

/* ---- pxliThreshold_LTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, Pxl16s threshold, Pxl16s value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C1IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    Pxl16s threshold, Pxl16s value);

/* ---- pxliThreshold_LTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C3R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C3IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_C4IR(Pxl16s* srcDst, int srcDstStep, PxlSize roi,
    const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_AC4R(const Pxl16s* src, int srcStep, Pxl16s* dst,
    int dstStep, PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, const Pxl16s* threshold, const Pxl16s* value);

/* ---- pxliThreshold_LTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, Pxl32f threshold, Pxl32f value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C1IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    Pxl32f threshold, Pxl32f value);

/* ---- pxliThreshold_LTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C3IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_C4IR(Pxl32f* srcDst, int srcDstStep, PxlSize roi,
    const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTVal_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, const Pxl32f* threshold, const Pxl32f* value);

/* ---- pxliThreshold_LTValGTVal: valueLT below thresholdLT, valueGT above thresholdGT (NaN gives valueLT); thresholdGT below thresholdLT in any channel is refused */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_C1R(const Pxl8u* src, int srcStep,
    Pxl8u* dst, int dstStep, PxlSize roi, Pxl8u thresholdLT, Pxl8u valueLT, Pxl8u thresholdGT,
    Pxl8u valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_C1IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u thresholdLT, Pxl8u valueLT, Pxl8u thresholdGT, Pxl8u valueGT);

/* ---- pxliThreshold_LTValGTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_C3R(const Pxl8u* src, int srcStep,
    Pxl8u* dst, int dstStep, PxlSize roi, const Pxl8u* thresholdLT, const Pxl8u* valueLT,
    const Pxl8u* thresholdGT, const Pxl8u* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_C3IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, const Pxl8u* thresholdLT, const Pxl8u* valueLT, const Pxl8u* thresholdGT,
    const Pxl8u* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_AC4R(const Pxl8u* src, int srcStep,
    Pxl8u* dst, int dstStep, PxlSize roi, const Pxl8u* thresholdLT, const Pxl8u* valueLT,
    const Pxl8u* thresholdGT, const Pxl8u* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_8u_AC4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, const Pxl8u* thresholdLT, const Pxl8u* valueLT, const Pxl8u* thresholdGT,
    const Pxl8u* valueGT);

/* ---- pxliThreshold_LTValGTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_C1R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, Pxl16s thresholdLT, Pxl16s valueLT, Pxl16s thresholdGT,
    Pxl16s valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_C1IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s thresholdLT, Pxl16s valueLT, Pxl16s thresholdGT, Pxl16s valueGT);

/* ---- pxliThreshold_LTValGTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_C3R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, const Pxl16s* thresholdLT, const Pxl16s* valueLT,
    const Pxl16s* thresholdGT, const Pxl16s* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_C3IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, const Pxl16s* thresholdLT, const Pxl16s* valueLT, const Pxl16s* thresholdGT,
    const Pxl16s* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_AC4R(const Pxl16s* src, int srcStep,
    Pxl16s* dst, int dstStep, PxlSize roi, const Pxl16s* thresholdLT, const Pxl16s* valueLT,
    const Pxl16s* thresholdGT, const Pxl16s* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, const Pxl16s* thresholdLT, const Pxl16s* valueLT, const Pxl16s* thresholdGT,
    const Pxl16s* valueGT);

/* ---- pxliThreshold_LTValGTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_C1R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, Pxl32f thresholdLT, Pxl32f valueLT, Pxl32f thresholdGT,
    Pxl32f valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f thresholdLT, Pxl32f valueLT, Pxl32f thresholdGT, Pxl32f valueGT);

/* ---- pxliThreshold_LTValGTVal */
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_C3R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, const Pxl32f* thresholdLT, const Pxl32f* valueLT,
    const Pxl32f* thresholdGT, const Pxl32f* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, const Pxl32f* thresholdLT, const Pxl32f* valueLT, const Pxl32f* thresholdGT,
    const Pxl32f* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_AC4R(const Pxl32f* src, int srcStep,
    Pxl32f* dst, int dstStep, PxlSize roi, const Pxl32f* thresholdLT, const Pxl32f* valueLT,
    const Pxl32f* thresholdGT, const Pxl32f* valueGT);
PXL_API PxlStatus PXL_CALL pxliThreshold_LTValGTVal_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, const Pxl32f* thresholdLT, const Pxl32f* valueLT, const Pxl32f* thresholdGT,
    const Pxl32f* valueGT);

/* ---- pxliImageRamp, pxliAddRandUniform_Direct, pxliAddRandGauss_Direct: noise from a seed the caller carries; the last state is stored back */
PXL_API PxlStatus PXL_CALL pxliImageRamp_8u_C1R(Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8u_C3R(Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8u_C4R(Pxl8u* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8u_AC4R(Pxl8u* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8s_C1R(Pxl8s* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8s_C3R(Pxl8s* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8s_C4R(Pxl8s* dst, int dstStep, PxlSize roi, Pxl32f offset,
    Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_8s_AC4R(Pxl8s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16u_C1R(Pxl16u* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16u_C3R(Pxl16u* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16u_C4R(Pxl16u* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16u_AC4R(Pxl16u* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16s_C1R(Pxl16s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16s_C3R(Pxl16s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16s_C4R(Pxl16s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_16s_AC4R(Pxl16s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32s_C1R(Pxl32s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32s_C3R(Pxl32s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32s_C4R(Pxl32s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32s_AC4R(Pxl32s* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32f_C1R(Pxl32f* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32f_C3R(Pxl32f* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32f_C4R(Pxl32f* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliImageRamp_32f_AC4R(Pxl32f* dst, int dstStep, PxlSize roi,
    Pxl32f offset, Pxl32f slope, Pxl32s axis);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_8u_C1IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u low, Pxl8u high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_8u_C3IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u low, Pxl8u high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_8u_C4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u low, Pxl8u high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_8u_AC4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u low, Pxl8u high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_16s_C1IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s low, Pxl16s high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_16s_C3IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s low, Pxl16s high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_16s_C4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s low, Pxl16s high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s low, Pxl16s high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f low, Pxl32f high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f low, Pxl32f high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f low, Pxl32f high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandUniform_Direct_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f low, Pxl32f high, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_8u_C1IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u mean, Pxl8u deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_8u_C3IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u mean, Pxl8u deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_8u_C4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u mean, Pxl8u deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_8u_AC4IR(Pxl8u* srcDst, int srcDstStep,
    PxlSize roi, Pxl8u mean, Pxl8u deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_16s_C1IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s mean, Pxl16s deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_16s_C3IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s mean, Pxl16s deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_16s_C4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s mean, Pxl16s deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_16s_AC4IR(Pxl16s* srcDst, int srcDstStep,
    PxlSize roi, Pxl16s mean, Pxl16s deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f mean, Pxl32f deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f mean, Pxl32f deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f mean, Pxl32f deviation, Pxl32u* seed);
PXL_API PxlStatus PXL_CALL pxliAddRandGauss_Direct_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    PxlSize roi, Pxl32f mean, Pxl32f deviation, Pxl32u* seed);

/* ---- pxliDCT8x8: 8x8 discrete cosine transform of one block */
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_16s_C1(const Pxl16s* src, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_16s_C1I(Pxl16s* srcDst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_16s_C1R(const Pxl16s* src, int srcStep, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8FwdLS_8u16s_C1R(const Pxl8u* src, int srcStep, Pxl16s* dst,
    Pxl16s value);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_16s_C1(const Pxl16s* src, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_16s_C1I(Pxl16s* srcDst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_16s_C1R(const Pxl16s* src, Pxl16s* dst, int dstStep);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_16s8u_C1R(const Pxl16s* src, Pxl8u* dst, int dstStep);
PXL_API PxlStatus PXL_CALL pxliDCT8x8InvLSClip_16s8u_C1R(const Pxl16s* src, Pxl8u* dst, int dstStep,
    Pxl16s value, int clipMin, int clipMax);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_2x2_16s_C1(const Pxl16s* src, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_4x4_16s_C1(const Pxl16s* src, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_2x2_16s_C1I(Pxl16s* srcDst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_4x4_16s_C1I(Pxl16s* srcDst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_32f_C1(const Pxl32f* src, Pxl32f* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_32f_C1(const Pxl32f* src, Pxl32f* dst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Fwd_32f_C1I(Pxl32f* srcDst);
PXL_API PxlStatus PXL_CALL pxliDCT8x8Inv_32f_C1I(Pxl32f* srcDst);

/* ---- pxliZigzag: zigzag reorder of an 8x8 block */
PXL_API PxlStatus PXL_CALL pxliZigzagFwd8x8_16s_C1(const Pxl16s* src, Pxl16s* dst);
PXL_API PxlStatus PXL_CALL pxliZigzagInv8x8_16s_C1(const Pxl16s* src, Pxl16s* dst);

/* ---- pxliFFT: two-dimensional FFT of power-of-two sides; real spectra in the Pack layout */
PXL_API PxlStatus PXL_CALL pxliFFTInitAlloc_C_32fc(PxlFftCtx2D** spec, int orderX, int orderY,
    int flag, int hint);
PXL_API PxlStatus PXL_CALL pxliFFTFree_C_32fc(PxlFftCtx2D* spec);
PXL_API PxlStatus PXL_CALL pxliFFTGetBufSize_C_32fc(const PxlFftCtx2D* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliFFTInitAlloc_R_32f(PxlFftCtx2D** spec, int orderX, int orderY,
    int flag, int hint);
PXL_API PxlStatus PXL_CALL pxliFFTFree_R_32f(PxlFftCtx2D* spec);
PXL_API PxlStatus PXL_CALL pxliFFTGetBufSize_R_32f(const PxlFftCtx2D* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliFFTInitAlloc_R_32s(PxlFftCtx2D32s** spec, int orderX, int orderY,
    int flag, int hint);
PXL_API PxlStatus PXL_CALL pxliFFTFree_R_32s(PxlFftCtx2D32s* spec);
PXL_API PxlStatus PXL_CALL pxliFFTGetBufSize_R_32s(const PxlFftCtx2D32s* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_CToC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_CToC_32fc_C1IR(Pxl32fc* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_CToC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_CToC_32fc_C1IR(Pxl32fc* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlFftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_8u32s_C1RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_8u32s_C3RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_8u32s_C4RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTFwd_RToPack_8u32s_AC4RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32s8u_C1RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32s8u_C3RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32s8u_C4RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliFFTInv_PackToR_32s8u_AC4RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlFftCtx2D32s* spec, int scale, Pxl8u* buffer);

/* ---- pxliDFT: two-dimensional DFT of any size; real spectra in the Pack layout */
PXL_API PxlStatus PXL_CALL pxliDFTInitAlloc_C_32fc(PxlDftCtx2D** spec, PxlSize roi, int flag,
    int hint);
PXL_API PxlStatus PXL_CALL pxliDFTFree_C_32fc(PxlDftCtx2D* spec);
PXL_API PxlStatus PXL_CALL pxliDFTGetBufSize_C_32fc(const PxlDftCtx2D* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliDFTInitAlloc_R_32f(PxlDftCtx2D** spec, PxlSize roi, int flag,
    int hint);
PXL_API PxlStatus PXL_CALL pxliDFTFree_R_32f(PxlDftCtx2D* spec);
PXL_API PxlStatus PXL_CALL pxliDFTGetBufSize_R_32f(const PxlDftCtx2D* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliDFTInitAlloc_R_32s(PxlDftCtx2D32s** spec, PxlSize roi, int flag,
    int hint);
PXL_API PxlStatus PXL_CALL pxliDFTFree_R_32s(PxlDftCtx2D32s* spec);
PXL_API PxlStatus PXL_CALL pxliDFTGetBufSize_R_32s(const PxlDftCtx2D32s* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_CToC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_CToC_32fc_C1IR(Pxl32fc* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_CToC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_CToC_32fc_C1IR(Pxl32fc* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C1IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C3IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_C4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_AC4R(const Pxl32f* src, int srcStep, Pxl32f* dst,
    int dstStep, const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32f_AC4IR(Pxl32f* srcDst, int srcDstStep,
    const PxlDftCtx2D* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_8u32s_C1RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_8u32s_C3RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_8u32s_C4RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTFwd_RToPack_8u32s_AC4RSfs(const Pxl8u* src, int srcStep,
    Pxl32s* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32s8u_C1RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32s8u_C3RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32s8u_C4RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliDFTInv_PackToR_32s8u_AC4RSfs(const Pxl32s* src, int srcStep,
    Pxl8u* dst, int dstStep, const PxlDftCtx2D32s* spec, int scale, Pxl8u* buffer);

/* ---- pxliWT: one level of a separable wavelet transform with the caller's filters */
PXL_API PxlStatus PXL_CALL pxliWTFwdInitAlloc_32f_C1R(PxlWTFwdCtx** spec, const Pxl32f* pTapsLow,
    int lenLow, int anchorLow, const Pxl32f* pTapsHigh, int lenHigh, int anchorHigh);
PXL_API PxlStatus PXL_CALL pxliWTFwdFree_32f_C1R(PxlWTFwdCtx* spec);
PXL_API PxlStatus PXL_CALL pxliWTFwdGetBufSize_C1R(const PxlWTFwdCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliWTInvInitAlloc_32f_C1R(PxlWTInvCtx** spec, const Pxl32f* pTapsLow,
    int lenLow, int anchorLow, const Pxl32f* pTapsHigh, int lenHigh, int anchorHigh);
PXL_API PxlStatus PXL_CALL pxliWTInvFree_32f_C1R(PxlWTInvCtx* spec);
PXL_API PxlStatus PXL_CALL pxliWTInvGetBufSize_C1R(const PxlWTInvCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliWTFwd_32f_C1R(const Pxl32f* src, int srcStep, Pxl32f* dstLowLow,
    int dstLowLowStep, Pxl32f* dstHighLow, int dstHighLowStep, Pxl32f* dstLowHigh,
    int dstLowHighStep, Pxl32f* dstHighHigh, int dstHighHighStep, PxlSize roi,
    const PxlWTFwdCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliWTInv_32f_C1R(const Pxl32f* srcLowLow, int srcLowLowStep,
    const Pxl32f* srcHighLow, int srcHighLowStep, const Pxl32f* srcLowHigh, int srcLowHighStep,
    const Pxl32f* srcHighHigh, int srcHighHighStep, PxlSize roi, Pxl32f* dst, int dstStep,
    const PxlWTInvCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliWTFwdInitAlloc_32f_C3R(PxlWTFwdCtx** spec, const Pxl32f* pTapsLow,
    int lenLow, int anchorLow, const Pxl32f* pTapsHigh, int lenHigh, int anchorHigh);
PXL_API PxlStatus PXL_CALL pxliWTFwdFree_32f_C3R(PxlWTFwdCtx* spec);
PXL_API PxlStatus PXL_CALL pxliWTFwdGetBufSize_C3R(const PxlWTFwdCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliWTInvInitAlloc_32f_C3R(PxlWTInvCtx** spec, const Pxl32f* pTapsLow,
    int lenLow, int anchorLow, const Pxl32f* pTapsHigh, int lenHigh, int anchorHigh);
PXL_API PxlStatus PXL_CALL pxliWTInvFree_32f_C3R(PxlWTInvCtx* spec);
PXL_API PxlStatus PXL_CALL pxliWTInvGetBufSize_C3R(const PxlWTInvCtx* spec, int* size);
PXL_API PxlStatus PXL_CALL pxliWTFwd_32f_C3R(const Pxl32f* src, int srcStep, Pxl32f* dstLowLow,
    int dstLowLowStep, Pxl32f* dstHighLow, int dstHighLowStep, Pxl32f* dstLowHigh,
    int dstLowHighStep, Pxl32f* dstHighHigh, int dstHighHighStep, PxlSize roi,
    const PxlWTFwdCtx* spec, Pxl8u* buffer);
PXL_API PxlStatus PXL_CALL pxliWTInv_32f_C3R(const Pxl32f* srcLowLow, int srcLowLowStep,
    const Pxl32f* srcHighLow, int srcHighLowStep, const Pxl32f* srcLowHigh, int srcLowHighStep,
    const Pxl32f* srcHighHigh, int srcHighHighStep, PxlSize roi, Pxl32f* dst, int dstStep,
    const PxlWTInvCtx* spec, Pxl8u* buffer);

#ifdef __cplusplus
}
#endif
#endif /* PXLI_H */
