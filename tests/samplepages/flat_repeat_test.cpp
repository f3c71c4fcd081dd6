// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/flat_repeat.h"

#include <gtest/gtest.h>

#include "codec/pc4sc4_format.h"

namespace gdi::samplepages {
namespace {

TEST(FlatRepeat, IsTheLeastNumberOfWordsThatIsAWholeNumberOfTiles) {
  EXPECT_EQ(flatRepeatWords(17, 1), 17);
  EXPECT_EQ(flatRepeatWords(34, 1), 17);
  EXPECT_EQ(flatRepeatWords(28, 4), 7);
  EXPECT_EQ(flatRepeatWords(16, 1), 1);
  EXPECT_EQ(flatRepeatWords(1, 1), 1);
  EXPECT_EQ(flatRepeatWords(20, 2), 5);
}

TEST(FlatRepeat, OfAVeryWideTileDoesNotOverflow) {
  EXPECT_EQ(flatRepeatWords(2147483647, 8), 2147483647);
}

TEST(FlatRepeat, OfATileWiderThanTheCodecReachesIsBeyondIt) {
  EXPECT_LE(flatRepeatWords(128, 1), pc4sc4::kMaxDistance);
  EXPECT_GT(flatRepeatWords(129, 1), pc4sc4::kMaxDistance);
}

}  // namespace
}  // namespace gdi::samplepages
