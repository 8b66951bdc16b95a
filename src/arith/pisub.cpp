// Sub and SubC: every image member and vector form. The algorithm lives
// in addsub.h, shared with the other family of the pair; this file holds the
// instantiations behind the exported names.
#include "arith/addsub.h"

#include "shims/arith/pisub.inc"
