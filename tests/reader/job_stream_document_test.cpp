// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "reader/JobReader.h"
#include "tests/jobs/job_builder.h"

namespace gdi::reader {
namespace {

// The bytes of the document's block that starts with ```hex; text from # on is comment.
jobtest::Bytes exampleOfTheDocument() {
  std::ifstream document(GDI_JOB_STREAM_DOCUMENT);
  jobtest::Bytes bytes;
  bool inside = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("```")) {
      inside = line == "```hex";
      continue;
    }
    std::istringstream words(inside ? line.substr(0, line.find('#')) : std::string());
    for (std::string word; words >> word;) {
      bytes.push_back(static_cast<std::uint8_t>(std::stoul(word, nullptr, 16)));
    }
  }
  return bytes;
}

TEST(JobStreamDocument, ItsWorkedExampleIsASoundJobWithTheRowsThatItTells) {
  const jobtest::Bytes bytes = exampleOfTheDocument();
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
