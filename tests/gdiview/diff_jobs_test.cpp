// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/diff_jobs_fixture.h"
#include "tests/support/FailingInput.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;

TEST_F(DiffJobs, TheSameJobHasNoLine) {
  EXPECT_EQ(run(twoPages(), twoPages()), kSound);
  EXPECT_EQ(lines_.str(), "");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(DiffJobs, APageThatOneJobLacksIsTold) {
  JobBuilder shorter = twoPages();
  shorter.bytes().resize(kPage2Offset);
  shorter.end();
  EXPECT_EQ(told(twoPages(), shorter), "page 2: only in A\n");
  EXPECT_EQ(told(shorter, twoPages()), "page 2: only in B\n");
}

TEST_F(DiffJobs, WhatIsNoJobStreamIsUnusableOnEitherSide) {
  for (const bool first : {true, false}) {
    std::istringstream sound = twoPages().stream();
    std::istringstream document("%PDF-1.7\n");
    errors_.str("");
    EXPECT_EQ(first ? run(document, sound) : run(sound, document), kUnusable);
    EXPECT_EQ(errors_.str(), std::string("gdiview: ") + (first ? "ONE" : "TWO") +
                                 ": this is no job stream: it begins like a PDF document\n");
    EXPECT_EQ(lines_.str(), "");
  }
}

TEST_F(DiffJobs, APictureThatEndsLikeAJobIsUnusable) {
  JobBuilder picture;
  picture.text("\x89PNG\r\n\x1a\n").end();
  EXPECT_EQ(run(picture, picture), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: ONE: this is no job stream: it begins like a PNG picture\n"
            "gdiview: TWO: this is no job stream: it begins like a PNG picture\n");
}

TEST_F(DiffJobs, TwoUnusableInputsAreTwoLines) {
  std::istringstream empty;
  std::istringstream text("text");
  EXPECT_EQ(run(empty, text), kUnusable);
  EXPECT_EQ(errors_.str(),
            "gdiview: ONE: the input is empty\n"
            "gdiview: TWO: this is no job stream: it holds no record of one\n");
}

TEST_F(DiffJobs, AnInputThatCannotBeReadOnIsUnusable) {
  Bytes bytes = twoPages().bytes();
  bytes.resize(kPage2Offset);
  test::FailingInput failing(bytes);
  std::istringstream sound = twoPages().stream();
  EXPECT_EQ(run(sound, failing), kUnusable);
  EXPECT_NE(errors_.str().find("gdiview: TWO: the input cannot be read beyond offset 432\n"),
            std::string::npos);
}

}  // namespace
}  // namespace gdi::gdiview
