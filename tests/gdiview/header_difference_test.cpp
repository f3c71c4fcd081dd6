// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/header_difference.h"

#include <ostream>

#include <gtest/gtest.h>

#include "tests/gdiview/small_jobs.h"

namespace gdi::gdiview {

// Found by GoogleTest and by ==, beside the type.
static bool operator==(const HeaderDifference& a, const HeaderDifference& b) {
  return a.name == b.name && a.a == b.a && a.b == b.b;
}
static std::ostream& operator<<(std::ostream& out, const HeaderDifference& difference) {
  return out << difference.name << ": " << difference.a << " / " << difference.b;
}

namespace {

using jobtest::Bytes;
using reader::RecordKind;
using Differences = std::vector<HeaderDifference>;

// One record of twoPages().
Bytes recordAt(std::size_t offset, std::ptrdiff_t bytes) {
  const jobtest::JobBuilder job = twoPages();
  const auto start = job.bytes().begin() + static_cast<std::ptrdiff_t>(offset);
  return {start, start + bytes};
}
Bytes jobRecord() {
  return recordAt(0, 120);
}
Bytes hostRecord() {
  return recordAt(kHostOffset, 152);
}
Bytes pageRecord() {
  return recordAt(kPage1Offset, 64);
}
Bytes bandRecord() {
  return recordAt(kBand1Offset, 32);
}

TEST(HeaderDifference, EqualRecordsHaveNone) {
  EXPECT_EQ(differenceOfHeaders(RecordKind::kJob, jobRecord(), jobRecord()), Differences{});
  EXPECT_EQ(differenceOfHeaders(RecordKind::kHost, hostRecord(), hostRecord()), Differences{});
  EXPECT_EQ(differenceOfHeaders(RecordKind::kPage, pageRecord(), pageRecord()), Differences{});
  EXPECT_EQ(differenceOfHeaders(RecordKind::kBand, bandRecord(), bandRecord()), Differences{});
}

TEST(HeaderDifference, AFieldIsNamedWithBothValuesAndTheirMeaning) {
  Bytes b = jobRecord();
  b[33] = 3;  // bits a pixel less 1
  EXPECT_EQ(differenceOfHeaders(RecordKind::kJob, jobRecord(), b),
            (Differences{{"bits_per_pixel", "1 (Fast)", "4 (Fine)"}}));
}

TEST(HeaderDifference, FieldsComeInTheirOrderAndOtherBytesBehindThem) {
  Bytes b = pageRecord();
  b[16] = 2;
  b[17] = 3;
  b[35] = 9;
  b[32] = 4;
  EXPECT_EQ(differenceOfHeaders(RecordKind::kPage, pageRecord(), b),
            (Differences{{"planes", "1 (black)", "4 (CMYK)"},
                         {"number", "0", "9"},
                         {"byte 16", "0", "2"},
                         {"byte 17", "0", "3"}}));
}

TEST(HeaderDifference, ATextIsQuoted) {
  Bytes b = hostRecord();
  b[72] = '"';
  b[75] = 0;
  EXPECT_EQ(differenceOfHeaders(RecordKind::kHost, hostRecord(), b),
            (Differences{{"user", "\"anna\"", "\"\\\"nn\""}}));
}

// Each name has four letters, which begin at bytes 8 and 72, and a NUL; the job's has six at 56.
TEST(HeaderDifference, BytesBehindEqualTextsAreToldByTheFirstOfThem) {
  Bytes host = hostRecord();
  host[13] = 'x';
  host[20] = 'y';
  host[135] = 255;
  EXPECT_EQ(differenceOfHeaders(RecordKind::kHost, hostRecord(), host),
            (Differences{{"host", "0 at byte 13", "120 at byte 13"},
                         {"user", "0 at byte 135", "255 at byte 135"}}));
  Bytes job = jobRecord();
  job[63] = 1;
  EXPECT_EQ(differenceOfHeaders(RecordKind::kJob, jobRecord(), job),
            (Differences{{"name", "0 at byte 63", "1 at byte 63"}}));
}

TEST(HeaderDifference, ABandsLengthsAreFieldsOfTheirInks) {
  Bytes b = bandRecord();
  b[11] = 0;   // black
  b[23] = 64;  // cyan
  b[29] = 5;
  EXPECT_EQ(
      differenceOfHeaders(RecordKind::kBand, bandRecord(), b),
      (Differences{{"black_bytes", "64", "0"}, {"cyan_bytes", "0", "64"}, {"byte 29", "0", "5"}}));
}

// A name's 64 bytes begin at byte 8, and the date's four at byte 20.
TEST(HeaderDifference, TheBytesOfFieldsAreAllOfThem) {
  const std::vector<std::string> names{"host", "date"};
  const std::vector<bool> host = bytesOfFields(RecordKind::kHost, names);
  ASSERT_EQ(host.size(), 152U);
  const std::vector<bool> job = bytesOfFields(RecordKind::kJob, names);
  ASSERT_EQ(job.size(), 120U);
  for (std::size_t at = 0; at < host.size(); ++at) {
    EXPECT_EQ(host[at], at >= 8 && at < 72) << at;
  }
  for (std::size_t at = 0; at < job.size(); ++at) {
    EXPECT_EQ(job[at], at >= 20 && at < 24) << at;
  }
}

// All but the tag, which tells what kind of record it is.
TEST(HeaderDifference, NoByteOfARecordDiffersUnseen) {
  const auto expectSeen = [](RecordKind kind, const Bytes& record) {
    for (std::size_t at = 4; at < record.size(); ++at) {
      Bytes other = record;
      other[at] ^= 0x40U;
      EXPECT_EQ(differenceOfHeaders(kind, record, other).size(), 1U) << "byte " << at;
    }
  };
  expectSeen(RecordKind::kJob, jobRecord());
  expectSeen(RecordKind::kHost, hostRecord());
  expectSeen(RecordKind::kPage, pageRecord());
  expectSeen(RecordKind::kBand, bandRecord());
}

}  // namespace
}  // namespace gdi::gdiview
