// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/band_record_differences.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

#include "reader/counted.h"
#include "tools/gdiview/header_difference.h"

namespace gdi::gdiview {

namespace {

using reader::counted;

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

// In how many band records of a page each field differs, and how in the first of them.
class FieldCounts {
 public:
  void add(const HeaderDifference& difference, const std::string& record) {
    Count& count = counts_[difference.name];
    if (count.records++ == 0) {
      count.first = record + ": " + difference.name + ": " + inBoth(difference.a, difference.b);
    }
  }
  // What is to be told of each field, in the order of their names.
  [[nodiscard]] std::vector<std::string> texts() const {
    std::vector<std::string> texts;
    for (const auto& [name, count] : counts_) {
      texts.push_back(count.records == 1 ? count.first
                                         : count.first + ", and so in " +
                                               counted(count.records - 1, "more record"));
    }
    return texts;
  }

 private:
  struct Count {
    std::size_t records = 0;
    std::string first;
  };

  std::map<std::string, Count> counts_;
};

class BandRecords {
 public:
  BandRecords(const reader::Page& a, const reader::Page& b,
              const std::function<bool(const std::string&)>& isIgnored)
      : a_(a), b_(b), bandsOfA_(a), bandsOfB_(b), isIgnored_(isIgnored) {}

  std::vector<DifferenceLine> differences() {
    compareCounts();
    compareOrder();
    compareFields();
    for (const std::string& text : counts_.texts()) {
      lines_.push_back({nameOf(a_), text});
    }
    return std::move(lines_);
  }

 private:
  void compareCounts() {
    for (const reader::Ink ink : reader::kInks) {
      compareCount(nameOf(a_) + ", " + reader::nameOf(ink), "band", bandsOfA_.of(ink).size(),
                   bandsOfB_.of(ink).size());
    }
    compareCount(nameOf(a_) + ", without a place", "band record", bandsOfA_.withoutPlace().size(),
                 bandsOfB_.withoutPlace().size());
  }

  void compareCount(const std::string& where, const char* what, std::size_t a, std::size_t b) {
    if (a == b) {
      return;
    }
    if (a == 0 || b == 0) {
      lines_.push_back(
          {where, std::string("only in ") + (a == 0 ? "B" : "A") + ", " + counted(a + b, what)});
    } else {
      lines_.push_back({where, inBoth(counted(a, what), std::to_string(b))});
    }
  }

  void compareOrder() {
    if (!bandsOfA_.isAsMany(bandsOfB_)) {
      return;
    }
    for (std::size_t i = 0; i < a_.bandRecords.size(); ++i) {
      const std::string planeOfA = planeName(a_.bandRecords[i]);
      const std::string planeOfB = planeName(b_.bandRecords[i]);
      if (planeOfA != planeOfB) {
        counts_.add({"plane", planeOfA, planeOfB}, recordName(i));
      }
    }
  }

  void compareFields() {
    std::size_t withoutPlace = 0;
    for (std::size_t i = 0; i < a_.bandRecords.size(); ++i) {
      const reader::BandOnPage& band = a_.bandRecords[i];
      const BandsByPlane::Bands& others = bandsOfB_.like(band);
      const std::size_t index = band.place ? band.place->index : withoutPlace++;
      if (index < others.size()) {
        compareFields(band.place ? band.place->name() : recordName(i), band, *others[index]);
      }
    }
  }

  void compareFields(const std::string& record, const reader::BandOnPage& a,
                     const reader::BandOnPage& b) {
    if (a.header == b.header) {
      return;
    }
    const bool lengthsCount = a.dataBytes == b.dataBytes;
    for (const HeaderDifference& difference :
         differenceOfHeaders(reader::RecordKind::kBand, a.header, b.header)) {
      const bool isLength = difference.name.ends_with("_bytes");
      if (!isIgnored_(difference.name) && (!isLength || lengthsCount)) {
        counts_.add(difference, record);
      }
    }
  }

  static std::string recordName(std::size_t index) {
    return "band record " + std::to_string(index + 1);
  }

  const reader::Page& a_;
  const reader::Page& b_;
  BandsByPlane bandsOfA_;
  BandsByPlane bandsOfB_;
  const std::function<bool(const std::string&)>& isIgnored_;
  FieldCounts counts_;
  std::vector<DifferenceLine> lines_;
};

}  // namespace

std::vector<DifferenceLine> bandRecordDifferences(
    const reader::Page& a, const reader::Page& b,
    const std::function<bool(const std::string&)>& isIgnored) {
  return BandRecords(a, b, isIgnored).differences();
}

}  // namespace gdi::gdiview
