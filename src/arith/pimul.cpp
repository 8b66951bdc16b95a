// Mul and MulC: every image member and vector form. The frame is the one of
// all scaled arithmetic (scaled.h); the product and its limits are OpMul.
#include "arith/muldiv.h"

#include "shims/arith/pimul.inc"
