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
  // Something was told of the flag of the band taken last: its trailer is as wrong.
  [[nodiscard]] bool told() const { return told_; }

  // What is wrong with the trailer of the band taken last; dropped if its flag was set too early.
  void tellTrailer(Finding finding);
  // No band follows.
  void finish();

 private:
  FindingSink sink_;
  bool closed_ = false;
  bool told_ = false;
  std::optional<Finding> early_;   // what to tell of the flag if a band follows
  std::vector<Finding> trailers_;  // what to tell if none does
};

}  // namespace gdi::reader
