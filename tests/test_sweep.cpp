// Bad arguments for every member the registry knows the check order of:
// each fault alone, and two faults at once where the order decides which
// one is reported. Whatever the status, nothing may be written.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "harness/guard.h"
#include "sweep.h"

namespace {

using pxltest::Place;
using pxltest::TestImage;

struct Case {
  std::string what;
  std::function<void(SweepArgs&)> apply;
  PxlStatus expect;
};

std::vector<Case> casesFor(const SweepEntry& e) {
  const std::string order = e.order;
  const bool steps = order.find('T') != std::string::npos;
  const bool stepsFirst = order == "NTS";
  const bool planesLast = order.find('P') != std::string::npos;
  std::vector<Case> cs;
  for (int i = 0; i < e.images; ++i)
    cs.push_back({"null pointer " + std::to_string(i), [i](SweepArgs& a) { a.img[i] = nullptr; }, pxlStsNullPtr});
  if (e.planar != 0) {
    cs.push_back({"null plane", [](SweepArgs& a) { a.planes[1] = nullptr; }, pxlStsNullPtr});
    cs.push_back({"null plane and width 0", [](SweepArgs& a) { a.planes[2] = nullptr, a.roi.width = 0; },
                  e.folds || planesLast ? pxlStsSize : pxlStsNullPtr});
  }
  if (e.valuePtr) cs.push_back({"null value", [](SweepArgs& a) { a.value = nullptr; }, pxlStsNullPtr});
  if (e.vector) {
    for (int n : {0, -1}) cs.push_back({"length " + std::to_string(n), [n](SweepArgs& a) { a.length = n; }, pxlStsSize});
    cs.push_back({"null and length 0", [](SweepArgs& a) { a.img[0] = nullptr, a.length = 0; }, pxlStsNullPtr});
    return cs;
  }
  if (order == "N") {
    // Sizes and steps are not examined at all: only null pointers fail.
    cs.push_back({"null and width 0", [](SweepArgs& a) { a.img[0] = nullptr, a.roi.width = 0; }, pxlStsNullPtr});
    return cs;
  }
  for (int n : {0, -1}) {
    cs.push_back({"width " + std::to_string(n), [n](SweepArgs& a) { a.roi.width = n; }, pxlStsSize});
    cs.push_back({"height " + std::to_string(n), [n](SweepArgs& a) { a.roi.height = n; }, pxlStsSize});
  }
  const int last = e.images - 1, lastStep = e.steps - 1;
  cs.push_back({"null and width 0", [](SweepArgs& a) { a.img[0] = nullptr, a.roi.width = 0; },
                e.folds ? pxlStsSize : pxlStsNullPtr});
  cs.push_back({"null and height 0", [last](SweepArgs& a) { a.img[last] = nullptr, a.roi.height = 0; },
                pxlStsNullPtr});
  if (steps) {
    for (int j = 0; j < e.steps; ++j)
      for (int n : {0, -1})
        cs.push_back({"step " + std::to_string(j) + " = " + std::to_string(n),
                      [j, n](SweepArgs& a) { a.step[j] = n; }, pxlStsStep});
    cs.push_back({"width 0 and step -1", [](SweepArgs& a) { a.roi.width = 0, a.step[0] = -1; },
                  stepsFirst ? pxlStsStep : pxlStsSize});
    cs.push_back({"height -1 and last step 0",
                  [lastStep](SweepArgs& a) { a.roi.height = -1, a.step[lastStep] = 0; },
                  stepsFirst ? pxlStsStep : pxlStsSize});
    cs.push_back({"null and step 0", [lastStep](SweepArgs& a) { a.img[0] = nullptr, a.step[lastStep] = 0; },
                  pxlStsNullPtr});
  } else {
    // Steps are not examined at all: the size fault is the one reported.
    cs.push_back({"width 0 and step -1", [](SweepArgs& a) { a.roi.width = 0, a.step[0] = -1; }, pxlStsSize});
  }
  return cs;
}

TEST(ArgumentSweep, EveryMemberReportsInItsOrderAndWritesNothing) {
  constexpr int kW = 16, kH = 6, kPix = 32, kPad = 32;
  std::vector<std::unique_ptr<TestImage>> imgs;
  for (int i = 0; i < 8; ++i)  // four images, then four planes
    imgs.push_back(std::make_unique<TestImage>(kW, kH, kPix, kPad, kPad, Place::Back, 11 + i));
  alignas(16) unsigned char values[64];
  for (int i = 0; i < 64; ++i) values[i] = static_cast<unsigned char>(i + 1);  // distinct constants

  int checked = 0;
  for (const SweepEntry& e : kSweepTable) {
    for (const Case& c : casesFor(e)) {
      SweepArgs a{};
      for (int i = 0; i < 4; ++i) a.img[i] = imgs[i]->roi(), a.step[i] = imgs[i]->step();
      a.roi = {8, 4};
      a.length = 8;
      a.scale = 0;
      a.value = values;
      for (int p = 0; p < 4; ++p) a.planes[p] = imgs[4 + p]->roi();
      a.order[0] = 2, a.order[1] = 1, a.order[2] = 0;
      for (int i = 0; i < 4; ++i)
        if (e.planar & (1 << i)) a.img[i] = a.planes;
      c.apply(a);
      std::vector<std::vector<std::uint8_t>> before;
      for (auto& im : imgs) before.push_back(im->snapshot());
      const PxlStatus st = e.call(a);
      EXPECT_EQ(st, c.expect) << e.name << ": " << c.what;
      for (std::size_t i = 0; i < imgs.size(); ++i)
        EXPECT_TRUE(imgs[i]->unchanged(before[i])) << e.name << " wrote on " << c.what;
      ++checked;
    }
  }
  EXPECT_GT(checked, 2000);
}

}  // namespace

// Every member on valid arguments twice: once with every image, plane and
// constant on a 64-byte boundary and rows a multiple of 64 bytes apart, once
// with every one of them one byte off and rows an odd number of bytes
// apart. The statuses and every row's bytes must agree; under the
// sanitizers this also proves that no sample is read or written through a
// pointer that is not on its natural boundary.
TEST(ArgumentSweep, OddAddressesAndStepsGiveTheAlignedResult) {
  constexpr int kSide = 70, kPix = 64, kW = kSide + 4, kRows = kSide + 6;  // room for a border
  constexpr int kStep = kW * kPix, kImages = 8;
  std::mt19937 rng(77);
  std::vector<std::uint8_t> init(std::size_t(kImages) * kRows * kStep);
  // No zero bytes: a zero float divisor makes Div 32f treat its aligned
  // block apart, which is placed differently at another address.
  for (auto& b : init) b = static_cast<std::uint8_t>(1 + rng() % 255);
  std::uint8_t values[64];
  for (int i = 0; i < 64; ++i) values[i] = static_cast<std::uint8_t>(i + 1);

  struct Layout {
    std::vector<std::uint8_t> mem;
    std::uint8_t* img[kImages];
    std::uint8_t* value;
    int step;
  };
  auto layout = [&](int skew) {
    auto l = std::make_unique<Layout>();
    l->step = kStep + skew;
    l->mem.assign(std::size_t(kImages) * kRows * l->step + 256, 0xEE);
    auto* base = reinterpret_cast<std::uint8_t*>((reinterpret_cast<std::uintptr_t>(l->mem.data()) + 63) & ~std::uintptr_t(63));
    l->value = base + skew;
    // Each image starts two rows and one pixel into its block: in place, a
    // border is written around the ROI.
    for (int i = 0; i < kImages; ++i) l->img[i] = base + 64 + skew + (std::size_t(i) * kRows + 2) * l->step + kPix;
    return l;
  };
  auto load = [&](Layout& l) {
    std::memcpy(l.value, values, sizeof values);
    for (int i = 0; i < kImages; ++i)
      for (int y = 0; y < kRows; ++y)
        std::memcpy(l.img[i] + (y - 2) * l.step - kPix, init.data() + (std::size_t(i) * kRows + y) * kStep, kStep);
  };
  auto call = [&](const SweepEntry& e, Layout& l) {
    SweepArgs a{};
    for (int i = 0; i < 4; ++i) a.img[i] = l.img[i], a.step[i] = l.step;
    a.roi = {kSide, kSide};
    a.length = (kStep - 2 * kPix) / 16;  // within one row for any sample size
    a.value = l.value;
    for (int p = 0; p < 4; ++p) a.planes[p] = l.img[4 + p];
    a.order[0] = 2, a.order[1] = 1, a.order[2] = 0;
    void* planes[4] = {a.planes[0], a.planes[1], a.planes[2], a.planes[3]};
    for (int i = 0; i < 4; ++i)
      if (e.planar & (1 << i)) a.img[i] = planes;
    return e.call(a);
  };
  const auto even = layout(0), odd = layout(1);
  int checked = 0;
  for (const SweepEntry& e : kSweepTable) {
    // Resize counts its steps in whole samples: a step that is no multiple
    // of the sample is floored, so an odd step is another image there.
    const std::string name = e.name;
    if (name.rfind("pxliResize_16u", 0) == 0 || name.rfind("pxliResize_32f", 0) == 0) continue;
    load(*even), load(*odd);
    const PxlStatus s0 = call(e, *even), s1 = call(e, *odd);
    ASSERT_EQ(s0, s1) << e.name;
    for (int i = 0; i < kImages; ++i)
      for (int y = 0; y < kRows; ++y)
        ASSERT_EQ(0, std::memcmp(even->img[i] + (y - 2) * even->step - kPix, odd->img[i] + (y - 2) * odd->step - kPix, kStep))
            << e.name << " image " << i << " row " << y;
    ++checked;
  }
  EXPECT_GT(checked, 1000);
}
