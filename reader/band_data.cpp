// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/band_data.h"

#include <algorithm>
#include <string>
#include <utility>

#include "codec/pc4sc4.h"
#include "codec/pc4sc4_format.h"
#include "codec/stream_word.h"
#include "reader/CodecHabits.h"
#include "reader/code_words.h"
#include "reader/counted.h"

namespace gdi::reader {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kWordBytes = sizeof(pc4sc4::Word);
constexpr std::size_t kTrailerBytes = sizeof pc4sc4::kTrailer;
constexpr std::size_t kSlackBytes = 4;  // no pixel stands in a row's last 32 bits

// Whether not every byte is zero, which is to be zero in front and equal to the next everywhere.
bool anySet(Bytes bytes) {
  return !bytes.empty() &&
         (bytes.front() != 0 || !std::equal(bytes.begin() + 1, bytes.end(), bytes.begin()));
}

bool isTrailer(Bytes rest) {
  if (rest.size() != kTrailerBytes) {
    return false;
  }
  for (const pc4sc4::Word word : pc4sc4::kTrailer) {
    if (pc4sc4::loadStreamWord(rest.data()) != word) {
      return false;
    }
    rest = rest.subspan(kWordBytes);
  }
  return true;
}

bool beginsWithClearRow(Bytes codeWords) {
  Code code;
  return CodeWords(codeWords).next(code) && code.kind == CodeKind::kClearRow;
}

// The code words, from `least` on, with which a record that begins at `start` ends where the band
// can: on a multiple of 16 bytes when `behind` more bytes follow.
std::size_t paddedWords(std::size_t start, std::size_t least, std::size_t behind) {
  const std::size_t over =
      (start + kWordBytes * (1 + least) + behind) % pc4sc4::kBandAlignment / kWordBytes;
  constexpr std::size_t kStep = pc4sc4::kBandAlignment / kWordBytes;
  return least + (kStep - over) % kStep;
}

// A row record whose words are all there.
struct Record {
  std::uint32_t row = 0;
  std::size_t start = 0;  // of n, bytes from the start of the data
  Bytes codeWords;
  bool lastRow = false;
  Bytes rest;  // what follows it

  [[nodiscard]] std::size_t words() const { return codeWords.size() / kWordBytes; }
};

std::string nameOf(const Record& record) {
  return "row " + std::to_string(record.row);
}

class Examiner {
 public:
  Examiner(Bytes data, std::uint32_t rows, std::size_t rowBytes, bool last)
      : data_(data),
        rows_(rows),
        rowBytes_(rowBytes),
        last_(last),
        buffers_(2 * rowBytes),
        reference_(std::span(buffers_).first(rowBytes)),
        row_(std::span(buffers_).last(rowBytes)) {}

  BandDataReport run();

 private:
  bool isPastTrailer(const Record& record);
  bool readRecord(Record& record);
  void examineRecord(const Record& record);
  bool examineWordCount(const Record& record, std::size_t nops);
  bool decode(const Record& record);
  void examineRow(const Record& record, bool changed);
  void examineEnd();
  void flaw(std::size_t offset, Rule rule, std::string text) {
    report_.flaws.push_back({offset, rule, std::move(text)});
  }

  Bytes data_;
  std::uint32_t rows_;
  std::size_t rowBytes_;
  bool last_;
  std::vector<std::uint8_t> buffers_;
  std::span<std::uint8_t> reference_;  // what the decoder works on
  std::span<std::uint8_t> row_;        // the last row decoded
  std::size_t position_ = 0;
  bool lost_ = false;  // a row did not decode: nobody knows those below it
  bool pastTrailer_ = false;
  bool slack_ = false;  // of the last row decoded
  std::uint32_t slackRows_ = 0;
  Flaw firstSlack_;
  CodecHabits habits_;
  BandDataReport report_;
};

BandDataReport Examiner::run() {
  Record record;
  while (record.row < rows_ && readRecord(record)) {
    examineRecord(record);
    ++record.row;
  }
  if (record.row == rows_) {
    report_.complete = !lost_;
    report_.consumed = position_;
    examineEnd();
  }
  if (slackRows_ > 0) {
    firstSlack_.text = counted(slackRows_, "row") +
                       (slackRows_ == 1 ? " has a bit set in its last 32: "
                                        : " have a bit set in their last 32, the first being ") +
                       firstSlack_.text;
    report_.flaws.push_back(std::move(firstSlack_));
  }
  habits_.report(report_.flaws);
  std::ranges::stable_sort(report_.flaws, {}, &Flaw::offset);
  return std::move(report_);
}

// Whether the records of a last band have ended, with its trailer behind them: it is read as rows
// where the band record tells more of them.
bool Examiner::isPastTrailer(const Record& record) {
  if (!pastTrailer_ && last_ && record.row > 0 && isTrailer(data_.subspan(record.start))) {
    pastTrailer_ = true;
    flaw(record.start, Rule::kTrailer, "the trailer stands where " + nameOf(record) + " should be");
  }
  return pastTrailer_;
}

// Reads record.row's record; false when the data end before it or inside it.
bool Examiner::readRecord(Record& record) {
  const Bytes left = data_.subspan(position_);
  if (left.size() < kWordBytes) {
    flaw(position_, Rule::kBandData, "the data end before " + nameOf(record));
    return false;
  }
  const std::size_t words = pc4sc4::loadStreamWord(left.data());
  const std::size_t there = left.size() / kWordBytes - 1;
  if (words > there) {
    flaw(position_, Rule::kBandData,
         nameOf(record) + " has " + counted(words, "code word") + ", of which " +
             std::to_string(there) + (there == 1 ? " is there" : " are there"));
    return false;
  }
  record.start = position_;
  record.codeWords = left.subspan(kWordBytes, kWordBytes * words);
  record.rest = left.subspan(kWordBytes * (1 + words));
  record.lastRow = record.row + 1 == rows_ || (last_ && isTrailer(record.rest));
  position_ += kWordBytes * (1 + words);
  return true;
}

bool Examiner::decode(const Record& record) {
  const Bytes bytes = data_.subspan(record.start, kWordBytes * (1 + record.words()));
  return qbx_DeCompress_PC4SC4(bytes, row_, static_cast<std::uint32_t>(rowBytes_), 1, reference_)
      .has_value();
}

void Examiner::examineRecord(const Record& record) {
  if (record.row == 0 && !beginsWithClearRow(record.codeWords)) {
    flaw(record.start, Rule::kClearRow, "row 0 does not begin with the clear-row command");
  }
  const std::size_t nops = nopsAtEnd(record.codeWords);
  bool surplusNops = false;
  const bool pastTrailer = isPastTrailer(record);
  if (record.words() > 0 && !pastTrailer) {
    surplusNops = examineWordCount(record, nops);
  } else if (record.row == 0) {
    flaw(record.start, Rule::kRecordMinimum, "row 0 has no code words");
  }
  if (lost_) {
    if (const std::string trouble = troubleOf(record.codeWords, rowBytes_ / kWordBytes);
        !trouble.empty()) {
      flaw(record.start, Rule::kBandData, nameOf(record) + ": " + trouble);
    }
    return;
  }
  const bool changed = record.words() > nops;
  if (changed && !decode(record)) {
    const std::string trouble = troubleOf(record.codeWords, rowBytes_ / kWordBytes);
    flaw(record.start, Rule::kBandData,
         nameOf(record) + ": " + (trouble.empty() ? "its codes do not decode" : trouble));
    lost_ = true;
    return;
  }
  if (surplusNops) {
    habits_.addSurplusNops(record.start);
  }
  if (!pastTrailer) {
    habits_.look(record.codeWords, record.start + kWordBytes, record.row == 0);
  }
  examineRow(record, changed);
}

// Whether the record ends with more NOPs than the writer puts there. Few code words are allowed to
// the band's last row alone, for the NOPs that bring the band to its length. How many these are
// depends on what follows; where that is not what it ought to be, either way will do.
bool Examiner::examineWordCount(const Record& record, std::size_t nops) {
  const std::size_t words = record.words();
  const bool empty = words == nops && record.row > 0;
  const std::size_t least =
      empty ? 0 : std::max<std::size_t>(words - nops, pc4sc4::kMinRecordWords);
  std::size_t most = least;
  bool padding = false;
  if (record.lastRow) {
    const bool sound = last_ ? isTrailer(record.rest) : record.rest.empty();
    for (const std::size_t behind : {std::size_t{0}, kTrailerBytes}) {
      if (!sound || behind == record.rest.size()) {
        const std::size_t padded = paddedWords(record.start, least, behind);
        most = std::max(most, padded);
        padding = padding || (empty && words == padded);
      }
    }
  }
  if (words < pc4sc4::kMinRecordWords && !padding) {
    flaw(record.start, Rule::kRecordMinimum,
         nameOf(record) + " has " + counted(words, "code word"));
    return false;
  }
  return nops > 0 && words > most;
}

// A row without changes is the row above: nothing has to be looked at again.
void Examiner::examineRow(const Record& record, bool changed) {
  if (changed) {
    report_.inked = report_.inked || anySet(row_);
    slack_ = anySet(row_.last(std::min(kSlackBytes, row_.size())));
  }
  if (slack_ && slackRows_++ == 0) {
    firstSlack_ = {record.start, Rule::kRowSlack, nameOf(record)};
  }
}

void Examiner::examineEnd() {
  const Bytes rest = data_.subspan(position_);
  if (pastTrailer_) {
    return;
  }
  if (last_ && rest.empty()) {
    flaw(position_, Rule::kTrailer, "nothing follows the last row");
  } else if (last_ && !isTrailer(rest)) {
    flaw(position_, Rule::kTrailer,
         counted(rest.size(), "byte") + " that " + (rest.size() == 1 ? "is" : "are") +
             " not the trailer " + (rest.size() == 1 ? "follows" : "follow") + " the last row");
  } else if (!last_ && !rest.empty()) {
    flaw(position_, Rule::kBandEnd,
         counted(rest.size(), "byte") + (rest.size() == 1 ? " follows" : " follow") +
             " the last row" + (isTrailer(rest) ? ": the trailer" : ""));
  }
}

}  // namespace

BandDataReport examineBandData(std::span<const std::uint8_t> data, std::uint32_t rows,
                               std::size_t rowBytes, bool last) {
  if (rows > data.size() / kWordBytes) {
    BandDataReport report;
    report.flaws.push_back(
        {0, Rule::kBandData,
         counted(rows, "row") + " cannot stand in " + counted(data.size(), "byte")});
    return report;
  }
  return Examiner(data, rows, rowBytes, last).run();
}

}  // namespace gdi::reader
