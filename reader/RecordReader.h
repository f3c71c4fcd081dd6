// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The walk through a job stream from record to record. Where no record begins, it looks for the
// next one and goes on there: whatever the stream holds, every byte is part of one step.
#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "reader/BandDataReader.h"
#include "reader/ByteSource.h"
#include "reader/Checksum.h"
#include "reader/record_order.h"
#include "reader/record_search.h"
#include "reader/records.h"
#include "reader/rules.h"

namespace gdi::reader {

// What comes ahead of the first record; possibly nothing.
struct Prologue {
  std::vector<std::uint8_t> start;  // its first bytes, at most kSkippedBytesKept
  bool asExpected = false;          // it is as long as the caller said
};

// A band record with the band data that followed it.
struct Band {
  BandRecord record;
  // None when no length slot is used, and nothing followed, or when more than one is.
  std::optional<Ink> ink;
  std::vector<std::uint8_t> data;  // compressed bytes; empty when there are none that can be read
};

struct EndOfJob {};  // the end-of-job mark

// Bytes that are part of no record.
struct Gap {};

// The stream's end where it should not be: inside a record, or without the end-of-job mark. There
// is no flaw when the input could not be read on.
struct BrokenOff {};

struct RecordStep {
  std::uint64_t offset = 0;  // bytes from the start of the input
  std::uint64_t bytes = 0;   // of the record, its band data included
  std::variant<Prologue, JobRecord, HostRecord, PageRecord, Band, EndOfJob, Gap, BrokenOff> record;
  std::vector<std::uint8_t> header;  // the record as it stands, without band data
  Checksum checksum;                 // of all bytes of a prologue, a gap and a broken-off record
  std::vector<Flaw> flaws;           // what is wrong with it by itself, offsets from its start
};

class RecordReader {
 public:
  // `input` stays the caller's and must outlive the reader. prologueBytes: how long the prologue
  // should be, when the caller knows; otherwise, and when there is no record there, it is searched
  // for its end.
  explicit RecordReader(std::istream& input, std::optional<std::uint64_t> prologueBytes = {})
      : source_(input), expectedPrologue_(prologueBytes) {}
  RecordReader(const RecordReader&) = delete;
  RecordReader& operator=(const RecordReader&) = delete;

  // The next step; nothing behind the last one. The first is the prologue.
  std::optional<RecordStep> next();

  // The band of the step that was just given ends after `bytes` of its data, and a record begins
  // there: it is given next, and the step's band and flaws are mended. Not for many bands a stream.
  void cutBand(RecordStep& step, std::size_t bytes);

  // A record was found: the input is a job stream, however broken.
  [[nodiscard]] bool foundRecord() const { return foundRecord_; }
  // The input could not be read to its end.
  [[nodiscard]] bool failed() const { return source_.failed(); }
  // Bytes read so far.
  [[nodiscard]] std::uint64_t offset() const { return source_.offset(); }

 private:
  RecordStep readPrologue();
  bool prologueIsAsExpected(Prologue& prologue);
  RecordStep readPartOfTag();
  RecordStep readRecord(RecordKind kind);
  void checkOrder(RecordKind kind, RecordStep& step);
  void readBand(std::span<const std::uint8_t> bytes, RecordStep& step);
  RecordStep readGap();
  void breakOff(RecordStep& step, std::string text);
  std::optional<RecordStep> readEnd();

  ByteSource source_;
  BandDataReader bandData_{source_};
  RecordOrder order_;
  std::optional<std::uint64_t> expectedPrologue_;
  bool started_ = false;
  bool finished_ = false;
  bool foundRecord_ = false;
  bool ended_ = false;             // an end-of-job mark came, and nothing behind it yet
  bool toldWhatFollows_ = false;   // that something follows the end-of-job mark
  bool lengthWasUnknown_ = false;  // of the band just read: bytes of it may follow
  bool endMarkWasTold_ = false;    // just now: bytes that may be a damaged one end the input
  bool gapWasTold_ = false;        // just now: a record that is missing may be in the gap
  std::array<std::uint8_t, host_record::kLength> record_{};  // the longest record
};

}  // namespace gdi::reader
