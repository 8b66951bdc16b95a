// Affine family: the geometry queries.
#include "geom/affine.h"

#include "shims/geom/piwarpa.inc"
