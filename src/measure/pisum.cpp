// The exported pisum members: instantiations of the templates in reduce.h.
#include "measure/reduce.h"

#include "shims/measure/pisum.inc"
