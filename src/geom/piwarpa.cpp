// Affine family: the geometry queries and the warps.
#include "geom/warp.h"

#include "shims/geom/piwarpa.inc"
