// Prewitt, Sobel, Scharr, Roberts, Laplace, Gauss, Hipass, Lowpass, Sharpen:
// the instantiations behind the exported names; the kernels and passes live
// in fixed.h.
#include "filter/fixed.h"

#include "shims/filter/pifixed.inc"
