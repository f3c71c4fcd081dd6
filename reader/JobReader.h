// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A job stream read page by page: the records' claims are held against what really arrives.
#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "reader/Page.h"
#include "reader/RecordReader.h"
#include "reader/band_order.h"

namespace gdi::reader {

class JobReader {
 public:
  // `input` stays the caller's and must outlive the reader.
  explicit JobReader(std::istream& input) : records_(input) {}

  // The next page; nothing when the stream has come to its end or cannot be followed further. A
  // page that the stream breaks off is still given, with what arrived of it.
  std::optional<Page> nextPage();

  // What was found since the last call, in the order in which it was found: what concerns a whole
  // page follows its bands' and has the page record's offset, and the next page's record may have
  // been looked at as well. Of each page kMostTroubles are told and then that there is more; what
  // the stream breaks off with is always told.
  std::vector<Trouble> takeTroubles();
  static constexpr std::size_t kMostTroubles = 20;

  // The job's own records, once the first page or the end has been read; nothing before that, and
  // in a job of no pages.
  [[nodiscard]] const std::optional<JobRecord>& job() const { return job_; }
  [[nodiscard]] const std::optional<HostRecord>& host() const { return host_; }
  [[nodiscard]] std::uint64_t prologueBytes() const { return records_.prologueBytes(); }
  // The end-of-job mark has been read.
  [[nodiscard]] bool ended() const { return ended_; }

 private:
  // The page that is being put together.
  struct Assembly {
    Page page;
    BandCounts arrived{};
    bool inked = false;   // a pixel is not blank
    bool usable = false;  // bands of this page make sense
    bool closed = false;  // the page's last band has come
  };

  void startPage(const PageRecord& record);
  void addBand(Band&& band);
  std::optional<Ink> inkOf(const Band& band);
  // Whether the band is sound; its decoded rows are looked at and dropped.
  bool checkBand(const Band& band, Ink ink);
  // Decodes the band, if need be to longer rows, which are then the page's.
  DecodedBand decode(const Band& band);
  void checkTrailer(const Band& band, std::size_t consumed, const std::string& name);
  // Whether the page's last step never came though the writer sent all that it sends.
  [[nodiscard]] bool endsEarlyAsWritten(const Page& page) const;
  Page finishPage();
  void report(std::uint64_t offset, std::string text) { tell({offset, std::move(text)}); }
  void report(std::string text) { report(records_.recordOffset(), std::move(text)); }
  void note(std::uint64_t offset, std::string text) { tell({offset, std::move(text), true}); }
  void tell(Trouble&& trouble);

  RecordReader records_;
  std::optional<JobRecord> job_;
  std::optional<HostRecord> host_;
  bool ended_ = false;
  std::optional<Assembly> assembly_;
  std::vector<Trouble> troubles_;
  std::size_t toldOfPage_ = 0;
};

}  // namespace gdi::reader
