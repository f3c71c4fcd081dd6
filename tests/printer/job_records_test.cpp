// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "printer/job_records.h"

#include <cstring>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

namespace gdi {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes bytesOf(std::span<const std::uint8_t> bytes) {
  return {bytes.begin(), bytes.end()};
}

Bytes part(std::span<const std::uint8_t> record, std::size_t offset, std::size_t length) {
  return bytesOf(record.subspan(offset, length));
}

// The text, padded with NULs to a text field of 64 bytes.
Bytes field(std::string_view text) {
  Bytes bytes(text.begin(), text.end());
  bytes.resize(64);
  return bytes;
}

std::string seventyLetters() {
  std::string title(70, ' ');
  std::iota(title.begin(), title.end(), '0');
  return title;
}

TEST(JobRecord, HasEveryFieldAtItsPlace) {
  const auto record = jobRecord({.copies = 0x0203,
                                 .date = 0x7DAE4AD5,
                                 .color = true,
                                 .bitsPerPixel = 4,
                                 .jobName = "Report"});
  const Bytes expected{
      'G',  'D',  'I',  'J',                //   0 tag
      0,    0,    0,    0x78,               //   4 length
      0,    0x64,                           //   8 constant 100
      0x02, 0x03,                           //  10 copies
      0,    0,    0,    0,                  //  12
      0,    0,                              //  16
      0,    0x98,                           //  18 length of the host record
      0x7D, 0xAE, 0x4A, 0xD5,               //  20 date
      1,                                    //  24 colour
      0,    0,    0,    0,    0,   0,   0,  //  25
      0x01,                                 //  32
      3,                                    //  33 bits a pixel - 1
      0x00,                                 //  34
      0x02,                                 //  35
      0,    0,    0,    0,    0,   0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  //  36
      'R',  'e',  'p',  'o',  'r', 't', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,              //  56 job name
      0,    0,    0,    0,    0,   0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0,              //
      0,    0,    0,    0,    0,   0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0,              //
      0,    0,    0,    0,    0,   0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  ASSERT_EQ(expected.size(), 120U);
  EXPECT_EQ(bytesOf(record), expected);
}

TEST(JobRecord, SaysOneBitAPixelAndNoColourAsZeros) {
  const auto record = jobRecord({.copies = 1, .date = 0, .bitsPerPixel = 1, .jobName = ""});
  EXPECT_EQ(record[24], 0);
  EXPECT_EQ(record[33], 0);
  EXPECT_EQ(jobRecord({.bitsPerPixel = 2, .jobName = ""})[33], 1);
  EXPECT_EQ(part(record, 56, 64), Bytes(64));
}

TEST(JobRecord, CutsAJobNameOfSeventyBytesTo64WithoutATerminator) {
  const std::string title = seventyLetters();
  const auto record = jobRecord({.jobName = jobNameOfTitle(title)});
  EXPECT_EQ(part(record, 56, 64), field(title.substr(0, 64)));
  EXPECT_EQ(record[119], '0' + 63);
}

TEST(JobRecord, LeavesAJobNameOf64BytesUnterminatedAndTerminatesOneOf63) {
  const std::string title = seventyLetters();
  EXPECT_EQ(jobRecord({.jobName = title.substr(0, 64)})[119], '0' + 63);
  EXPECT_EQ(jobRecord({.jobName = title.substr(0, 63)})[119], 0);
}

TEST(JobName, IsTheTitleItself) {
  EXPECT_EQ(jobNameOfTitle("Report"), "Report");
  EXPECT_EQ(jobNameOfTitle("Report(3)"), "Report(3)");
  EXPECT_EQ(jobNameOfTitle("A@B(3)"), "A@B(3)");
  EXPECT_EQ(jobNameOfTitle(""), "");
}

TEST(JobName, OfATitleWithAnAtSignEndsBeforeTheFirstParenthesis) {
  EXPECT_EQ(jobNameOfTitle("@Report(3)"), "Report");
  EXPECT_EQ(jobNameOfTitle("@Report (3) (4)"), "Report ");
  EXPECT_EQ(jobNameOfTitle("@(3)"), "");
}

TEST(JobName, OfATitleWithAnAtSignAndNoParenthesisIsTheRest) {
  EXPECT_EQ(jobNameOfTitle("@Report"), "Report");
  EXPECT_EQ(jobNameOfTitle("@"), "");
}

TEST(HostRecord, HasEveryFieldAtItsPlace) {
  const auto record = hostRecord("printserver", "ada");
  const Bytes head{'G', 'J', 'E', 'T', 0, 0, 0, 0x98};
  ASSERT_EQ(record.size(), 152U);
  EXPECT_EQ(part(record, 0, 8), head);
  EXPECT_EQ(part(record, 8, 64), field("printserver"));
  EXPECT_EQ(part(record, 72, 64), field("ada"));
  EXPECT_EQ(part(record, 136, 16), Bytes(16));
}

TEST(HostRecord, CutsLongNamesTo64BytesEach) {
  const std::string name = seventyLetters();
  const auto record = hostRecord(name, name);
  EXPECT_EQ(part(record, 8, 64), field(name.substr(0, 64)));
  EXPECT_EQ(part(record, 72, 64), field(name.substr(0, 64)));
  EXPECT_EQ(part(record, 136, 16), Bytes(16));
}

TEST(HostRecord, OfAHostWithoutANameSaysLocalhostAndNuls) {
  const auto record = hostRecord(hostName([](char*, std::size_t) { return -1; }), "");
  EXPECT_EQ(part(record, 8, 64), field("localhost"));
}

TEST(HostName, IsWhatTheSystemAnswers) {
  EXPECT_EQ(hostName([](char* name, std::size_t) {
              std::strcpy(name, "printserver");  // NOLINT(*-strcpy,cert-*): fits in 255 bytes
              return 0;
            }),
            "printserver");
}

TEST(HostName, ThatFillsItsWholeBufferIsStillTerminated) {
  const std::string name = hostName([](char* buffer, std::size_t size) {
    std::memset(buffer, 'h', size);
    return 0;
  });
  EXPECT_EQ(name, std::string(255, 'h'));
}

TEST(PageRecord, HasEveryFieldAtItsPlace) {
  const auto record = pageRecord({.mediaSize = 0x46,
                                  .inputTray = 5,
                                  .paperType = 16,
                                  .rowBits = 0x4E00,
                                  .rows = 0x1B68,
                                  .channels = 4,
                                  .pageNumber = 0x0102,
                                  .bandCount = 0x001C,
                                  .width = 0x00034B5C,
                                  .height = 0x00044368});
  const Bytes expected{'G',  'D',  'I',  'P',                                       //  0 tag
                       0,    0,    0,    0x40,                                      //  4 length
                       0x46,                                                        //  8 media size
                       5,                                                           //  9 input tray
                       16,                                                          // 10 paper type
                       0,                                                           // 11
                       0x4E, 0x00,                                                  // 12 bits a row
                       0x1B, 0x68,                                                  // 14 rows
                       0,    0,    0,    0,    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 16
                       4,                                                           // 32 channels
                       1,                                                           // 33
                       0x01, 0x02,  // 34 page number
                       0,    0,    0,    0,    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // 36
                       0x00, 0x1C,               // 54 bands
                       0x00, 0x03, 0x4B, 0x5C,   // 56 width
                       0x00, 0x04, 0x43, 0x68};  // 60 length
  ASSERT_EQ(expected.size(), 64U);
  EXPECT_EQ(bytesOf(record), expected);
}

TEST(Micrometres, OfLetterAndA4AreThePrintersOwn) {
  EXPECT_EQ(micrometresOfPoints(612), 215900U);
  EXPECT_EQ(micrometresOfPoints(792), 279400U);
  EXPECT_EQ(micrometresOfPoints(595), 209902U);  // 209902.78: truncated
  EXPECT_EQ(micrometresOfPoints(842), 297038U);  // 297038.89
}

TEST(Micrometres, OfNothingAreNothing) {
  EXPECT_EQ(micrometresOfPoints(0), 0U);
  EXPECT_EQ(micrometresOfPoints(1), 352U);  // 352.78
}

TEST(Micrometres, AreRoundedToSinglePrecisionBeforeTheyAreCut) {
  // 47557 points are 16777052.8 um, within 24 bits; above them the last bit is worth 2 um.
  EXPECT_EQ(micrometresOfPoints(47557), 16777053U);  // single: 16777053.0
  EXPECT_EQ(micrometresOfPoints(47562), 16778816U);  // 16778816.7, single: 16778816
  EXPECT_EQ(micrometresOfPoints(47563), 16779170U);  // 16779169.4, single: 16779170
}

// 47637 points are 16805275 um exactly, half-way between two singles, of which 16805276 is the even
// one; any other order of the operations ends there. This order, with every double worked out:
//   47637 / 72.0 = 661.625, exact.
//   25.4 as a double is 25.4 - 0.8 x 2^-49. The product in units of 2^-38, the doubles' distance
//   here, is 661.625 x 25.4 x 2^38 - 661.625 x 0.8 x 2^-11 = 4619398817618329.6 - 0.26, rounded
//   down to ...329, which is 16805.275 - 0.6 x 2^-38.
//   x 1000.0 that is 16805275 - 600 x 2^-38 = 16805275 - 0.59 x 2^-28, rounded to
//   16805275 - 2^-28: below half-way, so that the nearest single is 16805274.
TEST(Micrometres, AreDividedBy72ThenMultipliedBy25Point4ThenBy1000) {
  EXPECT_EQ(micrometresOfPoints(47637), 16805274U);
}

TEST(Prologue, IsTheWholeTextWhenItIsASCII) {
  const std::string text = "\x1B%-12345X@PJL\r\n";
  EXPECT_EQ(bytesOf(prologueBytes(text)), Bytes(text.begin(), text.end()));
  EXPECT_TRUE(prologueBytes("").empty());
}

TEST(Prologue, IsCutShortByEveryByteBeyondItsUTF16Units) {
  const std::string twoBytes = "a\xC3\xA9z!";  // 4 units, 5 bytes
  EXPECT_EQ(bytesOf(prologueBytes(twoBytes)), (Bytes{'a', 0xC3, 0xA9, 'z'}));
  const std::string threeBytes =
      "\xE2\x82\xAC"
      "123";  // 4 units, 6 bytes
  EXPECT_EQ(bytesOf(prologueBytes(threeBytes)), (Bytes{0xE2, 0x82, 0xAC, '1'}));
  const std::string fourBytes =
      "\xF0\x9F\x96\xA8"
      "12";  // 2 + 2 units, 6 bytes
  EXPECT_EQ(bytesOf(prologueBytes(fourBytes)), (Bytes{0xF0, 0x9F, 0x96, 0xA8}));
}

TEST(Prologue, NeverReachesBeyondATextThatIsNoUTF8) {
  EXPECT_EQ(bytesOf(prologueBytes("\xF0")), Bytes{0xF0});
}

}  // namespace
}  // namespace gdi
