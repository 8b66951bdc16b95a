// pxliSet: every layout of 8u, 16s, 32s and 32f, instantiated from set.h.
#include "move/set.h"

#include "shims/move/piset.inc"
