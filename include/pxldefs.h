/*
 * pxldefs.h - basic types, status codes and constants of libpxlia6.
 *
 * Every other public header of the library includes this one. It holds no
 * function declarations: only the sample types, the small records passed by
 * value, the status codes and the numeric constants that the functions take
 * as arguments.
 *
 * Numbers that appear in this file are part of the binary interface. They
 * are passed and returned as plain 32-bit integers, so changing one breaks
 * every caller that was compiled against the old value.
 *
 * The header is plain C and compiles as C99 or later and as C++.
 */

#ifndef PXLDEFS_H
#define PXLDEFS_H

#include <stdint.h>

/* ------------------------------------------------------------------------ */
/* Export and calling-convention markers                                     */
/* ------------------------------------------------------------------------ */

/*
 * PXL_API marks a function that is exported from the shared object. The
 * library is built with hidden visibility by default, so only functions
 * carrying this marker end up in the dynamic symbol table. A build may
 * define PXL_API itself before including this header.
 *
 * PXL_CALL stands where a calling convention would go. The library uses
 * the platform's default convention, so it is empty; it exists so that the
 * function headers spell every declaration the same way.
 */
#ifndef PXL_API
#  if defined(__GNUC__) && (__GNUC__ >= 4)
#    define PXL_API __attribute__((visibility("default")))
#  else
#    define PXL_API
#  endif
#endif

#ifndef PXL_CALL
#  define PXL_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------ */
/* Sample types                                                              */
/* ------------------------------------------------------------------------ */

/*
 * One typedef per sample code used in the function names: Pxl8u is the
 * sample of an "_8u_" function, Pxl32fc that of a "_32fc_" function, and
 * so on. The 1-bit ("1u") and 24-bit ("24u") codes have no type of their
 * own: bit images are addressed as bytes plus a bit offset, and 24-bit
 * palette output as three bytes per pixel.
 */
typedef uint8_t  Pxl8u;
typedef int8_t   Pxl8s;
typedef uint16_t Pxl16u;
typedef int16_t  Pxl16s;
typedef uint32_t Pxl32u;
typedef int32_t  Pxl32s;
typedef float    Pxl32f;
typedef int64_t  Pxl64s;
typedef double   Pxl64f;

/*
 * Complex samples: the real part comes first in memory, then the imaginary
 * part, with no padding. An array of N complex samples is therefore the
 * same memory as 2N real samples, which the library relies on when it
 * treats complex rows as real rows of twice the length.
 */
typedef struct { Pxl16s re; Pxl16s im; } Pxl16sc;
typedef struct { Pxl32s re; Pxl32s im; } Pxl32sc;
typedef struct { Pxl32f re; Pxl32f im; } Pxl32fc;
typedef struct { Pxl64f re; Pxl64f im; } Pxl64fc;

/* ------------------------------------------------------------------------ */
/* Geometry records, passed by value                                         */
/* ------------------------------------------------------------------------ */

/* A region size. width counts pixels, not samples or bytes. */
typedef struct {
    Pxl32s width;
    Pxl32s height;
} PxlSize;

/* A rectangle: top-left corner (x, y), then its size in pixels. */
typedef struct {
    Pxl32s x;
    Pxl32s y;
    Pxl32s width;
    Pxl32s height;
} PxlRect;

/* A pixel position: x is the column, y the row. Also used for anchors. */
typedef struct {
    Pxl32s x;
    Pxl32s y;
} PxlPoint;

/*
 * Affine coefficients and quadrangles have no record of their own: a
 * transform is passed as Pxl64f coeffs[2][3] (c00 c01 c02 / c10 c11 c12),
 * a quadrangle as Pxl64f quad[4][2] (top-left, top-right, bottom-right,
 * bottom-left, each as x, y) and a bounding box as Pxl64f bound[2][2]
 * ((min x, min y), (max x, max y)).
 */

/* ------------------------------------------------------------------------ */
/* Status codes                                                              */
/* ------------------------------------------------------------------------ */

/*
 * Every operation that can fail returns a PxlStatus; there is no other
 * error channel. 0 is success. A negative value is an error and, unless an
 * operation documents otherwise, no output has been written. A positive
 * value is a warning: the operation ran to the end and its output is
 * valid, the value telling which exceptional case occurred.
 *
 * The numbers are fixed and have gaps. -4 is used inside the filters to
 * make a fast path fall back to the plain loop and is never returned to a
 * caller, which is why it has no name here.
 */
typedef Pxl32s PxlStatus;

enum PxlStatusCode {
    /* Errors */
    pxlStsCompareOp        = -9999, /* relation not supported by the threshold family */
    pxlStsResizeEmpty      = -201,  /* scaled region under half a pixel on one axis */
    pxlStsNoiseRange       = -125,  /* noise level outside [0, 1) */
    pxlStsStepAlign        = -108,  /* row step not a multiple of the sample size */
    pxlStsHistoLevels      = -107,  /* fewer than two histogram levels */
    pxlStsLUTLevels        = -106,  /* fewer than two lookup-table levels */
    pxlStsChannelOrder     = -60,   /* channel order entry outside 0..2 */
    pxlStsMaskZero         = -59,   /* morphology mask has no non-zero cell */
    pxlStsQuadBad          = -58,   /* given quadrangle degenerate or not convex */
    pxlStsRectBad          = -57,   /* rectangle without extent */
    pxlStsCoeffBad         = -56,   /* coefficients give a degenerate quadrangle */
    pxlStsChannelCount     = -53,   /* channel count not 1, 3 or 4 */
    pxlStsDivisorZero      = -51,   /* integer kernel divisor is zero */
    pxlStsAlphaOp          = -50,   /* unknown alpha composition operator */
    pxlStsChannelIndex     = -47,   /* channel index out of range */
    pxlStsRowTooWide       = -37,   /* the row does not fit in the row step */
    pxlStsEpsilon          = -36,   /* negative comparison tolerance */
    pxlStsAnchor           = -34,   /* anchor lies outside the mask */
    pxlStsMaskSize         = -33,   /* mask size not valid for the operation */
    pxlStsBadResizeFactor  = -23,   /* scale factor not positive */
    pxlStsBadInterpolation = -22,   /* interpolation mode not valid here */
    pxlStsMirrorAxis       = -21,   /* mirror axis not 0, 1 or 2 */
    pxlStsMomentZero       = -20,   /* normalising moment too close to zero */
    pxlStsThresholdOrder   = -18,   /* lower threshold above upper threshold */
    pxlStsSpecMismatch     = -17,   /* plan or state record with wrong identity tag */
    pxlStsFFTFlag          = -16,   /* transform scaling flag not one of its four values */
    pxlStsFFTOrder         = -15,   /* transform order out of range */
    pxlStsStep             = -14,   /* row step below 1 or too small */
    pxlStsScaleRange       = -13,   /* empty value range in Scale */
    pxlStsPaletteBits      = -11,   /* palette bit size outside 1..16 */
    pxlStsDivByZeroConst   = -10,   /* constant divisor is zero */
    pxlStsAlloc            = -9,    /* internal allocation failed */
    pxlStsNullPtr          = -8,    /* required pointer is null */
    pxlStsRangeOrder       = -7,    /* lower bound of a range above upper bound */
    pxlStsSize             = -6,    /* size or length below 1, or too large */
    pxlStsBadArg           = -5,    /* numeric parameter out of range */

    /* Success */
    pxlStsOk               = 0,

    /* Warnings */
    pxlStsSqrtNegative     = 3,     /* square root of a negative sample */
    pxlStsDivByZero        = 6,     /* division by zero took place */
    pxlStsLnZero           = 7,     /* logarithm of zero */
    pxlStsLnNegative       = 8,     /* logarithm of a negative sample */
    pxlStsQuadAdjusted     = 28,    /* fourth vertex replaced to fit an affine map */
    pxlStsRoiOutside       = 29,    /* region lies outside the source, nothing written */
    pxlStsQuadClipped      = 30     /* quadrangle misses the region, nothing written */
};

/* ------------------------------------------------------------------------ */
/* Mode arguments                                                            */
/*                                                                           */
/* All of the following are passed to functions as plain Pxl32s, not as the  */
/* enum types, because several operations give a defined meaning to values  */
/* outside the named set (a rounding mode other than 1 truncates, a compare  */
/* relation above 4 does nothing). The enum tags are only there to group     */
/* the names.                                                                */
/* ------------------------------------------------------------------------ */

/*
 * Rounding of float-to-integer conversions. Any value other than
 * pxlRndNear behaves as pxlRndZero.
 */
enum PxlRoundMode {
    pxlRndZero = 0,   /* truncate toward zero */
    pxlRndNear = 1    /* nearest, ties to even */
};

/*
 * Algorithm hint of Scale, Sum, Mean, the 32f norms and the moments: only
 * pxlAlgHintAccurate changes anything; every other value selects the fast
 * route. pxlAlgHintNone (this library's choice of value) is what callers
 * pass when they have no preference, such as the FFT plans, which store
 * the hint without using it.
 */
enum PxlAlgHint {
    pxlAlgHintNone     = 0,
    pxlAlgHintFast     = 1,
    pxlAlgHintAccurate = 2
};

/*
 * Comparison relations. Threshold accepts only pxlRelLess and
 * pxlRelGreater; Compare accepts all five.
 */
enum PxlRelation {
    pxlRelLess         = 0,   /* a <  b */
    pxlRelLessEqual    = 1,   /* a <= b */
    pxlRelEqual        = 2,   /* a == b */
    pxlRelGreaterEqual = 3,   /* a >= b */
    pxlRelGreater      = 4    /* a >  b */
};

/*
 * Fixed filter mask sizes. The code is the mask's width digit followed by
 * its height digit, so pxlMask3x1 is three wide and one high.
 */
enum PxlMaskSize {
    pxlMask1x3 = 13,
    pxlMask1x5 = 15,
    pxlMask3x1 = 31,
    pxlMask3x3 = 33,
    pxlMask5x1 = 51,
    pxlMask5x5 = 55
};

/*
 * Interpolation modes of the geometric transforms. The modes are plain
 * numbers, not flags, and only one is given at a time. The warps accept
 * one of nearest, linear or cubic or-ed with pxlInterSmoothEdge, which
 * asks them to blend the pixels just outside the mapped edge; its value is
 * the top bit of the 32-bit argument (0x80000000). It is written as a
 * negative number so that it stays an int constant.
 */
enum PxlInterpolation {
    pxlInterNearest    = 1,
    pxlInterLinear     = 2,
    pxlInterCubic      = 4,
    pxlInterSuper      = 8,
    pxlInterLanczos    = 16,
    pxlInterSmoothEdge = (-2147483647 - 1)
};

/*
 * Mirror axes. "Horizontal" flips about the horizontal axis, reversing the
 * order of the rows; "vertical" reverses each row.
 */
enum PxlAxis {
    pxlAxsHorizontal = 0,
    pxlAxsVertical   = 1,
    pxlAxsBoth       = 2
};

/*
 * Direction of the ImageRamp test pattern: the value grows with the
 * column, with the row, or with the product of the two. The numbers are
 * those the function takes; the names are this library's choice.
 */
enum PxlRampAxis {
    pxlRampX  = 0,
    pxlRampY  = 1,
    pxlRampXY = 2
};

/*
 * Alpha composition operators. Codes 0..5 take colour samples that are not
 * premultiplied by alpha; codes 6..11 name the same operators for colour
 * that already is. The numbers are fixed; the names are this library's
 * choice.
 */
enum PxlAlphaOp {
    pxlAlphaOver        = 0,
    pxlAlphaIn          = 1,
    pxlAlphaOut         = 2,
    pxlAlphaATop        = 3,
    pxlAlphaXor         = 4,
    pxlAlphaPlus        = 5,
    pxlAlphaOverPremul  = 6,
    pxlAlphaInPremul    = 7,
    pxlAlphaOutPremul   = 8,
    pxlAlphaATopPremul  = 9,
    pxlAlphaXorPremul   = 10,
    pxlAlphaPlusPremul  = 11
};

/*
 * Scaling of the Fourier transforms, given when a plan is made. Exactly one
 * of the four values is accepted; they are not combined. "Fwd" divides the
 * forward transform by N, "Inv" the inverse, "Sqrt" divides both by
 * sqrt(N), and "None" divides neither. Two-dimensional plans apply the same
 * choice to rows and columns.
 */
enum PxlFftScale {
    pxlFftScaleFwd  = 1,
    pxlFftScaleInv  = 2,
    pxlFftScaleSqrt = 4,
    pxlFftScaleNone = 8
};

/* ------------------------------------------------------------------------ */
/* Plan and state records                                                    */
/*                                                                           */
/* Records that the library builds for the caller and reads back later. The */
/* caller only ever holds pointers to them: their layout is private, and    */
/* each starts with an identity tag that the library checks, so that a      */
/* wrong or already freed record gives pxlStsSpecMismatch.                  */
/* ------------------------------------------------------------------------ */

/* One-dimensional FFT plan, complex (_C_32fc) or real (_R_32f). */
typedef struct PxlFftCtx PxlFftCtx;

/* One-dimensional DFT plan of any length, complex or real. */
typedef struct PxlDftCtx PxlDftCtx;

/* Two-dimensional FFT and DFT plans on float data, complex or real. */
typedef struct PxlFftCtx2D PxlFftCtx2D;
typedef struct PxlDftCtx2D PxlDftCtx2D;

/* Two-dimensional plans of the integer (8u32s / 32s8u) transforms. */
typedef struct PxlFftCtx2D32s PxlFftCtx2D32s;
typedef struct PxlDftCtx2D32s PxlDftCtx2D32s;

/* Forward and inverse one-level wavelet transform plans. */
typedef struct PxlWTFwdCtx PxlWTFwdCtx;
typedef struct PxlWTInvCtx PxlWTInvCtx;

/*
 * Image moment states with Pxl64f and Pxl64s results. Their size is fixed
 * so that a caller can also place the 64s state in memory of its own.
 */
typedef struct PxlMomentCtx64f PxlMomentCtx64f;
typedef struct PxlMomentCtx64s PxlMomentCtx64s;

/* ------------------------------------------------------------------------ */
/* Version record                                                            */
/* ------------------------------------------------------------------------ */

/*
 * Identity of the library, returned by pxliGetLibVersion as a pointer to
 * one static, read-only instance. The strings are static as well and are
 * never freed. The field order is part of the interface.
 */
typedef struct {
    Pxl32s      versionMajor;   /* 5 */
    Pxl32s      versionMinor;   /* 1 */
    Pxl32s      buildGroup;
    Pxl32s      buildNumber;
    char        cpuTag[4];      /* processor level, zero padded: "a6" */
    const char *libraryName;    /* file name of the shared object */
    const char *versionText;    /* e.g. "5.1.1" */
    const char *buildDateText;  /* e.g. "Jun 17 2006" */
} PxlLibVersion;

#ifdef __cplusplus
}
#endif

/* ------------------------------------------------------------------------ */
/* Compile-time checks                                                       */
/*                                                                           */
/* The library and its callers exchange these types through raw memory     */
/* (complex rows are walked as real rows, steps are in bytes), so a         */
/* compiler that pads or sizes them differently must fail here rather than  */
/* at run time.                                                             */
/* ------------------------------------------------------------------------ */

#define PXL_STATIC_CHECK_(name, cond) \
    typedef char pxl_static_check_##name[(cond) ? 1 : -1]

PXL_STATIC_CHECK_(size_32f,  sizeof(Pxl32f)  == 4);
PXL_STATIC_CHECK_(size_64f,  sizeof(Pxl64f)  == 8);
PXL_STATIC_CHECK_(size_16sc, sizeof(Pxl16sc) == 4);
PXL_STATIC_CHECK_(size_32sc, sizeof(Pxl32sc) == 8);
PXL_STATIC_CHECK_(size_32fc, sizeof(Pxl32fc) == 8);
PXL_STATIC_CHECK_(size_64fc, sizeof(Pxl64fc) == 16);
PXL_STATIC_CHECK_(size_status, sizeof(PxlStatus) == 4);

#undef PXL_STATIC_CHECK_

#endif /* PXLDEFS_H */
