// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/DifferenceLines.h"

#include <algorithm>

#include "reader/counted.h"
#include "tools/gdiview/band_record_differences.h"
#include "tools/gdiview/difference_words.h"
#include "tools/gdiview/header_difference.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::counted;
using reader::RecordKind;
using Bytes = std::span<const std::uint8_t>;

}  // namespace

bool DifferenceLines::isIgnored(const std::string& name) const {
  return std::ranges::count(ignored_, name) != 0;
}

void DifferenceLines::prologues(const reader::JobReader& a, const reader::JobReader& b) {
  if (a.prologueChecksum() == b.prologueChecksum() || isIgnored(kPrologueName)) {
    return;
  }
  if (a.prologueBytes() == b.prologueBytes() && a.prologue().start == b.prologue().start) {
    line(kPrologueName, "differs behind its first " + counted(a.prologue().start.size(), "byte"));
  } else {
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
  const auto ignored = [this](const std::string& name) { return isIgnored(name); };
  for (const DifferenceLine& difference : bandRecordDifferences(a, b, ignored)) {
    line(difference.where, difference.what);
  }
  strayBytes(a, b);
}

void DifferenceLines::strayBytes(const reader::Page& a, const reader::Page& b) {
  if (a.strayBytes.bytes() != b.strayBytes.bytes()) {
    line(nameOf(a), inBoth(counted(a.strayBytes.bytes(), "byte") + " beside its bands",
                           std::to_string(b.strayBytes.bytes())));
  } else if (a.strayBytes != b.strayBytes) {
    line(nameOf(a), "differs in bytes beside its bands");
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
  const auto bands = [&](const BandCount& kind, const char* how) {
    if (kind.count > 0) {
      line(plane,
           counted(kind.count, "band") + how + ", the first is " + std::to_string(*kind.first));
    }
  };
  bands(difference.different, " with different rows");
  bands(difference.recoded, " with different bytes for the same rows");
  bands(difference.decodedInA, " to be decoded only in A");
  bands(difference.decodedInB, " to be decoded only in B");
  bands(difference.lostOtherwise, " with different bytes that cannot be decoded");
}

void DifferenceLines::onlyIn(const char* job, const reader::Page& page) {
  line(nameOf(page), std::string("only in ") + job);
}

// Where pages are missing, their number tells apart what stands behind different ones.
void DifferenceLines::otherBytes(const OtherBytes& a, const OtherBytes& b) {
  if (a.count != b.count) {
    line("job", counted(a.count, "byte") + " outside its prologue and pages in A, " +
                    std::to_string(b.count) + " in B");
  } else if (a.pages == b.pages && a.checksum != b.checksum) {
    line("job", "differs in bytes outside its prologue, first records and pages");
  }
}

void DifferenceLines::line(const std::string& where, const std::string& what) {
  beforeLine_();
  out_ << where << ": " << what << '\n';
  found_ = true;
}

}  // namespace gdi::gdiview
