// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The last-band flag of a page's bands. Whether one is set too early shows only when another band
// follows: if none does, bands are missing, and the flag is right.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "reader/Page.h"
#include "reader/rules.h"

namespace gdi::reader {

class LastBandFlag {
 public:
  explicit LastBandFlag(FindingSink sink) : sink_(std::move(sink)) {}

  // The next band, whose flag stands at `offset`.
  struct Seen {
    std::uint64_t bandOffset = 0;
    std::uint64_t flagsOffset = 0;
    std::string record;  // its name
    Ink ink = Ink::kBlack;
    bool set = false;
    // The plane that the page's last band is of, if this one is of another.
    std::optional<Ink> notItsPlane = std::nullopt;
    // By the page's rows more bands of the plane have to come.
    bool early = false;
  };
  void take(const Seen& band);

  // The page's last band has come, as far as flags tell.
  [[nodiscard]] bool closed() const { return closed_; }
  // It came early: it is the page's last one only if no band follows.
  [[nodiscard]] bool doubtful() const { return early_.has_value(); }

  // What is wrong with the trailer of the band taken last; dropped if its flag was set too early.
  void tellTrailer(Finding finding);
  // The flag is set on a band of black, whose plane cannot have it, and no band has followed.
  [[nodiscard]] bool closedByBlack() const { return onBlack_.has_value(); }
  // No band follows. planesAreWrong: the page's number of planes is, as is told.
  void finish(bool planesAreWrong);

 private:
  FindingSink sink_;
  bool closed_ = false;
  bool told_ = false;               // of the flag of the band taken last: its trailer is as wrong
  std::optional<Finding> onBlack_;  // what to tell of black's flag, unless the page is black
  std::optional<Finding> early_;    // what to tell of the flag if a band follows
  std::vector<Finding> trailers_;   // what to tell if none does
};

}  // namespace gdi::reader
