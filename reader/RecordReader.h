// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The walk through a job stream from record to record, with the order of records checked.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "reader/records.h"

namespace gdi::reader {

// Something wrong with the stream, in one line without line feed.
struct Trouble {
  std::uint64_t offset = 0;  // bytes from the start of the input
  std::string text;
  bool note = false;  // worth telling, and yet the stream is as it should be
};

// A band record with the band data that followed it.
struct Band {
  BandRecord record;
  std::optional<Ink> ink;          // none when all four length slots are 0: nothing followed
  std::vector<std::uint8_t> data;  // compressed bytes
};

struct EndOfJob {};  // the end-of-job mark, with nothing behind it

using Record = std::variant<JobRecord, HostRecord, PageRecord, Band, EndOfJob, Trouble>;

class RecordReader {
 public:
  // `input` stays the caller's and must outlive the reader.
  explicit RecordReader(std::istream& input) : input_(input) {}

  // The next record. The first call passes over the prologue. The last record is EndOfJob or a
  // Trouble (the walk cannot go on from there); nothing comes after it.
  std::optional<Record> next();

  // Where the record last given starts, bytes.
  [[nodiscard]] std::uint64_t recordOffset() const { return recordOffset_; }
  // Bytes ahead of the first record, once that was read.
  [[nodiscard]] std::uint64_t prologueBytes() const { return prologueBytes_; }

 private:
  enum class Expecting : std::uint8_t { kPrologue, kHost, kPageOrEnd, kBandPageOrEnd, kNothing };

  Record skipPrologue();
  Record readRecord();
  Record readJob();
  Record readHost();
  Record readPage();
  Record readBand();
  Record readEnd();
  // Reads up to bytes.size() bytes; answers how many there were.
  std::size_t read(std::span<std::uint8_t> bytes);
  // Reads the rest of a record whose tag is in record_; false when the input ends first.
  bool readRest(std::size_t length);
  Trouble endsInside(const char* what, std::size_t length) const;
  Trouble lengthIsWrong(const char* what, std::uint32_t length) const;

  std::istream& input_;
  Expecting expecting_ = Expecting::kPrologue;
  std::uint64_t offset_ = 0;
  std::uint64_t recordOffset_ = 0;
  std::uint64_t prologueBytes_ = 0;
  std::array<std::uint8_t, host_record::kLength> record_{};  // the longest record
};

}  // namespace gdi::reader
