// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <string>

#include <gtest/gtest.h>

#include "tests/gdiview/info_job_fixture.h"
#include "tests/support/FailingInput.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;

class InfoJson : public InfoJob {
 protected:
  InfoJson() { options_.json = true; }
};

TEST_F(InfoJson, CallsAPageBlankOnlyWhenAllOfItWasRead) {
  JobBuilder whole = jobtest::jobOf({.blank = true});
  EXPECT_EQ(run(whole), kSound);
  EXPECT_NE(out_.str().find(R"("blank":true)"), std::string::npos);
  out_.str("");
  JobBuilder cut = onePage();
  cut.bytes().resize(kBandOffset + 32 + 10);
  EXPECT_EQ(run(cut), kFaulty);
  EXPECT_NE(out_.str().find(R"("blank":false)"), std::string::npos);
}

TEST_F(InfoJson, HasAPagesSizeOnPaperAndWhatIsToBeKnownOfAField) {
  EXPECT_EQ(run(onePage()), kSound);
  EXPECT_NE(out_.str().find(R"("media":"A4","page_width":4064,"page_length":85,)"),
            std::string::npos);
  EXPECT_NE(out_.str().find(R"("rows":{"value":2,"note":"the low 16 bits"})"), std::string::npos);
  EXPECT_NE(
      out_.str().find(R"("color_flag":{"value":0,"note":"tells nothing: 0 in colour jobs too"})"),
      std::string::npos);
}

TEST_F(InfoJson, AnInputThatCannotBeReadOnIsToldInJsonToo) {
  Bytes bytes = onePage().bytes();
  bytes.resize(kBandOffset + 32 + 10);
  test::FailingInput stream(bytes);
  EXPECT_EQ(run(stream), kUnusable);
  EXPECT_NE(out_.str().find(R"("text":"the input cannot be read on")"), std::string::npos);
}

}  // namespace
}  // namespace gdi::gdiview
