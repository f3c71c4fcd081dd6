// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/RecordReader.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "printer/format/big_endian.h"

namespace gdi::reader {

namespace {

// Band data is read in pieces of this size, so that a lying length costs no memory.
constexpr std::size_t kPieceBytes = 65536;

// What the job record starts with: its tag and its length.
constexpr std::array<std::uint8_t, 8> kJobRecordStart{
    job_record::kTag[0], job_record::kTag[1], job_record::kTag[2], job_record::kTag[3], 0, 0, 0,
    job_record::kLength};

bool hasTag(std::span<const std::uint8_t> bytes, const Tag& tag) {
  return std::equal(tag.begin(), tag.end(), bytes.begin());
}

std::string hexadecimal(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    std::array<char, 4> digits{};
    (void)std::snprintf(digits.data(), digits.size(), "%s%02x", text.empty() ? "" : " ",
                        unsigned{byte});
    text += digits.data();
  }
  return text;
}

}  // namespace

std::optional<Record> RecordReader::next() {
  if (expecting_ == Expecting::kNothing) {
    return std::nullopt;
  }
  Record record = expecting_ == Expecting::kPrologue ? skipPrologue() : readRecord();
  if (auto* trouble = std::get_if<Trouble>(&record)) {
    expecting_ = Expecting::kNothing;
    if (input_.bad()) {
      trouble->text = "the input cannot be read further";
      trouble->offset = offset_;
    }
  }
  return record;
}

// A job without any page is a prologue and the end-of-job mark: there is no job record to find.
Record RecordReader::skipPrologue() {
  std::array<std::uint8_t, kJobRecordStart.size()> window{};
  std::optional<Trouble> lying;  // the job record's tag with another length than the job record's
  while (read(std::span(record_).first(1)) == 1) {
    std::shift_left(window.begin(), window.end(), 1);
    window.back() = record_[0];
    if (window == kJobRecordStart) {
      prologueBytes_ = recordOffset_ = offset_ - window.size();
      std::copy(window.begin(), window.end(), record_.begin());
      return readJob();
    }
    if (!lying && hasTag(window, job_record::kTag)) {
      lying = lengthIsWrong("job", bigEndian32(window, kRecordLengthOffset));
      lying->offset = offset_ - sizeof(std::uint32_t);
    }
  }
  prologueBytes_ = offset_;
  if (lying) {
    return *lying;
  }
  if (offset_ >= kEndOfJobTag.size() &&
      std::equal(kEndOfJobTag.begin(), kEndOfJobTag.end(), window.end() - kEndOfJobTag.size())) {
    prologueBytes_ = recordOffset_ = offset_ - kEndOfJobTag.size();
    expecting_ = Expecting::kNothing;
    return EndOfJob{};
  }
  return Trouble{offset_, "the stream ends and no job record (GDIJ) was found"};
}

Record RecordReader::readRecord() {
  recordOffset_ = offset_;
  const std::size_t got = read(std::span(record_).first(sizeof(Tag)));
  const auto tag = std::span<const std::uint8_t>(record_).first(sizeof(Tag));
  if (got == 0) {
    return Trouble{offset_, "the stream ends without the end-of-job mark (JIDG)"};
  }
  if (got < tag.size()) {
    return Trouble{recordOffset_, "the stream ends inside a record's tag"};
  }
  if (expecting_ == Expecting::kHost) {
    if (hasTag(tag, host_record::kTag)) {
      return readHost();
    }
    return Trouble{recordOffset_,
                   "the host record (GJET) must follow the job record, not " + hexadecimal(tag)};
  }
  if (hasTag(tag, page_record::kTag)) {
    return readPage();
  }
  if (hasTag(tag, kEndOfJobTag)) {
    return readEnd();
  }
  if (hasTag(tag, band_record::kTag)) {
    if (expecting_ == Expecting::kBandPageOrEnd) {
      return readBand();
    }
    return Trouble{recordOffset_, "a band record (GDIB) comes ahead of the first page record"};
  }
  return Trouble{recordOffset_, "no record has the tag " + hexadecimal(tag)};
}

Record RecordReader::readJob() {
  const std::size_t rest = job_record::kLength - kJobRecordStart.size();
  if (read(std::span(record_).subspan(kJobRecordStart.size(), rest)) < rest) {
    return endsInside("job", job_record::kLength);
  }
  JobRecord record = parseJobRecord(record_);
  if (record.bitsPerPixel != 1 && record.bitsPerPixel != 2 && record.bitsPerPixel != 4) {
    return Trouble{recordOffset_ + job_record::kBitsPerPixelMinus1Offset,
                   "the job record says " + std::to_string(record.bitsPerPixel) +
                       " bits a pixel; there are only 1, 2 and 4"};
  }
  if (record.hostRecordLength != host_record::kLength) {
    return Trouble{recordOffset_ + job_record::kHostRecordLengthOffset,
                   "the job record announces a host record of " +
                       std::to_string(record.hostRecordLength) + " bytes, not " +
                       std::to_string(host_record::kLength)};
  }
  expecting_ = Expecting::kHost;
  return record;
}

Record RecordReader::readHost() {
  if (!readRest(host_record::kLength)) {
    return endsInside("host", host_record::kLength);
  }
  HostRecord record = parseHostRecord(record_);
  if (record.length != host_record::kLength) {
    return lengthIsWrong("host", record.length);
  }
  expecting_ = Expecting::kPageOrEnd;
  return record;
}

Record RecordReader::readPage() {
  if (!readRest(page_record::kLength)) {
    return endsInside("page", page_record::kLength);
  }
  const PageRecord record = parsePageRecord(record_);
  if (record.length != page_record::kLength) {
    return lengthIsWrong("page", record.length);
  }
  expecting_ = Expecting::kBandPageOrEnd;
  return record;
}

Record RecordReader::readBand() {
  if (!readRest(band_record::kLength)) {
    return endsInside("band", band_record::kLength);
  }
  Band band;
  band.record = parseBandRecord(record_);
  for (const Ink ink : kInks) {
    if (band.record.lengths[indexOf(ink)] == 0) {
      continue;
    }
    if (band.ink) {
      return Trouble{recordOffset_ + band_record::kBlackLengthOffset,
                     std::string("the band record gives a length for ") + nameOf(*band.ink) +
                         " and for " + nameOf(ink)};
    }
    band.ink = ink;
  }
  std::size_t left = band.ink ? band.record.lengths[indexOf(*band.ink)] : 0;
  while (left > 0) {
    const std::size_t have = band.data.size();
    const std::size_t piece = std::min(left, kPieceBytes);
    band.data.resize(have + piece);
    const std::size_t got = read(std::span(band.data).subspan(have));
    left -= got;
    if (got < piece) {
      return Trouble{offset_, "the stream ends after " + std::to_string(have + got) + " of the " +
                                  nameOf(*band.ink) + " band's " +
                                  std::to_string(have + got + left) + " bytes"};
    }
  }
  return band;
}

Record RecordReader::readEnd() {
  if (read(std::span(record_).first(1)) != 0) {
    return Trouble{recordOffset_ + kEndOfJobTag.size(), "bytes follow the end-of-job mark (JIDG)"};
  }
  if (input_.bad()) {
    return Trouble{offset_, ""};
  }
  expecting_ = Expecting::kNothing;
  return EndOfJob{};
}

std::size_t RecordReader::read(std::span<std::uint8_t> bytes) {
  // char is the type that std::istream reads; any object may be filled through it.
  input_.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  const auto got = static_cast<std::size_t>(input_.gcount());
  offset_ += got;
  return got;
}

bool RecordReader::readRest(std::size_t length) {
  const std::size_t rest = length - sizeof(Tag);
  return read(std::span(record_).subspan(sizeof(Tag), rest)) == rest;
}

Trouble RecordReader::endsInside(const char* what, std::size_t length) const {
  return {offset_, "the stream ends after " + std::to_string(offset_ - recordOffset_) + " of the " +
                       what + " record's " + std::to_string(length) + " bytes"};
}

Trouble RecordReader::lengthIsWrong(const char* what, std::uint32_t length) const {
  return {recordOffset_ + kRecordLengthOffset,
          std::string("the ") + what + " record says that it is " + std::to_string(length) +
              " bytes long, which it never is"};
}

}  // namespace gdi::reader
