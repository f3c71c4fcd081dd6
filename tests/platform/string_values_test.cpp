// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/string_values.h"

#include <limits>

#include <gtest/gtest.h>

namespace gdi {
namespace {

TEST(IntValue, ReadsTheLeadingDigits) {
  EXPECT_EQ(intValue("42"), 42);
  EXPECT_EQ(intValue("42 pages"), 42);
  EXPECT_EQ(intValue("3.9"), 3);
  EXPECT_EQ(intValue("007"), 7);
}

TEST(IntValue, SkipsLeadingBlanks) {
  EXPECT_EQ(intValue(" \t\n 12"), 12);
}

TEST(IntValue, TakesOneSign) {
  EXPECT_EQ(intValue("-5"), -5);
  EXPECT_EQ(intValue("+5"), 5);
  EXPECT_EQ(intValue("+-5"), 0);
  EXPECT_EQ(intValue("--5"), 0);
  EXPECT_EQ(intValue("- 5"), 0);
}

TEST(IntValue, IsZeroWithoutDigits) {
  EXPECT_EQ(intValue(""), 0);
  EXPECT_EQ(intValue("   "), 0);
  EXPECT_EQ(intValue("-"), 0);
  EXPECT_EQ(intValue("true"), 0);
  EXPECT_EQ(intValue("x1"), 0);
}

TEST(IntValue, StaysAtItsLimits) {
  using Limits = std::numeric_limits<int>;
  EXPECT_EQ(intValue("2147483647"), Limits::max());
  EXPECT_EQ(intValue("2147483648"), Limits::max());
  EXPECT_EQ(intValue("-2147483648"), Limits::min());
  EXPECT_EQ(intValue("-2147483649"), Limits::min());
  EXPECT_EQ(intValue("99999999999999999999999999"), Limits::max());
  EXPECT_EQ(intValue("-99999999999999999999999999"), Limits::min());
}

TEST(LeadingInteger, HoldsSixtyFourBits) {
  using Limits = std::numeric_limits<std::int64_t>;
  EXPECT_EQ(leadingInteger("2147483648"), 2147483648);
  EXPECT_EQ(leadingInteger("-9223372036854775808"), Limits::min());
  EXPECT_EQ(leadingInteger("9223372036854775808"), Limits::max());
  EXPECT_EQ(leadingInteger("-9223372036854775809"), Limits::min());
}

TEST(CaseInsensitiveEqual, IgnoresTheCaseOfASCIILettersOnly) {
  EXPECT_TRUE(caseInsensitiveEqual("True", "tRUE"));
  EXPECT_TRUE(caseInsensitiveEqual("", ""));
  EXPECT_TRUE(caseInsensitiveEqual("az", "AZ"));
  EXPECT_FALSE(caseInsensitiveEqual("[", "{"));  // 32 apart, as the letters are
  EXPECT_FALSE(caseInsensitiveEqual("@", "`"));
  EXPECT_FALSE(caseInsensitiveEqual("É", "é"));
}

TEST(CaseInsensitiveEqual, ComparesTheWholeTexts) {
  EXPECT_FALSE(caseInsensitiveEqual("true", "true "));
  EXPECT_FALSE(caseInsensitiveEqual("true", "tru"));
  EXPECT_FALSE(caseInsensitiveEqual("", "yes"));
}

}  // namespace
}  // namespace gdi
