// Remap entry points: every member instantiates the engine of remap.h.
#include "geom/remap.h"

#include "shims/geom/piremap.inc"
