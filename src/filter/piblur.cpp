// The instantiations behind the exported names; the algorithms live in box.h.
#include "filter/box.h"

#include "shims/filter/piblur.inc"
