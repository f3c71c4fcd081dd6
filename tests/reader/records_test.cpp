// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/records.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/jobs/job_builder.h"

namespace gdi::reader {
namespace {

using jobtest::JobBuilder;

TEST(Records, AJobRecordGivesItsFields) {
  JobBuilder job;
  job.jobRecord(4, "Report");
  const JobRecord record = parseJobRecord(job.bytes());
  EXPECT_EQ(record.length, 120U);
  EXPECT_EQ(record.copies, 3);
  EXPECT_EQ(record.hostRecordLength, 152);
  EXPECT_EQ(record.packedDate, 15U << 27 | 11U << 23 | 46U << 16 | 18U << 11 | 54U << 5 | 21U);
  EXPECT_FALSE(record.colorFlag);
  EXPECT_EQ(record.bitsPerPixel, 4U);
  EXPECT_EQ(record.name, "Report");
}

TEST(Records, ANameThatFillsItsFieldHasNoTerminator) {
  const std::string sixtyFour(64, 'n');
  JobBuilder job;
  job.jobRecord(1, sixtyFour);
  EXPECT_EQ(parseJobRecord(job.bytes()).name, sixtyFour);
}

TEST(Records, AHostRecordGivesItsNames) {
  JobBuilder job;
  job.hostRecord("desk", "anna");
  const HostRecord record = parseHostRecord(job.bytes());
  EXPECT_EQ(record.length, 152U);
  EXPECT_EQ(record.hostName, "desk");
  EXPECT_EQ(record.userName, "anna");
}

TEST(Records, APageRecordGivesItsFields) {
  JobBuilder job;
  job.pageRecord({.rowBits = 19968,
                  .rows = 7016,
                  .channels = 4,
                  .number = 258,
                  .widthMicrometres = 209902,
                  .heightMicrometres = 297038});
  const PageRecord record = parsePageRecord(job.bytes());
  EXPECT_EQ(record.length, 64U);
  EXPECT_EQ(record.mediaSize, 9);
  EXPECT_EQ(record.inputTray, 2);
  EXPECT_EQ(record.paperType, 13);
  EXPECT_EQ(record.rowBits, 19968);
  EXPECT_EQ(record.rowsModulo64K, 7016);
  EXPECT_EQ(record.channels, 4);
  EXPECT_EQ(record.number, 258);
  EXPECT_EQ(record.bandCount, 28);
  EXPECT_EQ(record.widthMicrometres, 209902U);
  EXPECT_EQ(record.heightMicrometres, 297038U);
}

class BandSlot : public testing::TestWithParam<Ink> {};

TEST_P(BandSlot, ABandRecordGivesItsLengthUnderItsPlane) {
  JobBuilder job;
  job.bandRecord({.ink = GetParam(), .flags = 3, .rowBits = 640, .rows = 104, .pageBlank = true},
                 0x01020304);
  const BandRecord record = parseBandRecord(job.bytes());
  for (const Ink ink : kInks) {
    EXPECT_EQ(record.lengths[indexOf(ink)], ink == GetParam() ? 0x01020304U : 0U) << nameOf(ink);
  }
  EXPECT_TRUE(record.first());
  EXPECT_TRUE(record.last());
  EXPECT_EQ(record.rowBits, 640);
  EXPECT_EQ(record.rows, 104);
  EXPECT_TRUE(record.pageBlank);
}

INSTANTIATE_TEST_SUITE_P(Planes, BandSlot, testing::ValuesIn(kInks),
                         [](const auto& test) { return std::string(nameOf(test.param)); });

}  // namespace
}  // namespace gdi::reader
