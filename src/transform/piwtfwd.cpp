// One level of a separable two-dimensional wavelet transform with the
// caller's analysis (forward) or synthesis (inverse) filter pair.
//
// Forward, h a filter of length L and anchor a:
//   V(x)   = sum_k h[k] * S(2y + a - k, x)        down the columns,
//   out[i] = sum_k h[k] * V(2i + a - k)           along the row, decimated.
// Inverse, g a filter and u a subband up-sampled with zeros:
//   x[n] = sum_k g[k] * u[n + a - k]; only the taps of the parity of n + a
// meet a real sample, so the zeros are never multiplied.
// Sums run over the taps from last to first. There is no border rule: the
// caller's images hold valid samples around the region, as far as the
// filters reach. Images are walked in strips of 256 subband columns so that
// the two line buffers have a fixed size however wide the image is.
#include <algorithm>
#include <cstdlib>
#include <type_traits>
#include <cstring>

#include "frame/types.h"
#include "pxldefs.h"

namespace pxl::transform {
struct WtFilter {
  Pxl32f* taps;
  int len, anchor, left, right;
};
}  // namespace pxl::transform

struct PxlWTFwdCtx {
  Pxl32s tag;  // 46 one channel, 48 three
  pxl::transform::WtFilter* low;
  pxl::transform::WtFilter* high;
  Pxl32s lineLength, lineBytes, left, right;
};
struct PxlWTInvCtx {
  Pxl32s tag;  // 47 one channel, 49 three
  pxl::transform::WtFilter* low;
  pxl::transform::WtFilter* high;
  Pxl32s lineLengthLow, lineLengthHigh, lineBytes;
};

namespace pxl::transform {
namespace {

constexpr int kStrip = 256;
inline int up32(int x) { return (x + 31) & ~31; }

WtFilter* makeFilter(const Pxl32f* taps, int len, int anchor, bool inverse) {
  auto* f = static_cast<WtFilter*>(std::calloc(1, sizeof(WtFilter) + sizeof(Pxl32f) * std::size_t(len)));
  if (!f) return nullptr;
  f->taps = reinterpret_cast<Pxl32f*>(f + 1);
  for (int k = 0; k < len; ++k) f->taps[k] = loadSample(taps + k);
  f->len = len;
  f->anchor = anchor;
  f->left = inverse ? (len - anchor - 1) / 2 : len - anchor - 1;
  f->right = inverse ? (anchor + 1) / 2 : anchor - 1;
  return f;
}

PxlStatus checkFilters(const void* spec, const Pxl32f* lt, int ll, int la, const Pxl32f* ht, int hl, int ha) {
  if (!spec || !lt || !ht) return pxlStsNullPtr;
  if (ll < 2 || hl < 2) return pxlStsSize;
  if (la < 0 || la >= ll || ha < 0 || ha >= hl) return pxlStsAnchor;
  return pxlStsOk;
}

template <class Ctx>
bool planOk(const Ctx* s, Pxl32s tag) {
  return s->tag == tag && s->low && s->high && s->low->taps && s->high->taps && s->low->len > 0 &&
         s->high->len > 0 && s->low->left >= 0 && s->high->left >= 0;
}

template <class P>
P* px(P* base, int step, int row, int col, int ch) {
  return rowAt(base, step, row) + std::ptrdiff_t(col) * ch;
}

// Forward, one strip of subband columns [x0, x0 + sw), output row y.
template <int Ch>
void fwdRow(const PxlWTFwdCtx* s, const Pxl32f* src, int srcStep, Pxl32f* const dsts[4], const int steps[4],
            int y, int x0, int sw, Pxl32f* lineL, Pxl32f* lineH) {
  const int left = s->left, n = 2 * sw + left + s->right;
  const int c0 = 2 * x0 - left;  // source column of line index 0
  const WtFilter* f[2] = {s->low, s->high};
  Pxl32f* lines[2] = {lineL, lineH};
  for (int v = 0; v < 2; ++v) {
    const WtFilter& h = *f[v];
    for (int i = 0; i < n; ++i)
      for (int c = 0; c < Ch; ++c) {
        Pxl32f acc = 0.0f;
        for (int k = h.len - 1; k >= 0; --k)
          acc += h.taps[k] * loadSample(px(src, srcStep, 2 * y + h.anchor - k, c0 + i, Ch) + c);
        storeSample(lines[v] + i * Ch + c, acc);
      }
  }
  // dsts: LowLow, HighLow, LowHigh, HighHigh (vertical filter first)
  for (int v = 0; v < 2; ++v)
    for (int hz = 0; hz < 2; ++hz) {
      const WtFilter& h = *f[hz];
      Pxl32f* out = dsts[2 * hz + v];
      const int step = steps[2 * hz + v];
      for (int i = 0; i < sw; ++i)
        for (int c = 0; c < Ch; ++c) {
          Pxl32f acc = 0.0f;
          for (int k = h.len - 1; k >= 0; --k) acc += h.taps[k] * loadSample(lines[v] + (2 * i + h.anchor - k + left) * Ch + c);
          storeSample(px(out, step, y, x0 + i, Ch) + c, acc);
        }
    }
}

// Inverse: column synthesis of output row n over subband columns
// [j0, j0 + len), one subband with vertical filter g.
template <int Ch>
void colSynth(const WtFilter& g, const Pxl32f* sb, int step, int n, int j0, int len, Pxl32f* line, bool add) {
  for (int j = 0; j < len; ++j)
    for (int c = 0; c < Ch; ++c) {
      Pxl32f acc = 0.0f;
      for (int k = g.len - 1; k >= 0; --k) {
        const int m = n + g.anchor - k;
        if (m & 1) continue;
        acc += g.taps[k] * loadSample(px(sb, step, m >> 1, j0 + j, Ch) + c);
      }
      storeSample(line + j * Ch + c, add ? loadSample(line + j * Ch + c) + acc : acc);
    }
}

template <int Ch>
void rowSynth(const WtFilter& g, const Pxl32f* line, int j0, Pxl32f* dst, int dstStep, int n, int x0, int sw,
              bool add) {
  for (int o = 2 * x0; o < 2 * (x0 + sw); ++o)
    for (int c = 0; c < Ch; ++c) {
      Pxl32f acc = 0.0f;
      for (int k = g.len - 1; k >= 0; --k) {
        const int m = o + g.anchor - k;
        if (m & 1) continue;
        acc += g.taps[k] * loadSample(line + ((m >> 1) - j0) * Ch + c);
      }
      Pxl32f* p = px(dst, dstStep, n, o, Ch) + c;
      storeSample(p, add ? loadSample(p) + acc : acc);
    }
}

}  // namespace

template <int Ch>
PxlStatus wtFwdInit(PxlWTFwdCtx** spec, const Pxl32f* lt, int ll, int la, const Pxl32f* ht, int hl, int ha) {
  PxlStatus st = checkFilters(spec, lt, ll, la, ht, hl, ha);
  if (st != pxlStsOk) return st;
  auto* s = static_cast<PxlWTFwdCtx*>(std::calloc(1, sizeof(PxlWTFwdCtx)));
  if (!s) return pxlStsAlloc;
  s->low = makeFilter(lt, ll, la, false);
  s->high = makeFilter(ht, hl, ha, false);
  if (!s->low || !s->high) { std::free(s->low); std::free(s->high); std::free(s); return pxlStsAlloc; }
  s->left = std::max(s->low->left, s->high->left);
  s->right = std::max(s->low->right, s->high->right);
  s->lineLength = s->left + s->right + 2 * kStrip;
  s->lineBytes = up32(4 * Ch * s->lineLength);
  s->tag = Ch == 1 ? 46 : 48;
  *spec = s;
  return pxlStsOk;
}

template <int Ch>
PxlStatus wtInvInit(PxlWTInvCtx** spec, const Pxl32f* lt, int ll, int la, const Pxl32f* ht, int hl, int ha) {
  PxlStatus st = checkFilters(spec, lt, ll, la, ht, hl, ha);
  if (st != pxlStsOk) return st;
  auto* s = static_cast<PxlWTInvCtx*>(std::calloc(1, sizeof(PxlWTInvCtx)));
  if (!s) return pxlStsAlloc;
  s->low = makeFilter(lt, ll, la, true);
  s->high = makeFilter(ht, hl, ha, true);
  if (!s->low || !s->high) { std::free(s->low); std::free(s->high); std::free(s); return pxlStsAlloc; }
  s->lineLengthLow = s->low->left + s->low->right + kStrip;
  s->lineLengthHigh = s->high->left + s->high->right + kStrip;
  s->lineBytes = up32(4 * Ch * s->lineLengthLow);
  s->tag = Ch == 1 ? 47 : 49;
  *spec = s;
  return pxlStsOk;
}

template <class Ctx, Pxl32s Tag>
PxlStatus wtFree(Ctx* s) {
  if (!s) return pxlStsNullPtr;
  if (!planOk(s, Tag)) return pxlStsSpecMismatch;
  s->tag = 0;
  std::free(s->low);
  std::free(s->high);
  std::free(s);
  return pxlStsOk;
}

template <int Ch>
PxlStatus wtFwdBufSize(const PxlWTFwdCtx* s, int* size) {
  if (!s) return pxlStsNullPtr;
  if (!planOk(s, Ch == 1 ? 46 : 48)) return pxlStsSpecMismatch;
  if (!size) return pxlStsNullPtr;
  *size = s->lineBytes + 4 * Ch * s->lineLength;
  return pxlStsOk;
}
template <int Ch>
PxlStatus wtInvBufSize(const PxlWTInvCtx* s, int* size) {
  if (!s) return pxlStsNullPtr;
  if (!planOk(s, Ch == 1 ? 47 : 49)) return pxlStsSpecMismatch;
  if (!size) return pxlStsNullPtr;
  *size = s->lineBytes + 4 * Ch * s->lineLengthHigh;
  return pxlStsOk;
}

template <int Ch>
PxlStatus wtFwd(const Pxl32f* src, int srcStep, Pxl32f* ll, int llStep, Pxl32f* hl, int hlStep, Pxl32f* lh,
                int lhStep, Pxl32f* hh, int hhStep, PxlSize roi, const PxlWTFwdCtx* s, Pxl8u* buffer) {
  if (!s) return pxlStsNullPtr;
  if (!planOk(s, Ch == 1 ? 46 : 48)) return pxlStsSpecMismatch;
  if (!buffer || !src || !ll || !hl || !lh || !hh) return pxlStsNullPtr;
  if (roi.width < 1 || roi.height < 1) return pxlStsSize;
  if (srcStep < 1 || llStep < 1 || hlStep < 1 || lhStep < 1 || hhStep < 1) return pxlStsStep;
  // The caller's buffer may start at any byte: lines are read and written
  // through byte copies.
  auto* lineL = reinterpret_cast<Pxl32f*>(buffer);
  auto* lineH = reinterpret_cast<Pxl32f*>(buffer + s->lineBytes);
  Pxl32f* const dsts[4] = {ll, hl, lh, hh};
  const int steps[4] = {llStep, hlStep, lhStep, hhStep};
  for (int x0 = 0; x0 < roi.width; x0 += kStrip) {
    const int sw = std::min(kStrip, roi.width - x0);
    for (int y = 0; y < roi.height; ++y) fwdRow<Ch>(s, src, srcStep, dsts, steps, y, x0, sw, lineL, lineH);
  }
  return pxlStsOk;
}

template <int Ch>
PxlStatus wtInv(const Pxl32f* ll, int llStep, const Pxl32f* hl, int hlStep, const Pxl32f* lh, int lhStep,
                const Pxl32f* hh, int hhStep, PxlSize roi, Pxl32f* dst, int dstStep, const PxlWTInvCtx* s,
                Pxl8u* buffer) {
  if (!s || !buffer) return pxlStsNullPtr;
  if (!planOk(s, Ch == 1 ? 47 : 49)) return pxlStsSpecMismatch;
  if (!dst || !ll || !hl || !lh || !hh) return pxlStsNullPtr;
  if (roi.width < 1 || roi.height < 1) return pxlStsSize;
  if (llStep < 1 || hlStep < 1 || lhStep < 1 || hhStep < 1 || dstStep < 1) return pxlStsStep;
  auto* lineA = reinterpret_cast<Pxl32f*>(buffer);
  auto* lineB = reinterpret_cast<Pxl32f*>(buffer + s->lineBytes);
  const WtFilter &lo = *s->low, &hi = *s->high;
  for (int x0 = 0; x0 < roi.width; x0 += kStrip) {
    const int sw = std::min(kStrip, roi.width - x0);
    const int jA = x0 - lo.left, nA = sw + lo.left + lo.right;
    const int jB = x0 - hi.left, nB = sw + hi.left + hi.right;
    for (int n = 0; n < 2 * roi.height; ++n) {
      colSynth<Ch>(lo, ll, llStep, n, jA, nA, lineA, false);
      colSynth<Ch>(hi, hl, hlStep, n, jA, nA, lineA, true);
      rowSynth<Ch>(lo, lineA, jA, dst, dstStep, n, x0, sw, false);
      colSynth<Ch>(lo, lh, lhStep, n, jB, nB, lineB, false);
      colSynth<Ch>(hi, hh, hhStep, n, jB, nB, lineB, true);
      rowSynth<Ch>(hi, lineB, jB, dst, dstStep, n, x0, sw, true);
    }
  }
  return pxlStsOk;
}

}  // namespace pxl::transform

#include "shims/transform/piwtfwd.inc"
