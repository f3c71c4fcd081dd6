// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/band_order.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace gdi::reader {
namespace {

// The whole page's order as text, "K0 K1 ... C0 ...", by sending what is expected.
std::vector<std::string> orderOf(std::uint32_t bands) {
  std::vector<std::string> names;
  BandCounts sent{};
  BandOrder order(bands);
  while (const std::optional<Ink> ink = order.expected()) {
    names.push_back("CMYK"[indexOf(*ink)] + std::to_string(sent[indexOf(*ink)]++));
    EXPECT_TRUE(order.take(*ink)) << names.back();
  }
  return names;
}

// Follows bands as their letters say. requires: each is the next one
void takeAll(BandOrder& order, const std::string& letters) {
  for (const char letter : letters) {
    const auto ink = static_cast<Ink>(std::string("CMYK").find(letter));
    EXPECT_TRUE(order.take(ink)) << letter << " of " << letters;
  }
}

TEST(BandOrder, AShortPageSendsItsPlanesOneAfterTheOther) {
  const std::vector<std::string> expected{"K0", "K1", "C0", "C1", "M0", "M1", "Y0", "Y1"};
  EXPECT_EQ(orderOf(2), expected);
}

TEST(BandOrder, CyanTrailsBlackBySixBands) {
  const std::vector<std::string> order = orderOf(28);
  ASSERT_EQ(order.size(), 112U);
  const std::vector<std::string> start(order.begin(), order.begin() + 10);
  EXPECT_EQ(start,
            (std::vector<std::string>{"K0", "K1", "K2", "K3", "K4", "K5", "K6", "C0", "K7", "C1"}));
  EXPECT_EQ(order.back(), "Y27");
}

TEST(BandOrder, StepEighteenSendsABandOfEveryPlane) {
  const std::vector<std::string> order = orderOf(28);
  const auto black = std::ranges::find(order, "K18");
  ASSERT_GE(order.end() - black, 4);
  EXPECT_EQ(std::vector<std::string>(black, black + 4),
            (std::vector<std::string>{"K18", "C12", "M6", "Y0"}));
}

TEST(BandOrder, StepsSendBlackAtOnceAndTheOtherPlanesBehindTheirLags) {
  // Indexed cyan, magenta, yellow, black.
  EXPECT_EQ(bandsOfSteps(0, 28), (BandCounts{0, 0, 0, 0}));
  EXPECT_EQ(bandsOfSteps(6, 28), (BandCounts{0, 0, 0, 6}));
  EXPECT_EQ(bandsOfSteps(20, 28), (BandCounts{14, 8, 2, 20}));
  EXPECT_EQ(bandsOfSteps(45, 28), (BandCounts{28, 28, 27, 28}));
  EXPECT_EQ(bandsOfSteps(46, 28), (BandCounts{28, 28, 28, 28}));
}

TEST(BandOrder, APageWithoutBandsExpectsNone) {
  BandOrder order(0);
  EXPECT_EQ(order.expected(), std::nullopt);
  EXPECT_FALSE(order.take(Ink::kBlack));
}

TEST(BandOrder, ABandTooManyIsOutOfOrder) {
  BandOrder order(1);
  takeAll(order, "KCMY");
  EXPECT_EQ(order.expected(), std::nullopt);
  EXPECT_FALSE(order.take(Ink::kYellow));
}

TEST(BandOrder, ALostBandIsToldOnce) {
  BandOrder order(28);
  takeAll(order, "KKKKKKK");
  EXPECT_EQ(order.expected(), Ink::kCyan);
  EXPECT_FALSE(order.take(Ink::kBlack));
  takeAll(order, "CKCKC");
}

TEST(BandOrder, WhoeverComesEarlyIsOutOfOrderAndNotThoseThatItOvertook) {
  BandOrder order(1);
  EXPECT_FALSE(order.take(Ink::kMagenta));
  takeAll(order, "CKY");
  EXPECT_EQ(order.expected(), std::nullopt);
}

TEST(BandOrder, ABandFarTooEarlyLeavesTheOrderWhereItIs) {
  BandOrder order(28);
  EXPECT_FALSE(order.take(Ink::kCyan));
  EXPECT_EQ(order.expected(), Ink::kBlack);
  takeAll(order, "KKKKKKKC");
}

}  // namespace
}  // namespace gdi::reader
