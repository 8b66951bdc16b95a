// Filter, FilterRow, FilterColumn and their ...32f families: the
// instantiations behind the exported names; the passes live in general.h.
#include "filter/general.h"

#include "shims/filter/pifilter.inc"
