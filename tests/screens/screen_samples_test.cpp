// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Screening with every set of instructions, compared with its definition.

#include <algorithm>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "halftone/screens/HalftoneScreen.h"
#include "tests/screens/PixelByPixel.h"
#include "tests/screens/screen_bytes.h"
#include "tests/support/instruction_sets.h"

namespace gdi {
namespace {

// Entries packed from the most significant bits down.
Bytes packed(const Bytes& entries, int depth) {
  Bytes table((entries.size() * static_cast<std::size_t>(depth) + 7) / 8);
  std::size_t bit = 0;
  for (const unsigned entry : entries) {
    for (int i = depth - 1; i >= 0; --i, ++bit) {
      table[bit / 8] |= static_cast<std::uint8_t>(((entry >> i) & 1U) << (7 - bit % 8));
    }
  }
  return table;
}

struct RandomScreen {
  std::unique_ptr<HalftoneScreen> screen;
  PixelByPixel definition;
};

class WideScreening : public testing::Test {
 protected:
  int anyOf(std::initializer_list<int> values) {
    return *(values.begin() + below(static_cast<int>(values.size())));
  }
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  // A screen of random cells; when it `rises`, cells that never decrease and begin with 0.
  RandomScreen screen(int width, int height, int inputDepth, int outputDepth, bool rises) {
    const std::size_t levels = std::size_t{1} << inputDepth;
    Bytes entries = randomBytes(
        random_, static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * levels);
    for (std::uint8_t& entry : entries) {
      entry = static_cast<std::uint8_t>(entry >> (8 - outputDepth));
    }
    for (auto cell = entries.begin(); rises && cell != entries.end();
         cell += std::ssize(entries) / (width * height)) {
      std::sort(cell, cell + static_cast<std::ptrdiff_t>(levels));
      *cell = 0;
    }
    const Bytes table = packed(entries, outputDepth);
    const std::string header = "1 " + std::to_string(width) + " " + std::to_string(height) + " " +
                               std::to_string(inputDepth) + " " + std::to_string(outputDepth);
    return {HalftoneScreen::loadFromData(screenFile(header, table)),
            {width, height, inputDepth, outputDepth, table}};
  }

  // Samples with stretches of 0, as pages have them.
  Bytes samples(int count) {
    Bytes line = randomBytes(random_, static_cast<std::size_t>(count));
    const int blankFrom = below(count);
    const int blankTo = blankFrom + below(count - blankFrom + 1);
    std::fill(line.begin() + blankFrom, line.begin() + blankTo, std::uint8_t{0});
    return line;
  }

  // Screens with every set of instructions. No byte behind the last sample can be read, none behind
  // the last pixel written.
  static void expectAsDefined(const RandomScreen& random, const Bytes& line, int stride, int row,
                              int depth) {
    ASSERT_NE(random.screen, nullptr);
    const Bytes expected = random.definition.row(line, row, depth);
    const GuardedBytes input((line.size() - 1) * static_cast<std::size_t>(stride) + 1);
    for (std::size_t x = 0; x < line.size(); ++x) {
      input.data()[x * static_cast<std::size_t>(stride)] = line[x];
    }
    test::withEveryInstructionSet([&](const char* target) {
      const GuardedBytes output(expected.size());
      EXPECT_TRUE(random.screen->processScanline(input.data(), static_cast<int>(line.size()),
                                                 stride, row, output.data(), depth));
      EXPECT_EQ(output.bytes(), expected)
          << line.size() << " pixels of " << depth << " bits, stride " << stride << ", row " << row
          << ", " << target;
      EXPECT_TRUE(output.untouchedBefore());
    });
  }

 private:
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): every run tests the same bytes.
  std::mt19937 random_{20260102U};
};

TEST_F(WideScreening, OfALineOfAnyLengthIsAsDefined) {
  for (const int depth : {1, 2, 4, 8}) {
    const RandomScreen random = screen(19, 2, 8, std::min(depth, 4), true);
    for (int pixels = 1; pixels <= 300; ++pixels) {
      expectAsDefined(random, samples(pixels), anyOf({1, 3, 4}), pixels, depth);
    }
  }
}

TEST_F(WideScreening, ByATileOfAnyWidthIsAsDefined) {
  for (int width = 1; width <= 70; ++width) {
    const int stored = anyOf({1, 2, 4});
    const RandomScreen random = screen(width, 1 + below(3), 8, stored, true);
    for (const int depth : {1, 2, 4, 8}) {
      for (const int stride : {1, 3, 4}) {
        expectAsDefined(random, samples(100 + below(200)), stride, below(20), depth);
      }
    }
  }
  expectAsDefined(screen(256, 1, 8, 4, true), samples(700), 4, 0, 4);
}

TEST_F(WideScreening, AtAnyDepthsIsAsDefined) {
  for (const bool rises : {true, false}) {
    for (const int inputDepth : {1, 2, 4, 8}) {
      for (const int stored : {1, 2, 4, 8}) {
        const RandomScreen random = screen(1 + below(70), 1 + below(4), inputDepth, stored, rises);
        for (const int depth : {1, 2, 4, 8}) {
          for (int line = 0; line < 4; ++line) {
            expectAsDefined(random, samples(1 + below(300)), anyOf({1, 3, 4}), below(20), depth);
          }
        }
      }
    }
  }
}

TEST_F(WideScreening, ABlankLineLeavesPaperBlankWhenTheScreenSaysSo) {
  for (const bool rises : {true, false}) {
    const RandomScreen random = screen(30, 3, 8, 4, rises);
    ASSERT_NE(random.screen, nullptr);
    EXPECT_EQ(random.screen->leavesPaperBlank(), rises);
    for (const int depth : {1, 2, 4, 8}) {
      expectAsDefined(random, Bytes(300), 4, 0, depth);
    }
  }
}

}  // namespace
}  // namespace gdi
