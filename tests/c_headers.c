/* The public headers are plain C99: this file must compile with -std=c99
 * -pedantic -Werror and link against both libraries. */
#include "pxlcore.h"
#include "pxldefs.h"
#include "pxli.h"
#include "pxls.h"

int main(void) {
    Pxl8u a[4] = {1, 2, 3, 4}, b[4] = {4, 3, 2, 1}, d[4];
    PxlSize roi = {4, 1};
    threads_omp_of_n_pxl = 1;
    if (pxliAdd_8u_C1RSfs(a, 4, b, 4, d, 4, roi, 0) != pxlStsOk) return 1;
    return d[0] == 5 && d[3] == 5 && pxliGetLibVersion()->versionMajor == 5 ? 0 : 1;
}
