// Fixed-kernel filters: Prewitt, Sobel, Scharr, Roberts, Laplace, Gauss,
// Hipass, Lowpass, Sharpen. Every kernel is data (a table below); the passes
// are written once and instantiated over sample forms and layouts.
//
// Integer forms sum exactly, so the order of the passes cannot change their
// bytes; it matters in 32f only, where each pipeline adds in the order it is
// defined with: column pass then row pass for the three-row pipeline, row
// pass first for C4 (and the 32f AC4 Vert filters), the five-row combination
// edge + middle + centre + middle + edge, and the running column sums of the
// 5x5 Hipass and Lowpass whose float rounding drifts down the image.
// These filters run on the caller's thread.
#pragma once

#include <cstdint>

#include "filter/neighbour.h"
#include "simd/vec.h"

namespace pxl::filter {

// How the weighted sum S becomes a result: nothing, or a division rounded to
// the nearest integer (ties to even) in the integer forms and a product with
// the divisor's reciprocal in 32f.
enum class Div : std::uint8_t { None, By8, By16, By9, By25, By571 };

inline float reciprocal(Div d) {
  switch (d) {
    case Div::By8: return 0.125f;
    case Div::By16: return 0.0625f;
    case Div::By9: return floatOfBits(0x3DE38E39u);
    case Div::By25: return floatOfBits(0x3D23D70Au);
    case Div::By571: return floatOfBits(0x3AE58C54u);
    default: return 1.0f;
  }
}
constexpr int divisorOf(Div d) {
  return d == Div::By8 ? 8 : d == Div::By16 ? 16 : d == Div::By9 ? 9 : d == Div::By25 ? 25 : d == Div::By571 ? 571 : 1;
}

// Nearest integer to s / D, ties to even; with D a constant the compiler
// divides by a multiplication.
template <int D>
inline std::int32_t roundDivBy(std::int32_t s) {
  if constexpr ((D & (D - 1)) == 0) {
    constexpr int sh = D == 8 ? 3 : 4;
    return (s + (D / 2 - 1) + ((s >> sh) & 1)) >> sh;  // arithmetic shift
  } else {
    return roundDiv(s, D);
  }
}

template <class D, class A>
inline D finish(A s, Div d) {
  if constexpr (std::is_same_v<A, float>) {
    return oneNaN(d == Div::None ? s : s * reciprocal(d));
  } else {
    switch (d) {
      case Div::By8: return saturate<D>(roundDivBy<8>(s));
      case Div::By16: return saturate<D>(roundDivBy<16>(s));
      case Div::By9: return saturate<D>(roundDivBy<9>(s));
      case Div::By25: return saturate<D>(roundDivBy<25>(s));
      case Div::By571: return saturate<D>(roundDivBy<571>(s));
      default: return saturate<D>(s);
    }
  }
}

// The three-row pipeline: the column pass t = col . (row y-1, y, y+1), then
// the row pass centre*s(x,y) + sign * row . (t(x-1), t(x), t(x+1)).
struct Three {
  int col[3];
  int row[3];
  int centre;  // weight of the current sample itself, added in the row pass
  bool minus;  // the row pass subtracts its sum from centre*s
  Div div;
  bool rowFirstAC4f = false;  // 32f AC4 takes the row-first way (the Vert filters)
};

// 5x5 Laplace and Gauss: one row pass gives three outputs per source row
// (the kernel's edge, middle and centre rows), then five rows are added.
struct Ring5 {
  int edge[5], middle[5], centre[5];
  Div div;
};
// 5x5 Sobel: the outer product of a column vector and a row vector.
struct Sep5 {
  int col[5], row[5];
};

namespace k {
constexpr Three PrewittHoriz{{-1, 0, 1}, {1, 1, 1}, 0, false, Div::None};
constexpr Three PrewittVert{{1, 1, 1}, {1, 0, -1}, 0, false, Div::None, true};
constexpr Three SobelHoriz{{-1, 0, 1}, {1, 2, 1}, 0, false, Div::None};
constexpr Three SobelVert{{1, 2, 1}, {1, 0, -1}, 0, false, Div::None, true};
constexpr Three SobelVertSecond{{1, 2, 1}, {1, -2, 1}, 0, false, Div::None};
constexpr Three SobelHorizSecond{{1, -2, 1}, {1, 2, 1}, 0, false, Div::None};
constexpr Three SobelCross{{-1, 0, 1}, {1, 0, -1}, 0, false, Div::None};
constexpr Three ScharrVert{{3, 10, 3}, {-1, 0, 1}, 0, false, Div::None};
constexpr Three ScharrHoriz{{-1, 0, 1}, {3, 10, 3}, 0, false, Div::None};
constexpr Three Laplace3{{1, 1, 1}, {1, 1, 1}, 9, true, Div::None};
constexpr Three Gauss3{{1, 2, 1}, {1, 2, 1}, 0, false, Div::By16};
constexpr Three Lowpass3{{1, 1, 1}, {1, 1, 1}, 0, false, Div::By9};
constexpr Three Sharpen{{1, 1, 1}, {1, 1, 1}, 17, true, Div::By8};

constexpr Ring5 Laplace5{{-1, -3, -4, -3, -1}, {-3, 0, 6, 0, -3}, {-4, 6, 20, 6, -4}, Div::None};
constexpr Ring5 Gauss5{{2, 7, 12, 7, 2}, {7, 31, 52, 31, 7}, {12, 52, 127, 52, 12}, Div::By571};

constexpr Sep5 SobelVert5{{1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}};
constexpr Sep5 SobelHoriz5{{-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}};
constexpr Sep5 SobelVertSecond5{{1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}};
constexpr Sep5 SobelHorizSecond5{{1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}};
constexpr Sep5 SobelCross5{{-1, -2, 0, 2, 1}, {1, 2, 0, -2, -1}};
// The running 5x5 sums carry no weights.
constexpr int Running5 = 0;
}  // namespace k

// One image of a filter's call: the ROI origin of both images, their steps,
// and the layout's pixel stride and processed channels.
template <class S, class D, Lay L>
struct View {
  const S* src;
  int ss;
  D* dst;
  int ds;
  PxlSize roi;
  static constexpr int C = channelsOf(L);
  static constexpr int P = processedOf(L);
  const S* srow(int y) const { return rowAt(src, ss, y); }
  D* drow(int y) const { return rowAt(dst, ds, y); }
};

// The three-row pipeline. Column first: t covers one pixel left and right of
// the ROI. Row first (C4, and the 32f AC4 Vert filters): three rows of row
// sums are combined down the rows. t holds 3 * (width + 2) * C elements.
template <bool RowFirst, class S, class D, Lay L>
void runThree(const Three& k, const View<S, D, L>& v, Acc<S>* t) {
  using A = Acc<S>;
  constexpr int C = View<S, D, L>::C, P = View<S, D, L>::P;
  const int w = v.roi.width, n = (w + 2) * C;
  for (int y = 0; y < v.roi.height; ++y) {
    const S* mid = v.srow(y);
    D* out = v.drow(y);
    if constexpr (!RowFirst) {
      const S* a = v.srow(y - 1) - C;
      const S* b = mid - C;
      const S* c = v.srow(y + 1) - C;
      for (int i = 0; i < n; ++i)
        t[i] = A(k.col[0]) * A(loadSample(a + i)) + A(k.col[1]) * A(loadSample(b + i)) + A(k.col[2]) * A(loadSample(c + i));
      const A w0 = A(k.row[0]), w1 = A(k.row[1]), w2 = A(k.row[2]), wc = A(k.centre);
      if (P == C) {
        // Every sample is filtered: one flat loop over the row's samples.
        for (int i = 0; i < w * C; ++i) {
          const A* m = t + C + i;
          A r = w0 * m[-C] + w1 * m[0] + w2 * m[C];
          if (k.minus) r = wc * A(loadSample(mid + i)) - r;
          storeSample(out + i, finish<D>(r, k.div));
        }
      } else {
        for (int x = 0; x < w; ++x)
          for (int ch = 0; ch < P; ++ch) {
            const A* m = t + (x + 1) * C + ch;
            A r = w0 * m[-C] + w1 * m[0] + w2 * m[C];
            if (k.minus) r = wc * A(loadSample(mid + x * C + ch)) - r;
            storeSample(out + x * C + ch, finish<D>(r, k.div));
          }
      }
    } else {
      // Row sums of rows y-1, y, y+1 at every ROI position.
      for (int j = 0; j < 3; ++j) {
        const S* s = v.srow(y - 1 + j);
        A* u = t + j * n;
        for (int x = 0; x < w; ++x)
          for (int ch = 0; ch < P; ++ch) {
            const S* m = s + x * C + ch;
            u[x * C + ch] = A(k.row[0]) * A(loadSample(m - C)) + A(k.row[1]) * A(loadSample(m)) + A(k.row[2]) * A(loadSample(m + C));
          }
      }
      for (int x = 0; x < w; ++x)
        for (int ch = 0; ch < P; ++ch) {
          const int i = x * C + ch;
          A r = A(k.col[0]) * t[i] + A(k.col[1]) * t[n + i] + A(k.col[2]) * t[2 * n + i];
          if (k.minus) r = A(k.centre) * A(loadSample(mid + i)) - r;
          storeSample(out + i, finish<D>(r, k.div));
        }
    }
  }
}

// Dot product of five taps centred on p, one pixel (C samples) apart.
template <class A, class S>
inline A dot5(const int* w, const S* p, int C) {
  A r = A(w[0]) * A(loadSample(p - 2 * C));
  for (int i = 1; i < 5; ++i) r = r + A(w[i]) * A(loadSample(p + (i - 2) * C));
  return r;
}

// 5x5 Laplace and Gauss: each source row gets its three row passes (edge,
// middle and centre rows of the kernel) once, into rings of five rows
// indexed by the source row; output row y then adds edge(y-2) + middle(y-1)
// + centre(y) + middle(y+1) + edge(y+2) in that order.
template <class S, class D, Lay L>
void runRing5(const Ring5& k, const View<S, D, L>& v, Acc<S>* t) {
  using A = Acc<S>;
  constexpr int C = View<S, D, L>::C, P = View<S, D, L>::P;
  const int w = v.roi.width, n = w * C;
  auto slot = [&](int which, int row) { return t + (which * 5 + ((row % 5) + 5) % 5) * n; };
  auto rowPass = [&](int row) {
    const S* s = v.srow(row);
    A *e = slot(0, row), *m = slot(1, row), *c = slot(2, row);
    for (int x = 0; x < w; ++x)
      for (int ch = 0; ch < P; ++ch) {
        const int i = x * C + ch;
        e[i] = dot5<A>(k.edge, s + i, C);
        m[i] = dot5<A>(k.middle, s + i, C);
        c[i] = dot5<A>(k.centre, s + i, C);
      }
  };
  for (int row = -2; row < 2; ++row) rowPass(row);
  for (int y = 0; y < v.roi.height; ++y) {
    rowPass(y + 2);
    const A *e0 = slot(0, y - 2), *m1 = slot(1, y - 1), *c2 = slot(2, y), *m3 = slot(1, y + 1), *e4 = slot(0, y + 2);
    D* out = v.drow(y);
    for (int x = 0; x < w; ++x)
      for (int ch = 0; ch < P; ++ch) {
        const int i = x * C + ch;
        storeSample(out + i, finish<D>(e0[i] + m1[i] + c2[i] + m3[i] + e4[i], k.div));
      }
  }
}

// 5x5 Sobel (C1): the row vector over five source rows, then the column one.
template <class S, class D>
void runSep5(const Sep5& k, const View<S, D, Lay::C1>& v, Acc<S>* t) {
  using A = Acc<S>;
  const int w = v.roi.width;
  for (int y = 0; y < v.roi.height; ++y) {
    for (int j = 0; j < 5; ++j) {
      const S* s = v.srow(y - 2 + j);
      for (int x = 0; x < w; ++x) t[j * w + x] = dot5<A>(k.row, s + x, 1);
    }
    D* out = v.drow(y);
    for (int x = 0; x < w; ++x) {
      A r = A(k.col[0]) * t[x];
      for (int j = 1; j < 5; ++j) r = r + A(k.col[j]) * t[j * w + x];
      storeSample(out + x, finish<D>(r, Div::None));
    }
  }
}

// 5x5 Hipass (25*s - S) and Lowpass (S / 25), S the 25-sample sum.
// Column first: one row of five-row column sums over width + 4 pixels slides
// down the image, t + s(y+3) - s(y-2), subtracting first.
// Row first (C4 Hipass): five rows of five-wide row sums and one running
// total, total - oldest + newest.
template <bool RowFirst, bool Hipass, class S, class D, Lay L>
void runRunning5(const View<S, D, L>& v, Acc<S>* t) {
  using A = Acc<S>;
  constexpr int C = View<S, D, L>::C, P = View<S, D, L>::P;
  const int w = v.roi.width;
  const Div div = Hipass ? Div::None : Div::By25;
  auto emit = [&](D* out, const S* mid, int i, A s) {
    storeSample(out + i, finish<D>(Hipass ? A(25) * A(loadSample(mid + i)) - s : s, div));
  };
  if constexpr (!RowFirst) {
    const int n = (w + 4) * C;
    for (int i = 0; i < n; ++i) {
      A s = A(loadSample(v.srow(-2) - 2 * C + i));
      for (int j = -1; j <= 2; ++j) s = s + A(loadSample(v.srow(j) - 2 * C + i));
      t[i] = s;
    }
    for (int y = 0; y < v.roi.height; ++y) {
      const S* mid = v.srow(y);
      D* out = v.drow(y);
      for (int x = 0; x < w; ++x)
        for (int ch = 0; ch < P; ++ch) {
          const A* m = t + (x + 2) * C + ch;
          emit(out, mid, x * C + ch, m[-2 * C] + m[-C] + m[0] + m[C] + m[2 * C]);
        }
      if (y + 1 < v.roi.height) {
        const S* leave = v.srow(y - 2) - 2 * C;
        const S* enter = v.srow(y + 3) - 2 * C;
        for (int i = 0; i < n; ++i) t[i] = (t[i] - A(loadSample(leave + i))) + A(loadSample(enter + i));
      }
    }
  } else {
    const int n = w * C;
    static const int ones[5] = {1, 1, 1, 1, 1};
    A* total = t + 5 * n;
    auto rowSums = [&](int y, A* r) {
      const S* s = v.srow(y);
      for (int x = 0; x < w; ++x)
        for (int ch = 0; ch < P; ++ch) r[x * C + ch] = dot5<A>(ones, s + x * C + ch, C);
    };
    for (int j = 0; j < 5; ++j) rowSums(j - 2, t + j * n);
    for (int i = 0; i < n; ++i) total[i] = t[i] + t[n + i] + t[2 * n + i] + t[3 * n + i] + t[4 * n + i];
    for (int y = 0; y < v.roi.height; ++y) {
      const S* mid = v.srow(y);
      D* out = v.drow(y);
      for (int x = 0; x < w; ++x)
        for (int ch = 0; ch < P; ++ch) emit(out, mid, x * C + ch, total[x * C + ch]);
      if (y + 1 < v.roi.height) {
        A* oldest = t + (y % 5) * n;  // the slot of row y-2
        for (int i = 0; i < n; ++i) total[i] = total[i] - oldest[i];
        rowSums(y + 3, oldest);
        for (int i = 0; i < n; ++i) total[i] = total[i] + oldest[i];
      }
    }
  }
}

// The frame of every fixed filter: nulls, size, steps, then the mask where
// the family has a strict test, then one scratch block.
inline PxlStatus fixedChecks(const void* src, int ss, const void* dst, int ds, PxlSize roi) {
  if (anyNull(src, dst)) return pxlStsNullPtr;
  return checkShape<Order::NST>(roi, ss, ds);
}

// Which pipeline a call takes.
enum class Pipe : std::uint8_t { Three, Ring5, Sep5, Hipass5, Lowpass5 };

template <Pipe Pp, class S, class D, Lay L>
PxlStatus runFixed(const void* kernel, const S* src, int ss, D* dst, int ds, PxlSize roi) {
  using A = Acc<S>;
  const View<S, D, L> v{src, ss, dst, ds, roi};
  constexpr int C = channelsOf(L);
  const long long w = roi.width;
  if constexpr (Pp == Pipe::Three) {
    const Three& k = *static_cast<const Three*>(kernel);
    const bool rowFirst = L == Lay::C4 || (std::is_same_v<S, Pxl32f> && L == Lay::AC4 && k.rowFirstAC4f);
    Scratch<A> t(3 * (w + 2) * C);
    if (!t.ok()) return pxlStsAlloc;
    if (rowFirst)
      runThree<true>(k, v, t.get());
    else
      runThree<false>(k, v, t.get());
  } else if constexpr (Pp == Pipe::Ring5) {
    Scratch<A> t(15 * w * C);
    if (!t.ok()) return pxlStsAlloc;
    runRing5(*static_cast<const Ring5*>(kernel), v, t.get());
  } else if constexpr (Pp == Pipe::Sep5) {
    if constexpr (L == Lay::C1) {
      Scratch<A> t(5 * w);
      if (!t.ok()) return pxlStsAlloc;
      runSep5(*static_cast<const Sep5*>(kernel), v, t.get());
    }
  } else {
    constexpr bool hipass = Pp == Pipe::Hipass5;
    Scratch<A> t(L == Lay::C4 ? 6 * w * C : (w + 4) * C);
    if (!t.ok()) return pxlStsAlloc;
    if constexpr (L == Lay::C4)
      runRunning5<true, hipass>(v, t.get());
    else
      runRunning5<false, hipass>(v, t.get());
  }
  return pxlStsOk;
}

// The exported shapes: a 3x3 filter without a mask argument; one with a
// strict mask (33 or 55, else an error); the 32f Sobel mask forms, where 33
// is 3x3 and any other code 5x5.
template <const Three& K, class S, class D, Lay L>
PxlStatus fixed3(const S* src, int ss, D* dst, int ds, PxlSize roi) {
  if (PxlStatus st = fixedChecks(src, ss, dst, ds, roi)) return st;
  return runFixed<Pipe::Three, S, D, L>(&K, src, ss, dst, ds, roi);
}

template <const Three& K3, Pipe P5, const auto& K5, bool Strict, class S, class D, Lay L>
PxlStatus fixedMask(const S* src, int ss, D* dst, int ds, PxlSize roi, int mask) {
  if (PxlStatus st = fixedChecks(src, ss, dst, ds, roi)) return st;
  if (Strict && !strictMaskOk(mask)) return pxlStsMaskSize;
  if (mask == pxlMask3x3) return runFixed<Pipe::Three, S, D, L>(&K3, src, ss, dst, ds, roi);
  return runFixed<P5, S, D, L>(&K5, src, ss, dst, ds, roi);
}

// Roberts: the current pixel minus a neighbour one row up, one pixel to the
// right (Up) or left (Down), saturated as a subtraction with scale 0.
template <int Dx, class T, Lay L>
PxlStatus roberts(const T* src, int ss, T* dst, int ds, PxlSize roi) {
  if (PxlStatus st = fixedChecks(src, ss, dst, ds, roi)) return st;
  constexpr int C = channelsOf(L), P = processedOf(L);
  using A = Acc<T>;
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, ss, y);
    const T* up = rowAt(src, ss, y - 1) + Dx * C;
    T* out = rowAt(dst, ds, y);
    for (int x = 0; x < roi.width; ++x)
      for (int ch = 0; ch < P; ++ch) {
        const int i = x * C + ch;
        storeSample(out + i, saturate<T>(A(loadSample(s + i)) - A(loadSample(up + i))));
      }
  }
  return pxlStsOk;
}

}  // namespace pxl::filter
