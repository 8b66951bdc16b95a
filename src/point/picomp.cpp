// Compare, CompareC, CompareEqualEps, CompareEqualEpsC: the instantiations
// behind the exported names; the rules live in compare.h.
#include "point/compare.h"

#include "shims/point/picomp.inc"
