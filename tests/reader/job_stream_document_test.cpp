// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <sstream>

#include <gtest/gtest.h>

#include "reader/JobReader.h"
#include "tests/jobs/job_builder.h"
#include "tests/support/document_block.h"

namespace gdi::reader {
namespace {

TEST(JobStreamDocument, ItsWorkedExampleIsASoundJobWithTheRowsThatItTells) {
  const jobtest::Bytes bytes = test::bytesOfHexBlock(GDI_JOB_STREAM_DOCUMENT);
  ASSERT_EQ(bytes.size(), 404U);
  std::istringstream input = jobtest::streamOf(bytes);
  JobReader job(input);
  const std::optional<Page> page = job.nextPage();
  ASSERT_TRUE(page);
  EXPECT_EQ(job.job()->name, "Hello");
  EXPECT_EQ(job.job()->copies, 1);
  EXPECT_EQ(job.host()->hostName, "desk");
  EXPECT_EQ(job.host()->userName, "anna");
  EXPECT_EQ(page->offset, 272U);
  EXPECT_EQ(page->widthPixels(), 96U);
  EXPECT_EQ(page->rows(), 2U);
  jobtest::Bytes rows(32);
  rows[0] = rows[16] = 0xFF;
  ASSERT_EQ(page->plane(Ink::kBlack).bands().size(), 1U);
  EXPECT_EQ(page->plane(Ink::kBlack).rowsOfBand(0), rows);
  EXPECT_FALSE(job.nextPage());
  EXPECT_TRUE(job.ended());
  const std::vector<Trouble> troubles = job.takeTroubles();
  EXPECT_TRUE(troubles.empty()) << troubles.front().text;
}

}  // namespace
}  // namespace gdi::reader
