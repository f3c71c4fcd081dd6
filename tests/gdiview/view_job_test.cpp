// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/view_job.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <png.h>

#include "tests/jobs/job_builder.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using reader::Ink;

struct Picture {
  png_uint_32 width = 0;
  png_uint_32 height = 0;
  int colorType = 0;
  png_uint_32 samplesPerMetre = 0;
  Bytes samples;
};

// Reads a PNG file with libpng's plain reader; an empty picture when there is none.
Picture readPng(const std::filesystem::path& path) {
  Picture picture;
  std::FILE* file = std::fopen(path.c_str(), "rbe");
  if (file == nullptr) {
    return picture;
  }
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
  picture.width = png_get_image_width(png, info);
  picture.height = png_get_image_height(png, info);
  picture.colorType = png_get_color_type(png, info);
  picture.samplesPerMetre = png_get_x_pixels_per_meter(png, info);
  png_bytepp rows = png_get_rows(png, info);
  for (png_uint_32 y = 0; y < picture.height; ++y) {
    picture.samples.insert(picture.samples.end(), rows[y], rows[y] + png_get_rowbytes(png, info));
  }
  png_destroy_read_struct(&png, &info, nullptr);
  (void)std::fclose(file);
  return picture;
}

class ViewJob : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "view-job-XXXXXX";
    scratch_ = mkdtemp(pattern.data());
    options_.folder = scratch_ / "pictures";
  }
  // Removes only what SetUp made, wherever a test lets the pictures go.
  void TearDown() override { std::filesystem::remove_all(scratch_); }

  int view(const JobBuilder& job) {
    std::istringstream input = job.stream();
    return viewJob(input, "JOB", options_, pages_, troubles_);
  }
  [[nodiscard]] Picture picture(int page) const {
    return readPng(options_.folder / ("page-" + std::to_string(page) + ".png"));
  }

  // A mono page of 96 x 2 pixels and a colour page of 96 x 1.
  static JobBuilder twoPages() {
    JobBuilder job;
    job.jobRecord(1).hostRecord();
    job.pageRecord({.rows = 2});
    job.band(Ink::kBlack, kFirst | kLast, {Bytes(16, 0x0F), Bytes(16, 0xFF)});
    job.pageRecord({.rows = 1, .channels = 4, .number = 1});
    for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
      job.band(ink, ink == Ink::kYellow ? kFirst | kLast : kFirst,
               jobtest::solidRows(1, 16, ink == Ink::kCyan ? 0xFF : 0x00));
    }
    return job.end();
  }

  std::filesystem::path scratch_;
  ViewOptions options_;
  std::ostringstream pages_;
  std::ostringstream troubles_;
};

TEST_F(ViewJob, EveryPageIsAPictureAndALine) {
  EXPECT_EQ(view(twoPages()), 0);
  EXPECT_EQ(troubles_.str(), "");
  // 9 words, 9 words and the trailer's 4 make 22 and are padded to 24; 9 words to 16 bytes' 16.
  EXPECT_EQ(pages_.str(),
            "page 1: 1 plane (K), 2 rows of 128 bits, 96 pixels of 1 bit, 1 band, 64 compressed "
            "bytes: " +
                (options_.folder / "page-1.png").string() +
                "\npage 2: 4 planes (CMYK), 1 row of 128 bits, 96 pixels of 1 bit, 4 bands, 128 "
                "compressed bytes: " +
                (options_.folder / "page-2.png").string() + "\n");
  const Picture mono = picture(1);
  EXPECT_EQ(mono.width, 96U);
  EXPECT_EQ(mono.height, 2U);
  EXPECT_EQ(mono.colorType, PNG_COLOR_TYPE_GRAY);
  EXPECT_EQ(mono.samplesPerMetre, 23622U);
  EXPECT_EQ(Bytes(mono.samples.begin(), mono.samples.begin() + 8),
            (Bytes{255, 255, 255, 255, 0, 0, 0, 0}));
  EXPECT_EQ(Bytes(mono.samples.begin() + 96, mono.samples.end()), Bytes(96, 0));
  const Picture color = picture(2);
  EXPECT_EQ(color.colorType, PNG_COLOR_TYPE_RGB);
  EXPECT_EQ(Bytes(color.samples.begin(), color.samples.begin() + 3), (Bytes{0, 160, 225}));
}

TEST_F(ViewJob, AReducedPictureSaysItsResolution) {
  options_.reduction = 8;
  EXPECT_EQ(view(twoPages()), 0);
  const Picture mono = picture(1);
  EXPECT_EQ(mono.width, 12U);
  EXPECT_EQ(mono.height, 1U);
  EXPECT_EQ(mono.samplesPerMetre, 2953U);
  EXPECT_EQ(mono.samples, Bytes(12, 64));
}

TEST_F(ViewJob, OnePageAloneKeepsItsNumber) {
  options_.page = 2;
  EXPECT_EQ(view(twoPages()), 0);
  EXPECT_EQ(picture(1).width, 0U);
  EXPECT_EQ(picture(2).width, 96U);
}

TEST_F(ViewJob, APageThatIsNotThereIsTold) {
  options_.page = 3;
  EXPECT_EQ(view(twoPages()), 1);
  EXPECT_EQ(troubles_.str(), "gdiview: JOB: there is no page 3; the job has 2\n");
}

TEST_F(ViewJob, ATroubleIsOneLineWithItsOffsetAndTheOtherPagesAreStillWritten) {
  JobBuilder job = twoPages();
  job.bytes().resize(job.size() - 4);
  EXPECT_EQ(view(job), 1);
  EXPECT_EQ(troubles_.str(), "gdiview: JOB: offset " + std::to_string(job.size()) +
                                 ": the stream ends without the end-of-job mark (JIDG)\n");
  EXPECT_EQ(picture(1).width, 96U);
  EXPECT_EQ(picture(2).width, 96U);
}

TEST_F(ViewJob, ANoteIsToldAndLeavesTheStatusAt0) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  const std::size_t page = job.size();
  job.pageRecord({.rows = 257});
  job.band(Ink::kBlack, kFirst, jobtest::solidRows(256, 16, 0xFF)).end();
  EXPECT_EQ(view(job), 0);
  EXPECT_EQ(troubles_.str().find("gdiview: JOB: offset " + std::to_string(page) + ": note: "), 0U);
  EXPECT_EQ(picture(1).height, 256U);
}

TEST_F(ViewJob, LinesAboutPagesThatCannotBeWrittenAreAFailure) {
  std::ofstream full("/dev/full");
  if (!full) {
    GTEST_SKIP() << "there is no /dev/full";
  }
  std::istringstream input = twoPages().stream();
  EXPECT_EQ(viewJob(input, "JOB", options_, full, troubles_), 1);
  EXPECT_EQ(troubles_.str(),
            "gdiview: the lines about pages cannot be written: No space left on device\n");
  EXPECT_EQ(picture(2).width, 96U);
}

TEST_F(ViewJob, APageWithoutRowsHasNoPicture) {
  JobBuilder job;
  job.jobRecord(1).hostRecord().pageRecord({}).end();
  EXPECT_EQ(view(job), 0);
  EXPECT_NE(pages_.str().find("0 bands, 0 compressed bytes, no picture\n"), std::string::npos);
  EXPECT_EQ(picture(1).width, 0U);
}

TEST_F(ViewJob, AFolderThatCannotBeMadeIsTold) {
  std::ofstream(scratch_ / "file").put('x');
  options_.folder = scratch_ / "file" / "pictures";
  EXPECT_EQ(view(twoPages()), 1);
  EXPECT_EQ(troubles_.str().find("gdiview: " + options_.folder.string() + ": "), 0U);
}

TEST_F(ViewJob, APictureThatCannotBeWrittenIsToldWithItsName) {
  std::filesystem::create_directories(options_.folder / "page-1.png");
  EXPECT_EQ(view(twoPages()), 1);
  EXPECT_EQ(troubles_.str(),
            "gdiview: " + (options_.folder / "page-1.png").string() + ": Is a directory\n");
}

}  // namespace
}  // namespace gdi::gdiview
