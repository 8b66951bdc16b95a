// Div and DivC: every image member and vector form (divide.h).
#include "arith/divide.h"

#include "shims/arith/pidiv.inc"
