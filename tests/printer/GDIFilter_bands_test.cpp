// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The image: which bands are sent when, in which order, and what they hold.

#include <numeric>

#include "filter/signals.h"
#include "tests/printer/FilterJob.h"

namespace gdi::test {
namespace {

std::string blackOrder(int bands) {
  std::string order;
  for (int band = 0; band < bands; ++band) {
    order += (order.empty() ? "K" : " K") + std::to_string(band);
  }
  return order;
}

class Bands : public FilterJob {
 protected:
  // Those of that plane.
  static std::vector<Band> ofPlane(const std::vector<Band>& bands, char plane) {
    std::vector<Band> found;
    std::ranges::copy_if(bands, std::back_inserter(found),
                         [plane](const Band& band) { return band.plane == plane; });
    return found;
  }
};

TEST_F(Bands, OfABlackPageOf7016RowsAre28InOrder) {
  EXPECT_TRUE(run("", {{pageHeader(8, 7016, 1), fillInk}}));
  const std::vector<Band> bands = bandsOf(records_);
  EXPECT_EQ(orderOf(bands), blackOrder(28));
  for (std::size_t i = 0; i < bands.size(); ++i) {
    EXPECT_EQ(bands[i].flags, i == 0 ? 1U : i == 27 ? 2U : 0U) << i;
    EXPECT_EQ(bands[i].rows, i == 27 ? 104U : 256U) << i;
    EXPECT_EQ(bands[i].rowBits, 128U) << i;
    EXPECT_EQ(bands[i].blank, 0U) << i;
  }
  EXPECT_EQ(log_.count("GDIFilter sendRaster: wrote K band 27"), 1U);
}

TEST_F(Bands, OfABlankBlackPageSayItIsBlankInTheLast) {
  EXPECT_TRUE(run("", {{pageHeader(8, 7016, 1), {}}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), blackOrder(28));
  for (std::size_t i = 0; i < bands.size(); ++i) {
    EXPECT_EQ(bands[i].blank, i == 27 ? 1U : 0U) << i;
  }
}

TEST_F(Bands, OfAPageWithOneDotDoNotSayItIsBlank) {
  EXPECT_TRUE(run("", {{pageHeader(8, 300, 1), [](std::uint32_t line, auto bytes) {
                          if (line == 3) {
                            bytes[5] = 1;  // too light for a black pixel, but ink
                          }
                        }}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 2U);
  EXPECT_EQ(bands[1].flags, 2U);
  EXPECT_EQ(bands[1].blank, 0U);
}

TEST_F(Bands, OfAColourPageOf28BandsGoOutIn46Steps) {
  EXPECT_TRUE(run("", {{pageHeader(8, 7016, 4), fillInk}}));
  const std::string order = orderOf(bandsOf(records_));
  EXPECT_EQ(order, colorOrder(28));
  EXPECT_TRUE(order.starts_with("K0 K1 K2 K3 K4 K5 K6 C0 K7 C1 ")) << order;
  EXPECT_NE(order.find(" K18 C12 M6 Y0 K19 "), std::string::npos) << order;
  EXPECT_NE(order.find(" M27 Y21 Y22 Y23 Y24 Y25 Y26 Y27"), std::string::npos) << order;
  EXPECT_TRUE(order.ends_with(" Y27"));
}

TEST_F(Bands, OfAColourPageHaveTheirFlags) {
  EXPECT_TRUE(run("", {{pageHeader(8, 7016, 4), {}}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 4U * 28);
  for (const char plane : {'K', 'C', 'M', 'Y'}) {
    const std::vector<Band> own = ofPlane(bands, plane);
    ASSERT_EQ(own.size(), 28U) << plane;
    for (std::size_t i = 0; i < own.size(); ++i) {
      const bool last = plane == 'Y' && i == 27;
      EXPECT_EQ(own[i].flags, i == 0 ? 1U : last ? 2U : 0U) << plane << i;
      EXPECT_EQ(own[i].blank, last ? 1U : 0U) << plane << i;
      EXPECT_EQ(own[i].rows, i == 27 ? 104U : 256U) << plane << i;
    }
  }
}

TEST_F(Bands, OfAColourPageWithInkDoNotSayItIsBlank) {
  EXPECT_TRUE(run("", {{pageHeader(8, 100, 4), fillInk}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), "K0 C0 M0 Y0");
  EXPECT_EQ(bands[0].flags, 1U);
  EXPECT_EQ(bands[3].flags, 3U);
  EXPECT_EQ(bands[3].blank, 0U);
}

TEST_F(Bands, AreLoggedInTheOrderOfTheirWriting) {
  EXPECT_TRUE(run("", {{pageHeader(8, 10, 4), {}}}));
  EXPECT_EQ(logLines({"GDIFilter sendRaster:", "ASSERT"}),
            (std::vector<std::string>{
                "GDIFilter sendRaster: wrote K band 0", "GDIFilter sendRaster: wrote C band 0",
                "GDIFilter sendRaster: wrote M band 0", "GDIFilter sendRaster: wrote Y band 0"}));
}

TEST_F(Bands, GoOutWhileThePageIsRead) {
  std::vector<std::size_t> written;
  EXPECT_TRUE(run("", {{pageHeader(8, 600, 1), [&](std::uint32_t line, auto) {
                          if (line == 256 || line == 257 || line == 512 || line == 513 ||
                              line == 599) {
                            written.push_back(bandsWritten());
                          }
                        }}}));
  EXPECT_EQ(written, (std::vector<std::size_t>{0, 1, 1, 2, 2}));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0 K1 K2");
}

TEST_F(Bands, OfAFlippedPageGoOutAfterTheLastLineOnly) {
  std::size_t writtenAtLastLine = 99;
  EXPECT_TRUE(run("Rotated=true", {{pageHeader(8, 600, 4), [&](std::uint32_t line, auto) {
                                      if (line == 599) {
                                        writtenAtLastLine = bandsWritten();
                                      }
                                    }}}));
  EXPECT_EQ(writtenAtLastLine, 0U);
  EXPECT_EQ(orderOf(bandsOf(records_)), colorOrder(3));
}

TEST_F(Bands, OfAPageOf257RowsAreOneAndTheRestIsNeverSent) {
  EXPECT_TRUE(run("", {{pageHeader(8, 257, 1), {}}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), "K0");
  EXPECT_EQ(bands[0].flags, 1U);
  EXPECT_EQ(bands[0].rows, 256U);
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP JIDG");
}

TEST_F(Bands, OfAColourPageOf513RowsAreTwoBlackOnes) {
  EXPECT_TRUE(run("", {{pageHeader(8, 513, 4), {}}}));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0 K1");
}

TEST_F(Bands, OfAFlippedPageOf257RowsAreAllSent) {
  EXPECT_TRUE(run("Rotated=true", {{pageHeader(8, 257, 1), {}}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), "K0 K1");
  EXPECT_EQ(bands[1].flags, 2U);
  EXPECT_EQ(bands[1].rows, 1U);
}

TEST_F(Bands, AreAsManyAsThereAreWhenOneTooManyIsStated) {
  EXPECT_TRUE(run("", {{pageHeader(8, 255, 1), {}}, {pageHeader(8, 256, 4), {}}}));
  EXPECT_EQ(recordsOf(records_, "GDIP").at(0).head[55], 2);
  EXPECT_EQ(recordsOf(records_, "GDIP").at(1).head[55], 2);
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), "K0 K1 C0 M0 Y0");  // one of the first page
  EXPECT_EQ(bands[0].flags, 3U);
  EXPECT_EQ(bands[4].flags, 3U);
}

TEST_F(Bands, BeginAnewOnEveryPage) {
  const FakePage page{pageHeader(8, 300, 4), {}};
  EXPECT_TRUE(run("", {page, page}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(bands.size(), 16U);
  EXPECT_EQ(bands[8].plane, 'K');
  EXPECT_EQ(bands[8].flags, 1U);
}

TEST_F(Bands, HoldTheRowsOfTheirPlanes) {
  // Line n has ink of channel n mod 4 in pixel n mod 8.
  EXPECT_TRUE(run("Gradiation=Standard", {{pageHeader(8, 260, 4), [](std::uint32_t line, auto b) {
                                             b[line % 8 * 4 + line % 4] = 255;
                                           }}}));
  const std::vector<Band> bands = bandsOf(records_);
  ASSERT_EQ(orderOf(bands), "K0 K1 C0 C1 M0 M1 Y0 Y1");
  const std::string planes = "CMYK";
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    Bytes rows;
    for (const Band& band : ofPlane(bands, planes[channel])) {
      const Bytes decoded = rowsOf(band);
      rows.insert(rows.end(), decoded.begin(), decoded.end());
    }
    Bytes expected(260 * 16);  // 2 bits a pixel: 16 bits and slack, 128 bits a row
    for (std::uint32_t line = channel; line < 260; line += 4) {
      const std::uint32_t pixel = line % 8;
      expected[line * 16 + pixel / 4] = static_cast<std::uint8_t>(0b11000000 >> pixel % 4 * 2);
    }
    EXPECT_EQ(rows, expected) << planes[channel];
  }
}

TEST_F(Bands, StopBetweenThePlanesOfAStepWhenTheJobIsCancelled) {
  EXPECT_FALSE(run("", {{pageHeader(8, 2600, 4), [](std::uint32_t line, auto) {
                           if (line == 7 * 256) {  // the line that completes black band 6
                             gSigTerm = 1;
                           }
                         }}}));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0 K1 K2 K3 K4 K5 K6");
  EXPECT_EQ(framingOf(records_), "GDIJ GJET GDIP JIDG");
}

TEST_F(Bands, AreNotStoppedByABrokenPipeAlone) {
  EXPECT_TRUE(run("", {{pageHeader(8, 300, 1), [](std::uint32_t line, auto) {
                          if (line == 100) {
                            gSigPipe = 1;
                          }
                        }}}));
  EXPECT_EQ(orderOf(bandsOf(records_)), "K0 K1");
}

}  // namespace
}  // namespace gdi::test
