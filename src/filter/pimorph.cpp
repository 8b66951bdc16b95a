// The instantiations behind the exported names; the algorithms live in morph.h.
#include "filter/morph.h"

#include "shims/filter/pimorph.inc"
