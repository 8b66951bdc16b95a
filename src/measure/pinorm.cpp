// The exported pinorm members: instantiations of the templates in norm.h.
#include "measure/norm.h"

#include "shims/measure/pinorm.inc"
