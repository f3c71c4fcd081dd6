// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/DifferenceLines.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

#include "reader/counted.h"
#include "tools/gdiview/header_difference.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::counted;
using reader::RecordKind;
using Bytes = std::span<const std::uint8_t>;

std::string nameOf(const reader::Page& page) {
  return "page " + std::to_string(page.ordinal);
}

std::string inBoth(const std::string& a, const std::string& b) {
  return std::string(a).append(" in A, ").append(b).append(" in B");
}

std::string planeName(const std::optional<reader::Ink>& ink) {
  return ink ? reader::nameOf(*ink) : "none";
}

// In how many band records of a page a field differs, and how in the first of them.
struct FieldCount {
  std::size_t records = 0;
  std::string first;
};

class FieldCounts {
 public:
  void add(const HeaderDifference& difference, std::size_t record) {
    FieldCount& count = counts_[difference.name];
    if (count.records++ == 0) {
      count.first = "band record " + std::to_string(record + 1) + ": " + difference.name + ": " +
                    inBoth(difference.a, difference.b);
    }
  }
  [[nodiscard]] const std::map<std::string, FieldCount>& counts() const { return counts_; }

 private:
  std::map<std::string, FieldCount> counts_;
};

}  // namespace

bool DifferenceLines::isIgnored(const std::string& name) const {
  return std::ranges::count(ignored_, name) != 0;
}

void DifferenceLines::prologues(const reader::JobReader& a, const reader::JobReader& b) {
  const bool same =
      a.prologueBytes() == b.prologueBytes() && a.prologue().start == b.prologue().start;
  if (!same && !isIgnored(kPrologueName)) {
    const auto described = [](const reader::JobReader& job) {
      return counted(job.prologueBytes(), "byte") + " " + quoted(job.prologue().start);
    };
    line(kPrologueName, inBoth(described(a), described(b)));
  }
}

void DifferenceLines::frames(const reader::JobReader& a, const reader::JobReader& b) {
  record("job record", RecordKind::kJob, a.totals().job, b.totals().job);
  record("host record", RecordKind::kHost, a.totals().host, b.totals().host);
}

void DifferenceLines::record(const std::string& record, RecordKind kind, Bytes a, Bytes b) {
  if (a.empty() != b.empty()) {
    line(record, std::string("only in ") + (a.empty() ? "B" : "A"));
  } else if (!a.empty()) {
    for (const HeaderDifference& difference : differenceOfHeaders(kind, a, b)) {
      if (!isIgnored(difference.name)) {
        line(record, difference.name + ": " + inBoth(difference.a, difference.b));
      }
    }
  }
}

void DifferenceLines::headers(const reader::Page& a, const reader::Page& b) {
  record(nameOf(a), RecordKind::kPage, a.header, b.header);
  bandHeaders(nameOf(a), a, b);
}

// Lengths differ with the data, which are compared by themselves; but of bands that are lost there
// is nothing else to compare.
void DifferenceLines::bandHeaders(const std::string& page, const reader::Page& a,
                                  const reader::Page& b) {
  if (a.bandHeaders.size() != b.bandHeaders.size()) {
    line(page, inBoth(counted(a.bandHeaders.size(), "band"), std::to_string(b.bandHeaders.size())));
  }
  const bool lengthsCount = a.lostBands > 0 && b.lostBands > 0;
  FieldCounts counts;
  for (std::size_t i = 0; i < std::min(a.bandHeaders.size(), b.bandHeaders.size()); ++i) {
    const Bytes ofA = a.bandHeaders[i];
    const Bytes ofB = b.bandHeaders[i];
    if (std::ranges::equal(ofA, ofB)) {
      continue;
    }
    const auto inkOfA = reader::parseBandRecord(ofA).ink();
    const auto inkOfB = reader::parseBandRecord(ofB).ink();
    if (inkOfA != inkOfB) {
      counts.add({"plane", planeName(inkOfA), planeName(inkOfB)}, i);
    }
    for (const HeaderDifference& difference : differenceOfHeaders(RecordKind::kBand, ofA, ofB)) {
      const bool isLength = difference.name.ends_with("_bytes");
      if (!isIgnored(difference.name) && (!isLength || lengthsCount)) {
        counts.add(difference, i);
      }
    }
  }
  for (const auto& [name, count] : counts.counts()) {
    line(page, count.records == 1
                   ? count.first
                   : count.first + ", and so in " + counted(count.records - 1, "more record"));
  }
}

void DifferenceLines::bands(const reader::Page& a, const reader::Page& b,
                            const PageDifference& difference) {
  if (!difference.comparable) {
    line(nameOf(a), "pixels of " + inBoth(counted(a.bitsPerPixel, "bit"),
                                          "of " + counted(b.bitsPerPixel, "bit")));
    return;
  }
  for (const reader::Ink ink : reader::kInks) {
    plane(nameOf(a) + ", " + reader::nameOf(ink), difference.plane(ink));
  }
}

void DifferenceLines::plane(const std::string& plane, const PlaneDifference& difference) {
  const auto differing = [](std::uint64_t count, const char* one, const char* behind) {
    return counted(count, one) + behind + (count == 1 ? " differs" : " differ");
  };
  if (difference.pixels > 0) {
    line(plane, differing(difference.pixels, "pixel", "") + ", the first at column " +
                    std::to_string(difference.firstPixel->x) + ", row " +
                    std::to_string(difference.firstPixel->y));
  }
  if (difference.paddingBits > 0) {
    line(plane, differing(difference.paddingBits, "bit", " of padding"));
  }
  if (difference.differentBands > 0) {
    line(plane, counted(difference.differentBands, "band") + " with different rows, the first is " +
                    std::to_string(*difference.firstDifferentBand));
  }
  if (difference.recodedBands > 0) {
    line(plane, counted(difference.recodedBands, "band") +
                    " with different bytes for the same rows, the first is " +
                    std::to_string(*difference.firstRecodedBand));
  }
}

void DifferenceLines::onlyIn(const char* job, const reader::Page& page) {
  line(nameOf(page), std::string("only in ") + job);
}

void DifferenceLines::otherBytes(std::uint64_t a, std::uint64_t b) {
  if (a != b) {
    line("job", counted(a, "byte") + " outside its prologue and pages in A, " + std::to_string(b) +
                    " in B");
  }
}

void DifferenceLines::line(const std::string& where, const std::string& what) {
  beforeLine_();
  out_ << where << ": " << what << '\n';
  found_ = true;
}

}  // namespace gdi::gdiview
