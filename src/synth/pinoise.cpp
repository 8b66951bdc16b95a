// The exported ramp and noise members: instantiations of synth.h.
#include "synth/synth.h"

#include "shims/synth/pinoise.inc"
