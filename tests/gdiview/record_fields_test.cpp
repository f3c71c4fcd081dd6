// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/record_fields.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/jobs/job_builder.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using reader::RecordKind;

Field fieldOf(RecordKind kind, const Bytes& header, std::string_view name) {
  for (const Field& field : fieldsOf(kind, header)) {
    if (field.name == name) {
      return field;
    }
  }
  ADD_FAILURE() << "there is no field " << name;
  return {};
}

// What byte `offset` of a page record means, as field `name`, when it is `code`.
std::string meaningOf(std::size_t offset, std::string_view name, std::uint8_t code) {
  JobBuilder job;
  job.pageRecord({}).patch(0, offset, {code});
  return fieldOf(RecordKind::kPage, job.bytes(), name).meaning;
}

TEST(RecordFields, AMediaSizeHasItsName) {
  EXPECT_EQ(meaningOf(8, "media_size", 1), "Letter");
  EXPECT_EQ(meaningOf(8, "media_size", 9), "A4");
  EXPECT_EQ(meaningOf(8, "media_size", 69), "ReplyPaid");
}

TEST(RecordFields, AMediaSizeWithoutACodeIsCustomOrUnknown) {
  EXPECT_EQ(meaningOf(8, "media_size", 255), "custom");
  EXPECT_EQ(meaningOf(8, "media_size", 254), "unknown");
  EXPECT_EQ(mediaName(0), "unknown");
}

TEST(RecordFields, AnInputTrayHasItsName) {
  EXPECT_EQ(meaningOf(9, "input_tray", 0), "Automatic");
  EXPECT_EQ(meaningOf(9, "input_tray", 5), "Tray4");
  EXPECT_EQ(meaningOf(9, "input_tray", 6), "unknown");
}

TEST(RecordFields, APaperTypeHasItsName) {
  EXPECT_EQ(meaningOf(10, "paper_type", 1), "Plain");
  EXPECT_EQ(meaningOf(10, "paper_type", 14), "Envelope");
  EXPECT_EQ(meaningOf(10, "paper_type", 0), "unknown");
}

TEST(RecordFields, PlanesAreBlackOrAllFour) {
  EXPECT_EQ(meaningOf(32, "planes", 1), "black");
  EXPECT_EQ(meaningOf(32, "planes", 4), "CMYK");
  EXPECT_EQ(meaningOf(32, "planes", 3), "");
}

TEST(RecordFields, BitsAPixelAreAQuality) {
  EXPECT_EQ(qualityName(1), "Fast");
  EXPECT_EQ(qualityName(2), "Standard");
  EXPECT_EQ(qualityName(4), "Fine");
  EXPECT_EQ(qualityName(3), "");
}

TEST(RecordFields, ALengthOnPaperIsToldInMillimetresToo) {
  JobBuilder job;
  job.pageRecord({.heightMicrometres = 297010});
  const Field length = fieldOf(RecordKind::kPage, job.bytes(), "page_length");
  EXPECT_EQ(valueText(length), "297010");
  EXPECT_EQ(length.unit, "µm");
  EXPECT_EQ(length.meaning, "297.0 mm");
}

TEST(RecordFields, ALengthBelowAMillimetreKeepsItsDigits) {
  EXPECT_EQ(millimetres(0), "0");
  EXPECT_EQ(millimetres(42), "0.042");
  EXPECT_EQ(millimetres(999), "0.999");
  EXPECT_EQ(millimetres(1000), "1.0");
  EXPECT_EQ(millimetres(297038), "297.0");
}

TEST(RecordFields, BandFlagsAreToldInWords) {
  const auto meaning = [](std::uint32_t flags) {
    JobBuilder job;
    job.bandRecord({.flags = flags}, 16);
    return fieldOf(RecordKind::kBand, job.bytes(), "flags").meaning;
  };
  EXPECT_EQ(meaning(0), "");
  EXPECT_EQ(meaning(1), "first of its plane");
  EXPECT_EQ(meaning(2), "last of the page");
  EXPECT_EQ(meaning(3), "first of its plane, last of the page");
}

TEST(RecordFields, ABandsLengthIsInItsInksField) {
  JobBuilder job;
  job.bandRecord({.ink = reader::Ink::kMagenta, .pageBlank = true}, 48);
  const auto text = [&job](std::string_view name) {
    return fieldText(RecordKind::kBand, job.bytes(), name);
  };
  EXPECT_EQ(text("magenta_bytes"), "48");
  EXPECT_EQ(text("black_bytes"), "0");
  EXPECT_EQ(text("yellow_bytes"), "0");
  EXPECT_EQ(text("cyan_bytes"), "0");
  EXPECT_EQ(fieldOf(RecordKind::kBand, job.bytes(), "page_blank").meaning, "the page is blank");
}

TEST(RecordFields, AnEndOfJobMarkHasNone) {
  EXPECT_TRUE(fieldsOf(RecordKind::kEndOfJob, Bytes{'J', 'I', 'D', 'G'}).empty());
}

// From the low end: hour 5 bits, minute 6, second without its low bit 5, year from 1980 6, a zero
// bit, month 4, day 5.
TEST(RecordFields, APackedDateIsToldAsADate) {
  EXPECT_EQ(dateText(0x7DAE96D5), "2026-11-15 21:54:36");
  EXPECT_EQ(dateText(1U << 27 | 1U << 23), "1980-01-01 00:00:00");
  EXPECT_EQ(dateText(31U << 27 | 12U << 23 | 63U << 16 | 29U << 11 | 59U << 5 | 23U),
            "2043-12-31 23:59:58");
}

TEST(RecordFields, AFieldsTextIsItsNumberOrItsQuotedText) {
  JobBuilder job;
  job.jobRecord(2, "a \"b\"");
  EXPECT_EQ(fieldText(RecordKind::kJob, job.bytes(), "copies"), "3");
  EXPECT_EQ(fieldText(RecordKind::kJob, job.bytes(), "bits_per_pixel"), "2");
  EXPECT_EQ(fieldText(RecordKind::kJob, job.bytes(), "name"), R"("a \"b\"")");
}

TEST(RecordFields, AFieldThatTheRecordLacksHasNoText) {
  JobBuilder job;
  job.jobRecord(1);
  EXPECT_EQ(fieldText(RecordKind::kJob, job.bytes(), "user"), "");
}

}  // namespace
}  // namespace gdi::gdiview
