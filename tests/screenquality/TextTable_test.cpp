// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/TextTable.h"

#include <sstream>

#include <gtest/gtest.h>

namespace gdi::screenquality {
namespace {

TEST(TextTable, WordsStandLeftAndFiguresRight) {
  TextTable table({"name", "J", "repeat"}, 1);
  table.add({"a", "1.25", "5"});
  table.add({"longer", "10.00", "12"});
  std::ostringstream out;
  table.write(out);
  EXPECT_EQ(out.str(),
            "name        J  repeat\n"
            "a        1.25       5\n"
            "longer  10.00      12\n");
}

TEST(TextTable, LinesEndWithoutBlanks) {
  TextTable table({"a", "b"}, 2);
  table.add({"x", "longer"});
  std::ostringstream out;
  table.write(out);
  EXPECT_EQ(out.str(), "a  b\nx  longer\n");
}

TEST(Figure, HasTheDigitsThatAreAskedFor) {
  EXPECT_EQ(figure(1.0), "1.00");
  EXPECT_EQ(figure(1.2345, 3), "1.234");
}

}  // namespace
}  // namespace gdi::screenquality
