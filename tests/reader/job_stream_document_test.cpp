// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "tests/jobs/read_job.h"
#include "tests/support/document_block.h"

namespace gdi::reader {
namespace {

TEST(JobStreamDocument, ItsWorkedExampleIsASoundJobWithTheRowsThatItTells) {
  const jobtest::Bytes bytes = test::bytesOfHexBlock(GDI_JOB_STREAM_DOCUMENT);
  ASSERT_EQ(bytes.size(), 404U);
  const jobtest::ReadJob read = jobtest::readJob(bytes);
  EXPECT_EQ(read.told(), "");
  EXPECT_EQ(read.prologueBytes, 0U);
  EXPECT_EQ(read.totals.bytes, 404U);
  ASSERT_EQ(read.totals.job.size(), 120U);
  ASSERT_EQ(read.totals.host.size(), 152U);
  const JobRecord job = parseJobRecord(read.totals.job);
  EXPECT_EQ(job.name, "Hello");
  EXPECT_EQ(job.copies, 1);
  const HostRecord host = parseHostRecord(read.totals.host);
  EXPECT_EQ(host.hostName, "desk");
  EXPECT_EQ(host.userName, "anna");
  ASSERT_EQ(read.pages.size(), 1U);
  const Page& page = read.pages[0];
  EXPECT_EQ(page.offset, 272U);
  EXPECT_EQ(page.widthPixels(), 96U);
  EXPECT_EQ(page.rows(), 2U);
  jobtest::Bytes rows(32);
  rows[0] = rows[16] = 0xFF;
  ASSERT_EQ(page.plane(Ink::kBlack).bands().size(), 1U);
  EXPECT_EQ(page.plane(Ink::kBlack).rowsOfBand(0), rows);
}

}  // namespace
}  // namespace gdi::reader
