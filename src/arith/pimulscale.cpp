// MulScale and MulCScale: products of fractions of full scale, on the row
// kernels of the scaled arithmetic (muldiv.h).
#include "arith/muldiv.h"

#include "shims/arith/pimulscale.inc"
