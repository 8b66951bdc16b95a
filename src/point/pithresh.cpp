// Threshold, _GT, _LT, _Val, _GTVal, _LTVal, _LTValGTVal: the instantiations
// behind the exported names; the rules live in thresh.h.
#include "point/thresh.h"

#include "shims/point/pithresh.inc"
