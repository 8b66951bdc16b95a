// The static version record of this build.
#include "pxldefs.h"

namespace pxl::frame {

namespace {
const PxlLibVersion kVersion = {5, 1, 133, 272, {'a', '6', '\0', '\0'},
                                "libpxlia6.so.5.1", "5.1.1", "Jun 17 2006"};
}

const PxlLibVersion* libVersion() { return &kVersion; }

}  // namespace pxl::frame

#include "shims/frame/piversion.inc"
