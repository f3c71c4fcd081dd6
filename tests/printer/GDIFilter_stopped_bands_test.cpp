// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Bands that are cancelled, cannot be compressed, or of which the page has no plane.

#include <fcntl.h>
#include <unistd.h>

#include "filter/signals.h"
#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

// A colour page of that many bands, cancelled while `cancelledAt`, as "C6", is being compressed.
class CancelledBand : public FilterJob {
 protected:
  void runColorPage(int bands, const std::string& cancelledAt, const std::string& options = "") {
    const std::string order = colorOrder(bands);
    const auto before = static_cast<std::ptrdiff_t>(order.find(" " + cancelledAt + " "));
    const auto number =
        static_cast<std::size_t>(std::count(order.begin(), order.begin() + before, ' ')) + 1;
    JobFilter filter(options,
                     {{pageHeader(8, static_cast<std::uint32_t>(bands) * 256, 4), fillInk}});
    filter.beforeBand = [number](std::size_t band) -> std::optional<std::uint32_t> {
      gSigTerm = band == number ? 1 : gSigTerm;
      return std::nullopt;
    };
    EXPECT_FALSE(run(filter));
  }
};

TEST_F(CancelledBand, OfCyanEndsItsStep) {
  runColorPage(13, "C6");  // M0 would be next
  EXPECT_TRUE(orderOf(bandsOf(records_)).ends_with(" C5 K12 C6"));
  EXPECT_EQ(log_.count("ASSERT: sendRaster failed"), 1U);
}

TEST_F(CancelledBand, OfMagentaEndsItsStep) {
  runColorPage(19, "M6");  // Y0 would be next
  EXPECT_TRUE(orderOf(bandsOf(records_)).ends_with(" K18 C12 M6"));
  EXPECT_EQ(log_.count("ASSERT: sendRaster failed"), 1U);
}

// All steps of a flipped page follow one another: the next one sends its black band.
TEST_F(CancelledBand, OfYellowDoesNotEndItsStep) {
  runColorPage(20, "Y0", "Rotated=true");
  EXPECT_TRUE(orderOf(bandsOf(records_)).ends_with(" K18 C12 M6 Y0 K19"));
}

TEST_F(CancelledBand, OfYellowAtThePagesEndLeavesTheLastLineSent) {
  JobFilter filter("", {{pageHeader(8, 1, 4), {}}});
  filter.beforeBand = [](std::size_t band) -> std::optional<std::uint32_t> {
    gSigTerm = band == 3 ? 1 : 0;
    return std::nullopt;
  };
  EXPECT_FALSE(run(filter));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0 C0 M0 Y0");
  EXPECT_EQ(log_.count("ASSERT: sendRaster failed"), 0U);
}

// Jobs in which the compressor answers `GetParam` for the second of a page's bands.
class FailedBand : public FilterJob, public testing::WithParamInterface<std::uint32_t> {
 protected:
  void runPage(std::uint32_t channels) {
    JobFilter filter("", {{pageHeader(8, 600, channels), fillInk}});
    filter.beforeBand = [](std::size_t band) {
      return band == 1 ? std::optional(GetParam()) : std::nullopt;
    };
    EXPECT_TRUE(run(filter));
  }
};

TEST_P(FailedBand, IsARecordWithoutLengthAndDataAndThePageGoesOn) {
  runPage(1);
  const std::vector<StreamRecord> records = recordsOf(records_, "GDIB");
  ASSERT_EQ(records.size(), 3U);
  const Bytes expected{'G', 'D', 'I', 'B', 0, 0, 0, 0,  // neither first nor last
                       0,   0,   0,   0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // lengths
                       0,   128, 1,   0,   0, 0, 0, 0};                         // bits a row, rows
  EXPECT_EQ(records[1].head, expected);
  EXPECT_TRUE(records[1].data.empty());
  EXPECT_FALSE(records[2].data.empty());
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP JIDG");
  EXPECT_EQ(logLines({"GDIFilter sendRaster", "ASSERT"}),
            (std::vector<std::string>{"GDIFilter sendRaster: wrote K band 0",
                                      "ASSERT: GDIFilter sendRaster: qbx_Compress failed",
                                      "GDIFilter sendRaster: wrote K band 1",
                                      "GDIFilter sendRaster: wrote K band 2"}));
}

TEST_P(FailedBand, OfAColourPageLeavesAllOthersAsTheyAre) {
  runPage(4);
  std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 12U);
  EXPECT_EQ(bands[1].plane, '?');
  bands.erase(bands.begin() + 1);
  EXPECT_EQ(orderOf(bands), "K0 K1 C0 C1 C2 M0 M1 M2 Y0 Y1 Y2");
  EXPECT_EQ(bands.back().flags, 2U);
}

INSTANTIATE_TEST_SUITE_P(Of, FailedBand, testing::Values(0U, 0xFFFFFFFFU),
                         [](const auto& band) { return band.index == 0 ? "None" : "Overflow"; });

// The last line's band steps on their own, of a page whose count of channels is another than its
// planes were made for.
class MiscountedFilter : public JobFilter {
 public:
  MiscountedFilter() : JobFilter("", {}) {}
  bool sendBandsAs(std::uint32_t channels) {
    const bool started = prepare() && startPageOf(pageHeader(8, 1, 4));
    channelCount = channels;
    return started && sendBandsLeft();
  }
};

using MiscountedPage = FilterJob;

TEST_F(MiscountedPage, OfNeitherOneNorFourChannelsEndsWithoutWaitingForBands) {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  const StandardOutput redirected(nowhere);
  (void)close(nowhere);
  for (const std::uint32_t channels : {0U, 2U, 3U, 5U}) {
    MiscountedFilter filter;
    EXPECT_TRUE(filter.sendBandsAs(channels)) << channels;
  }
}

}  // namespace
}  // namespace gdi::test
