// Resize entry points: every member instantiates the one engine of resize.h.
#include "geom/resize.h"

#include "shims/geom/piresize.inc"
