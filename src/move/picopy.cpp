// pxliCopy: every layout of 8u, 16s, 32s and 32f, instantiated from copy.h.
#include "move/copy.h"

#include "shims/move/picopy.inc"
