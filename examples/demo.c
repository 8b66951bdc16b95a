/* A tour of what the library can do, on images made here in code.
 *
 *   pxl_demo [output folder]
 *
 * Writes viewable PGM/PPM files into the folder (default "."), and prints a
 * one-line summary with the time of each call. */
#define _GNU_SOURCE /* dladdr */
#include <dlfcn.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "pxlcore.h"
#include "pxli.h"

enum { W = 512, H = 384 };

static double nowMs(void) {
    struct timespec t;
    clock_gettime(CLOCK_MONOTONIC, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

static int writePnmSized(const char* dir, const char* name, const Pxl8u* img, int step, int channels, int w,
                         int h) {
    char path[1024];
    snprintf(path, sizeof path, "%s/%s.%s", dir, name, channels == 1 ? "pgm" : "ppm");
    FILE* f = fopen(path, "wb");
    if (!f) return -1;
    fprintf(f, "P%d\n%d %d\n255\n", channels == 1 ? 5 : 6, w, h);
    for (int y = 0; y < h; ++y) fwrite(img + (size_t)y * step, 1, (size_t)w * channels, f);
    fclose(f);
    return 0;
}

static int writePnm(const char* dir, const char* name, const Pxl8u* img, int step, int channels) {
    return writePnmSized(dir, name, img, step, channels, W, H);
}

/* Which build of the library the dynamic loader chose: every instruction
 * level is its own file, the baseline in the library folder and the others
 * in its glibc-hwcaps/<level>/ subfolders, which the loader searches first on
 * a processor that runs them. */
static void printLibraryLevel(void) {
    Dl_info info;
    if (!dladdr((void*)pxliAdd_8u_C1RSfs, &info) || !info.dli_fname) {
        printf("library: unknown file\n");
        return;
    }
    const char* level = "baseline x86-64 (SSE2, 16-byte vectors)";
    if (strstr(info.dli_fname, "glibc-hwcaps/x86-64-v4/"))
        level = "x86-64-v4 (AVX-512, 64-byte vectors)";
    else if (strstr(info.dli_fname, "glibc-hwcaps/x86-64-v3/"))
        level = "x86-64-v3 (AVX2, 32-byte vectors)";
    else if (strstr(info.dli_fname, "glibc-hwcaps/x86-64-v2/"))
        level = "x86-64-v2";
    printf("library: %s, level %s\n", info.dli_fname, level);
}

/* A scene: a diagonal ramp with a bright disc and a dark ring. */
static void makeScene(Pxl8u* g, int step, double cx, double cy) {
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            double r = hypot(x - cx, y - cy);
            int v = (x + y) * 255 / (W + H);
            if (r < 70) v = 230;
            else if (r > 110 && r < 125) v = 20;
            g[(size_t)y * step + x] = (Pxl8u)v;
        }
}

struct Timing { const char* name; double ms; };

/* Neighbourhood filters: edges (Sobel magnitude), a 5x5 Gauss blur and a
 * sharpened image of the scene. The filters read two pixels around their
 * ROI, so the scene is first copied into a larger image whose edge pixels
 * repeat outwards. */
static int filterTour(const char* dir, const Pxl8u* a, int s1, struct Timing* t, int* nt) {
    enum { R = 2 };
    const PxlSize roi = {W, H}, big = {W + 2 * R, H + 2 * R};
    int sb, sh, sv, so, ok = 1;
    Pxl8u* bordered = pxliMalloc_8u_C1(big.width, big.height, &sb);
    Pxl16s* gx = pxliMalloc_16s_C1(W, H, &sh);
    Pxl16s* gy = pxliMalloc_16s_C1(W, H, &sv);
    Pxl8u* out = pxliMalloc_8u_C1(W, H, &so);
    const Pxl8u* src;
    double t0 = nowMs();
    ok &= pxliCopyReplicateBorder_8u_C1R(a, s1, roi, bordered, sb, big, R, R) == pxlStsOk;
    src = bordered + (size_t)R * sb + R;
    ok &= pxliFilterSobelHoriz_8u16s_C1R(src, sb, gx, sh, roi, pxlMask3x3) == pxlStsOk;
    ok &= pxliFilterSobelVert_8u16s_C1R(src, sb, gy, sv, roi, pxlMask3x3) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"Border+Sobel", nowMs() - t0};
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            double m = hypot(gx[(size_t)y * (sh / 2) + x], gy[(size_t)y * (sv / 2) + x]) / 4;
            out[(size_t)y * so + x] = (Pxl8u)(m > 255 ? 255 : m);
        }
    writePnm(dir, "edges_sobel", out, so, 1);
    t0 = nowMs();
    ok &= pxliFilterGauss_8u_C1R(src, sb, out, so, roi, pxlMask5x5) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"Gauss5x5", nowMs() - t0};
    writePnm(dir, "gauss_blur", out, so, 1);
    ok &= pxliFilterSharpen_8u_C1R(src, sb, out, so, roi) == pxlStsOk;
    writePnm(dir, "sharpened", out, so, 1);
    pxliFree(bordered); pxliFree(gx); pxliFree(gy); pxliFree(out);
    return ok;
}

/* Box blur, median and opening: a 9x9 box mean of the scene; salt-and-
 * pepper noise (the library's uniform noise, its extremes turned into white
 * and black dots) cleaned by a 3x3 median; and an opening (erosion, then
 * dilation) of the noisy image, which removes the white dots and keeps
 * every shape wider than 3x3. The filters read pixels around their ROI, so
 * they work inside a bordered copy. */
static int filter2Tour(const char* dir, const Pxl8u* a, int s1, struct Timing* t, int* nt) {
    enum { R = 4 };
    const PxlSize roi = {W, H}, big = {W + 2 * R, H + 2 * R};
    int sb, sn, so, ok = 1;
    Pxl8u* bordered = pxliMalloc_8u_C1(big.width, big.height, &sb);
    Pxl8u* noise = pxliMalloc_8u_C1(big.width, big.height, &sn);
    Pxl8u* out = pxliMalloc_8u_C1(W, H, &so);
    Pxl32u seed = 7;
    double t0;
    if (!bordered || !noise || !out) return 0;
    ok &= pxliCopyReplicateBorder_8u_C1R(a, s1, roi, bordered, sb, big, R, R) == pxlStsOk;
    Pxl8u* src = bordered + (size_t)R * sb + R;
    t0 = nowMs();
    ok &= pxliFilterBox_8u_C1R(src, sb, out, so, roi, (PxlSize){9, 9}, (PxlPoint){4, 4}) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"FilterBox9x9", nowMs() - t0};
    writePnm(dir, "box_blur", out, so, 1);
    ok &= pxliSet_8u_C1R(0, noise, sn, big) == pxlStsOk;
    ok &= pxliAddRandUniform_Direct_8u_C1IR(noise, sn, big, 0, 255, &seed) == pxlStsOk;
    for (int y = 0; y < big.height; ++y)
        for (int x = 0; x < big.width; ++x) {
            Pxl8u n = noise[(size_t)y * sn + x], *p = bordered + (size_t)y * sb + x;
            if (n > 245) *p = 255;
            else if (n < 10) *p = 0;
        }
    writePnmSized(dir, "salt_pepper", bordered, sb, 1, big.width, big.height);
    t0 = nowMs();
    ok &= pxliFilterMedian_8u_C1R(src, sb, out, so, roi, (PxlSize){3, 3}, (PxlPoint){1, 1}) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"Median3x3", nowMs() - t0};
    writePnm(dir, "median_cleaned", out, so, 1);
    /* Opening of the noisy image: erosion into a bordered scratch, then dilation. */
    t0 = nowMs();
    ok &= pxliErode3x3_8u_C1R(src, sb, noise + (size_t)R * sn + R, sn, roi) == pxlStsOk;
    ok &= pxliCopyReplicateBorder_8u_C1R(noise + (size_t)R * sn + R, sn, roi, bordered, sb, big, R, R) == pxlStsOk;
    ok &= pxliDilate3x3_8u_C1R(src, sb, out, so, roi) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"Opening3x3", nowMs() - t0};
    writePnm(dir, "opening", out, so, 1);
    pxliFree(bordered); pxliFree(noise); pxliFree(out);
    return ok;
}

/* Geometry: the colour image resized to half and to one and a half times
 * its size in every mode (supersampling only shrinks), turned by 30 degrees
 * about its centre with smoothed edges, and seen through a lens by remap. */
static int geomTour(const char* dir, const Pxl8u* color, int sc, struct Timing* t, int* nt) {
    static const struct { int mode; const char* name; } modes[] = {
        {pxlInterNearest, "nearest"}, {pxlInterLinear, "linear"}, {pxlInterCubic, "cubic"},
        {pxlInterLanczos, "lanczos"}, {pxlInterSuper, "super"}};
    const PxlRect all = {0, 0, W, H};
    const PxlSize big = {W * 3 / 2, H * 3 / 2};
    int so, sx, sy, ok = 1;
    char name[64];
    Pxl8u* out = pxliMalloc_8u_C3(big.width, big.height, &so);
    Pxl32f* mx = pxliMalloc_32f_C1(W, H, &sx);
    Pxl32f* my = pxliMalloc_32f_C1(W, H, &sy);
    double t0 = nowMs();
    for (int i = 0; i < 5; ++i) {
        const PxlSize half = {W / 2, H / 2};
        ok &= pxliResize_8u_C3R(color, (PxlSize){W, H}, sc, all, out, so, half, 0.5, 0.5, modes[i].mode) == pxlStsOk;
        snprintf(name, sizeof name, "resize_half_%s", modes[i].name);
        writePnmSized(dir, name, out, so, 3, half.width, half.height);
        if (modes[i].mode == pxlInterSuper) continue;
        ok &= pxliResize_8u_C3R(color, (PxlSize){W, H}, sc, all, out, so, big, 1.5, 1.5, modes[i].mode) == pxlStsOk;
        snprintf(name, sizeof name, "resize_1.5x_%s", modes[i].name);
        writePnmSized(dir, name, out, so, 3, big.width, big.height);
    }
    t[(*nt)++] = (struct Timing){"Resize x9", nowMs() - t0};
    memset(out, 0, (size_t)so * H);
    t0 = nowMs();
    ok &= pxliRotateCenter_8u_C3R(color, (PxlSize){W, H}, sc, all, out, so, all, 30, W / 2.0, H / 2.0,
                                  pxlInterCubic | pxlInterSmoothEdge) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"RotateCenter30", nowMs() - t0};
    writePnm(dir, "rotated_30", out, so, 3);
    /* A magnifying lens of radius R at the centre: a point at distance r
     * samples the source at distance r * (r / R)^0.5. */
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const double dx = x - W / 2.0, dy = y - H / 2.0, r = hypot(dx, dy), R = H * 0.45;
            const double k = r < R ? sqrt(r / R) : 1.0;
            mx[(size_t)y * sx / 4 + x] = (Pxl32f)(W / 2.0 + dx * k);
            my[(size_t)y * sy / 4 + x] = (Pxl32f)(H / 2.0 + dy * k);
        }
    t0 = nowMs();
    ok &= pxliRemap_8u_C3R(color, (PxlSize){W, H}, sc, all, mx, sx, my, sy, out, so, (PxlSize){W, H},
                           pxlInterLinear) == pxlStsOk;
    t[(*nt)++] = (struct Timing){"Remap lens", nowMs() - t0};
    writePnm(dir, "remap_lens", out, so, 3);
    pxliFree(out); pxliFree(mx); pxliFree(my);
    return ok;
}

/* Measures of one image: sum, mean, extrema with their positions and norms
 * are printed; its histogram is drawn as a picture, and a copy gets the
 * library's seeded Gaussian noise. */
static int measureDemo(const char* dir, const Pxl8u* img, int step) {
    PxlSize roi = {W, H};
    Pxl64f sum = 0, mean = 0, l1 = 0, l2 = 0, inf = 0;
    Pxl8u lo = 0, hi = 0;
    Pxl32s lx = 0, ly = 0, hx = 0, hy = 0, hist[256], levels[257];
    int ok = pxliSum_8u_C1R(img, step, roi, &sum) == pxlStsOk;
    ok &= pxliMean_8u_C1R(img, step, roi, &mean) == pxlStsOk;
    ok &= pxliMinIndx_8u_C1R(img, step, roi, &lo, &lx, &ly) == pxlStsOk;
    ok &= pxliMaxIndx_8u_C1R(img, step, roi, &hi, &hx, &hy) == pxlStsOk;
    ok &= pxliNorm_L1_8u_C1R(img, step, roi, &l1) == pxlStsOk;
    ok &= pxliNorm_L2_8u_C1R(img, step, roi, &l2) == pxlStsOk;
    ok &= pxliNorm_Inf_8u_C1R(img, step, roi, &inf) == pxlStsOk;
    ok &= pxliHistogramEven_8u_C1R(img, step, roi, hist, levels, 257, 0, 256) == pxlStsOk;
    printf("measures of input_a: sum %.0f, mean %.4f, min %d at (%d, %d), max %d at (%d, %d), "
           "norms L1 %.0f L2 %.2f Inf %.0f\n", sum, mean, lo, lx, ly, hi, hx, hy, l1, l2, inf);
    /* The histogram as 256 bars, each scaled to the tallest. */
    enum { HH = 128 };
    static Pxl8u bars[HH * 256];
    Pxl32s top = 1;
    for (int k = 0; k < 256; ++k) top = hist[k] > top ? hist[k] : top;
    for (int k = 0; k < 256; ++k) {
        int h = (int)((long long)hist[k] * HH / top);
        for (int y = 0; y < HH; ++y) bars[y * 256 + k] = (Pxl8u)(HH - y <= h ? 40 : 235);
    }
    writePnmSized(dir, "histogram", bars, 256, 1, 256, HH);
    Pxl8u* noisy = (Pxl8u*)malloc((size_t)W * H);
    Pxl32u seed = 2026;
    if (!noisy) return 0;
    for (int y = 0; y < H; ++y) memcpy(noisy + y * W, img + y * step, W);
    ok &= pxliAddRandGauss_Direct_8u_C1IR(noisy, W, roi, 0, 24, &seed) == pxlStsOk;
    writePnm(dir, "noisy", noisy, W, 1);
    free(noisy);
    return ok;
}

/* Frequency transforms: the log-magnitude spectrum of an image (DFT, its
 * Pack layout read back cell by cell), a Gaussian low-pass made by forward
 * transform, multiply and inverse, a JPEG-like DCT quantise/dequantise round
 * trip, and a one-level Haar wavelet decomposition. */
static int packFreq(int u, int v, int* kx, int* jy) {
    int realCol = u == 0 || (W % 2 == 0 && u == W - 1);
    *kx = u == 0 ? 0 : (W % 2 == 0 && u == W - 1) ? W / 2 : (u + 1) / 2;
    if (realCol) *jy = v == 0 ? 0 : (H % 2 == 0 && v == H - 1) ? H / 2 : (v + 1) / 2;
    else *jy = v < H - v ? v : H - v;
    return realCol;
}

static int transformTour(const char* dir, const Pxl8u* img, int step) {
    PxlSize roi = {W, H};
    Pxl32f* f = (Pxl32f*)malloc(sizeof(Pxl32f) * W * H);
    Pxl8u* out = (Pxl8u*)malloc((size_t)W * H);
    PxlDftCtx2D* spec = NULL;
    int ok = f && out && pxliDFTInitAlloc_R_32f(&spec, roi, pxlFftScaleInv, 0) == pxlStsOk;
    if (!ok) { free(f); free(out); return 0; }
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) f[y * W + x] = img[(size_t)y * step + x];
    ok &= pxliDFTFwd_RToPack_32f_C1IR(f, 4 * W, spec, NULL) == pxlStsOk;
    /* Magnitude per stored cell pair, on a log scale, zero frequency centred. */
    double top = 0;
    static double mag[W * H];
    for (int v = 0; v < H; ++v)
        for (int u = 0; u < W; ++u) {
            int kx, jy, real = packFreq(u, v, &kx, &jy);
            double re, im = 0;
            if (real) { re = f[(v & ~1 ? ((v + 1) / 2) * 2 - 1 : v) * W + u]; if (v && !(H % 2 == 0 && v == H - 1)) im = f[((v + 1) / 2) * 2 * W + u]; }
            else { re = f[v * W + (kx ? 2 * kx - 1 : 0)]; im = kx ? f[v * W + 2 * kx] : 0; }
            mag[v * W + u] = log1p(sqrt(re * re + im * im));
            if (mag[v * W + u] > top) top = mag[v * W + u];
        }
    for (int v = 0; v < H; ++v)
        for (int u = 0; u < W; ++u) {
            int kx, jy;
            packFreq(u, v, &kx, &jy);
            int x = (W / 2 + (u % 2 ? kx : -kx) + W) % W, y = (H / 2 + (v < H / 2 ? jy : -jy) + H) % H;
            out[y * W + x] = (Pxl8u)(255 * mag[v * W + u] / top);
        }
    writePnm(dir, "spectrum", out, W, 1);
    /* Gaussian low-pass: every stored value gets the real gain of its frequency. */
    for (int v = 0; v < H; ++v)
        for (int u = 0; u < W; ++u) {
            int kx, jy;
            packFreq(u, v, &kx, &jy);
            f[v * W + u] *= (Pxl32f)exp(-(double)(kx * kx + jy * jy) / (2.0 * 20 * 20));
        }
    ok &= pxliDFTInv_PackToR_32f_C1IR(f, 4 * W, spec, NULL) == pxlStsOk;
    for (int i = 0; i < W * H; ++i) out[i] = (Pxl8u)(f[i] < 0 ? 0 : f[i] > 255 ? 255 : f[i] + 0.5f);
    writePnm(dir, "lowpass_fft", out, W, 1);
    pxliDFTFree_R_32f(spec);
    /* DCT: level shift, quantise coarser at higher frequencies, back. */
    for (int by = 0; by < H; by += 8)
        for (int bx = 0; bx < W; bx += 8) {
            Pxl16s c[64];
            ok &= pxliDCT8x8FwdLS_8u16s_C1R(img + (size_t)by * step + bx, step, c, -128) == pxlStsOk;
            for (int i = 0; i < 64; ++i) {
                int q = 16 + 6 * (i / 8 + i % 8);
                c[i] = (Pxl16s)(q * (int)floor(c[i] / (double)q + 0.5));
            }
            ok &= pxliDCT8x8InvLSClip_16s8u_C1R(c, out + by * W + bx, W, 128, 0, 255) == pxlStsOk;
        }
    writePnm(dir, "dct_quantised", out, W, 1);
    /* Haar wavelet: four half-size subbands tiled into one picture. */
    static const Pxl32f lo[2] = {0.5f, 0.5f}, hi[2] = {0.5f, -0.5f};
    PxlWTFwdCtx* wt = NULL;
    int bs = 0;
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) f[y * W + x] = img[(size_t)y * step + x];
    ok &= pxliWTFwdInitAlloc_32f_C1R(&wt, lo, 2, 1, hi, 2, 1) == pxlStsOk;
    ok &= pxliWTFwdGetBufSize_C1R(wt, &bs) == pxlStsOk;
    Pxl32f* bands = (Pxl32f*)malloc(sizeof(Pxl32f) * W * H);
    Pxl8u* buf = (Pxl8u*)malloc(bs > 0 ? (size_t)bs : 1);
    if (ok && bands && buf) {
        /* the subbands tile one W x H float picture: LL, LH on top, HL, HH below */
        int bst = 4 * W;
        ok &= pxliWTFwd_32f_C1R(f, 4 * W, bands, bst, bands + (H / 2) * W, bst, bands + W / 2, bst,
                                bands + (H / 2) * W + W / 2, bst, (PxlSize){W / 2, H / 2}, wt, buf) == pxlStsOk;
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                double v = bands[y * W + x];
                if (x >= W / 2 || y >= H / 2) v = 128 + 4 * v;
                out[y * W + x] = (Pxl8u)(v < 0 ? 0 : v > 255 ? 255 : v);
            }
        writePnm(dir, "wavelet_haar", out, W, 1);
    } else {
        ok = 0;
    }
    pxliWTFwdFree_32f_C1R(wt);
    free(bands); free(buf); free(f); free(out);
    printf("transforms: spectrum, FFT low-pass, DCT quantise round trip and Haar wavelet written\n");
    return ok;
}

int main(int argc, char** argv) {
    const char* dir = argc > 1 ? argv[1] : ".";
    struct Timing t[28];
    int nt = 0, ok = 1, s1, s2, s3, sc, s16, sf;
    PxlSize roi = {W, H};
    double t0;

    Pxl8u* a = pxliMalloc_8u_C1(W, H, &s1);
    Pxl8u* b = pxliMalloc_8u_C1(W, H, &s2);
    Pxl8u* d = pxliMalloc_8u_C1(W, H, &s3);
    Pxl8u* color = pxliMalloc_8u_C3(W, H, &sc);
    Pxl16s* w16 = pxliMalloc_16s_C1(W, H, &s16);
    Pxl32f* f32 = pxliMalloc_32f_C1(W, H, &sf);
    if (!a || !b || !d || !color || !w16 || !f32) { fprintf(stderr, "allocation failed\n"); return 1; }
    makeScene(a, s1, W * 0.40, H * 0.45);
    makeScene(b, s2, W * 0.55, H * 0.55);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            Pxl8u* p = color + (size_t)y * sc + 3 * x;
            p[0] = (Pxl8u)(x * 255 / W); p[1] = (Pxl8u)(y * 255 / H); p[2] = a[(size_t)y * s1 + x];
        }
    writePnm(dir, "input_a", a, s1, 1);
    writePnm(dir, "input_b", b, s2, 1);
    writePnm(dir, "input_color", color, sc, 3);

    /* The average of two frames: (a + b) / 2, rounded half to even. */
    t0 = nowMs();
    ok &= pxliAdd_8u_C1RSfs(a, s1, b, s2, d, s3, roi, 1) == pxlStsOk;
    t[nt++] = (struct Timing){"Add_8u/2", nowMs() - t0};
    writePnm(dir, "average", d, s3, 1);

    /* What moved: b - a, negative differences clamped at zero, doubled. */
    t0 = nowMs();
    ok &= pxliSub_8u_C1RSfs(a, s1, b, s2, d, s3, roi, -1) == pxlStsOk;
    t[nt++] = (struct Timing){"Sub_8u*2", nowMs() - t0};
    writePnm(dir, "difference", d, s3, 1);

    /* Binarised change: any positive difference saturates to 255. */
    t0 = nowMs();
    ok &= pxliSub_8u_C1RSfs(b, s2, a, s1, d, s3, roi, -8) == pxlStsOk;
    t[nt++] = (struct Timing){"Sub_8u bound", nowMs() - t0};
    writePnm(dir, "change_mask", d, s3, 1);

    /* A colour cast: a different constant per channel, saturating. */
    {
        const Pxl8u warm[3] = {60, 10, 0};
        t0 = nowMs();
        ok &= pxliAddC_8u_C3IRSfs(warm, color, sc, roi, 0) == pxlStsOk;
        t[nt++] = (struct Timing){"AddC_8u_C3", nowMs() - t0};
        writePnm(dir, "warm_color", color, sc, 3);
    }

    /* Signed difference in 16 bits, shown around mid-grey. */
    t0 = nowMs();
    ok &= pxliConvert_8u16s_C1R(a, s1, w16, s16, roi) == pxlStsOk;
    {
        Pxl16s* tmp = pxliMalloc_16s_C1(W, H, &s16);
        ok &= pxliConvert_8u16s_C1R(b, s2, tmp, s16, roi) == pxlStsOk;
        ok &= pxliSub_16s_C1IRSfs(tmp, s16, w16, s16, roi, 1) == pxlStsOk; /* (a - b) / 2 */
        ok &= pxliAddC_16s_C1IRSfs(128, w16, s16, roi, 0) == pxlStsOk;
        pxliFree(tmp);
    }
    ok &= pxliConvert_16s8u_C1R(w16, s16, d, s3, roi) == pxlStsOk; /* clamped to 0..255 */
    t[nt++] = (struct Timing){"Convert+Sub_16s", nowMs() - t0};
    writePnm(dir, "signed_difference", d, s3, 1);

    /* Float: a vignette subtracted from the image. */
    ok &= pxliConvert_8u32f_C1R(a, s1, f32, sf, roi) == pxlStsOk;
    {
        Pxl32f* vig = pxliMalloc_32f_C1(W, H, &sf);
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x)
                vig[(size_t)y * sf / 4 + x] = (Pxl32f)(0.0006 * (pow(x - W / 2.0, 2) + pow(y - H / 2.0, 2)));
        t0 = nowMs();
        ok &= pxliSub_32f_C1IR(vig, sf, f32, sf, roi) == pxlStsOk;
        t[nt++] = (struct Timing){"Sub_32f", nowMs() - t0};
        pxliFree(vig);
    }
    ok &= pxliConvert_32f8u_C1R(f32, sf, d, s3, roi, pxlRndNear) == pxlStsOk; /* saturated, ties to even */
    writePnm(dir, "vignette", d, s3, 1);

    /* The product of the two frames over 256: dark where either is dark. */
    t0 = nowMs();
    ok &= pxliMul_8u_C1RSfs(a, s1, b, s2, d, s3, roi, 8) == pxlStsOk;
    t[nt++] = (struct Timing){"Mul_8u", nowMs() - t0};
    writePnm(dir, "product", d, s3, 1);

    /* Geometry: the colour image mirrored left to right, frame a transposed
     * (H x W), and the centre of frame a grown back to full size by
     * repeating its edge pixels. */
    {
        int sm, stp, sb;
        Pxl8u* mirrored = pxliMalloc_8u_C3(W, H, &sm);
        Pxl8u* transposed = pxliMalloc_8u_C1(H, W, &stp);
        Pxl8u* bordered = pxliMalloc_8u_C1(W, H, &sb);
        const PxlSize centre = {W / 2, H / 2};
        t0 = nowMs();
        ok &= pxliMirror_8u_C3R(color, sc, mirrored, sm, roi, pxlAxsVertical) == pxlStsOk;
        ok &= pxliTranspose_8u_C1R(a, s1, transposed, stp, roi) == pxlStsOk;
        ok &= pxliCopyReplicateBorder_8u_C1R(a + (size_t)(H / 4) * s1 + W / 4, s1, centre, bordered, sb, roi, H / 4,
                                             W / 4) == pxlStsOk;
        t[nt++] = (struct Timing){"Mirror+Transpose+Border", nowMs() - t0};
        writePnm(dir, "mirrored_color", mirrored, sm, 3);
        writePnmSized(dir, "transposed", transposed, stp, 1, H, W);
        writePnm(dir, "border_replicate", bordered, sb, 1);
        pxliFree(mirrored); pxliFree(transposed); pxliFree(bordered);
    }

    /* Data movement: the colour image with red and blue exchanged, its
     * green channel alone, and the change mask painted red on it. */
    {
        static const int bgr[3] = {2, 1, 0};
        static const Pxl8u red[3] = {255, 0, 0};
        int sc2;
        Pxl8u* swapped = pxliMalloc_8u_C3(W, H, &sc2);
        t0 = nowMs();
        ok &= pxliSwapChannels_8u_C3R(color, sc, swapped, sc2, roi, bgr) == pxlStsOk;
        ok &= pxliCopy_8u_C3C1R(color + 1, sc, d, s3, roi) == pxlStsOk;
        t[nt++] = (struct Timing){"SwapChannels+Copy", nowMs() - t0};
        writePnm(dir, "swapped_color", swapped, sc2, 3);
        writePnm(dir, "green_channel", d, s3, 1);
        ok &= pxliSub_8u_C1RSfs(b, s2, a, s1, d, s3, roi, -8) == pxlStsOk; /* the change mask again */
        ok &= pxliSet_8u_C3MR(red, swapped, sc2, roi, d, s3) == pxlStsOk;
        writePnm(dir, "changes_marked", swapped, sc2, 3);
        pxliFree(swapped);
    }

    ok &= filterTour(dir, a, s1, t, &nt);
    ok &= filter2Tour(dir, a, s1, t, &nt);

    ok &= geomTour(dir, color, sc, t, &nt);

    ok &= measureDemo(dir, a, s1);

    ok &= transformTour(dir, a, s1);

    printLibraryLevel();
    printf("pxl_demo %s: %s, %d results in %s, %d threads (", pxliGetLibVersion()->versionText,
           ok ? "ok" : "FAILED", nt + 0, dir, threads_omp_of_n_pxl);
    for (int i = 0; i < nt; ++i) printf("%s%s %.3f ms", i ? ", " : "", t[i].name, t[i].ms);
    printf(")\n");

    pxliFree(a); pxliFree(b); pxliFree(d); pxliFree(color); pxliFree(w16); pxliFree(f32);
    return ok ? 0 : 1;
}
