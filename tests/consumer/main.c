#include <pxli.h>
#include <pxlcore.h>

int main(void) {
    Pxl8u a = 200, b = 100, d = 0;
    PxlSize roi = {1, 1};
    return pxliAdd_8u_C1RSfs(&a, 1, &b, 1, &d, 1, roi, 1) == pxlStsOk && d == 150 ? 0 : 1;
}
