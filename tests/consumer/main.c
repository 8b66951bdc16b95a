#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>

#include <pxli.h>
#include <pxlcore.h>

/* Prints the library file the loader chose, so that the install test can
   check that the glibc-hwcaps layout serves the best level. */
int main(void) {
    Pxl8u a = 200, b = 100, d = 0;
    PxlSize roi = {1, 1};
    Dl_info info;
    if (dladdr((void*)&pxliAdd_8u_C1RSfs, &info) != 0 && info.dli_fname != NULL) printf("loaded %s\n", info.dli_fname);
    return pxliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, roi, 1) == pxlStsOk && d == 150 ? 0 : 1;
}
