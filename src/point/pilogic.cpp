// And, Or, Xor, AndC, OrC, XorC, Not, LShiftC, RShiftC: the instantiations
// behind the exported names; the rules live in logic.h.
#include "point/logic.h"

#include "shims/point/pilogic.inc"
