// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/DifferenceLines.h"

#include <algorithm>
#include <array>
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

// The band records of a page by their places.
class BandsByPlane {
 public:
  using Bands = std::vector<const reader::BandOnPage*>;

  explicit BandsByPlane(const reader::Page& page) {
    for (const reader::BandOnPage& band : page.bandRecords) {
      bands_[groupOf(band)].push_back(&band);
    }
  }
  // Those of a plane, from top to bottom.
  [[nodiscard]] const Bands& of(reader::Ink ink) const { return bands_[reader::indexOf(ink)]; }
  // Those without a place, in the order in which they came.
  [[nodiscard]] const Bands& withoutPlace() const { return bands_.back(); }
  // The bands among which the other page's may be found.
  [[nodiscard]] const Bands& like(const reader::BandOnPage& band) const {
    return bands_[groupOf(band)];
  }
  // Each plane has as many bands as the other's.
  [[nodiscard]] bool isAsMany(const BandsByPlane& other) const {
    return std::ranges::equal(bands_, other.bands_, {}, &Bands::size, &Bands::size);
  }

 private:
  static std::size_t groupOf(const reader::BandOnPage& band) {
    return band.place ? reader::indexOf(band.place->ink) : reader::kInkCount;
  }

  std::array<Bands, reader::kInkCount + 1> bands_;
};

std::string planeName(const reader::BandOnPage& band) {
  return band.place ? reader::nameOf(band.place->ink) : "none";
}

}  // namespace

// In how many band records of a page each field differs, and how in the first of them.
class DifferenceLines::FieldCounts {
 public:
  struct Count {
    std::size_t records = 0;
    std::string first;
  };

  void add(const HeaderDifference& difference, const std::string& record) {
    Count& count = counts_[difference.name];
    if (count.records++ == 0) {
      count.first = record + ": " + difference.name + ": " + inBoth(difference.a, difference.b);
    }
  }
  [[nodiscard]] const std::map<std::string, Count>& counts() const { return counts_; }

 private:
  std::map<std::string, Count> counts_;
};

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
  bandRecords(a, b);
  strayBytes(a, b);
}

// Records are compared with those of the same place, and where they stand only when no plane has
// more of them than the other page's. A length that differs with the data is no
// difference of its own.
void DifferenceLines::bandRecords(const reader::Page& a, const reader::Page& b) {
  const std::string page = nameOf(a);
  const BandsByPlane bandsOfA(a);
  const BandsByPlane bandsOfB(b);
  for (const reader::Ink ink : reader::kInks) {
    bandCounts(page + ", " + reader::nameOf(ink), "band", bandsOfA.of(ink).size(),
               bandsOfB.of(ink).size());
  }
  bandCounts(page + ", without a place", "band record", bandsOfA.withoutPlace().size(),
             bandsOfB.withoutPlace().size());
  const bool orderCounts = bandsOfA.isAsMany(bandsOfB);
  FieldCounts counts;
  std::size_t withoutPlace = 0;
  for (std::size_t i = 0; i < a.bandRecords.size(); ++i) {
    const reader::BandOnPage& band = a.bandRecords[i];
    const std::string name = "band record " + std::to_string(i + 1);
    if (orderCounts && planeName(band) != planeName(b.bandRecords[i])) {
      counts.add({"plane", planeName(band), planeName(b.bandRecords[i])}, name);
    }
    const BandsByPlane::Bands& others = bandsOfB.like(band);
    const std::size_t index = band.place ? band.place->index : withoutPlace++;
    if (index < others.size()) {
      bandRecord(band.place ? band.place->name() : name, band, *others[index], counts);
    }
  }
  for (const auto& [name, count] : counts.counts()) {
    line(page, count.records == 1
                   ? count.first
                   : count.first + ", and so in " + counted(count.records - 1, "more record"));
  }
}

void DifferenceLines::bandRecord(const std::string& name, const reader::BandOnPage& a,
                                 const reader::BandOnPage& b, FieldCounts& counts) const {
  if (a.header == b.header) {
    return;
  }
  const bool lengthsCount = a.dataBytes == b.dataBytes;
  for (const HeaderDifference& difference :
       differenceOfHeaders(RecordKind::kBand, a.header, b.header)) {
    const bool isLength = difference.name.ends_with("_bytes");
    if (!isIgnored(difference.name) && (!isLength || lengthsCount)) {
      counts.add(difference, name);
    }
  }
}

void DifferenceLines::bandCounts(const std::string& where, const char* what, std::size_t a,
                                 std::size_t b) {
  if (a == b) {
    return;
  }
  if (a == 0 || b == 0) {
    line(where, std::string("only in ") + (a == 0 ? "B" : "A") + ", " + counted(a + b, what));
  } else {
    line(where, inBoth(counted(a, what), std::to_string(b)));
  }
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
