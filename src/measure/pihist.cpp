// The exported pihist members: instantiations of the templates in hist.h.
#include "measure/hist.h"

#include "shims/measure/pihist.inc"
