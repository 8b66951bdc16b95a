// The instantiations behind the exported names; the algorithms live in median.h.
#include "filter/median.h"

#include "shims/filter/pimedian.inc"
