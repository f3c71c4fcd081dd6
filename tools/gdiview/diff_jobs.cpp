// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/diff_jobs.h"

#include <algorithm>
#include <map>

#include "reader/JobReader.h"
#include "reader/counted.h"
#include "tools/gdiview/DifferencePainter.h"
#include "tools/gdiview/FindingLines.h"
#include "tools/gdiview/header_difference.h"
#include "tools/gdiview/page_difference.h"
#include "tools/gdiview/picture_file.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::counted;
using reader::RecordKind;
using Bytes = std::span<const std::uint8_t>;

constexpr char kPrologueName[] = "prologue";

// Writes the lines, and knows whether there were any.
class Differences {
 public:
  Differences(const DiffOptions& options, std::ostream& out, std::ostream& errors)
      : options_(options), out_(out), errors_(errors) {}

  void prologues(const reader::JobReader& a, const reader::JobReader& b) {
    const bool same =
        a.prologueBytes() == b.prologueBytes() && a.prologue().start == b.prologue().start;
    if (!same && !isIgnored(kPrologueName)) {
      line(kPrologueName,
           quoted(a.prologue().start) + " in A, " + quoted(b.prologue().start) + " in B");
    }
  }

  // A record that one of the jobs may lack: it is empty then.
  void headers(const std::string& record, RecordKind kind, Bytes a, Bytes b) {
    if (a.empty() != b.empty()) {
      line(record, std::string("only in ") + (a.empty() ? "B" : "A"));
    } else if (!a.empty()) {
      for (const HeaderDifference& difference : differenceOfHeaders(kind, a, b)) {
        if (!isIgnored(difference.name)) {
          line(record, difference.name + ": " + difference.a + " in A, " + difference.b + " in B");
        }
      }
    }
  }

  // False, with a line, when a picture cannot be written.
  bool pages(const reader::Page& a, const reader::Page& b) {
    const std::string page = "page " + std::to_string(a.ordinal);
    headers(page, RecordKind::kPage, a.header, b.header);
    bandHeaders(page, a, b);
    const PageDifference difference = differenceOf(a, b);
    if (!difference.comparable) {
      line(page, "pixels of " + counted(a.bitsPerPixel, "bit") + " in A, of " +
                     counted(b.bitsPerPixel, "bit") + " in B");
      return true;
    }
    for (const reader::Ink ink : reader::kInks) {
      planes(page + ", " + nameOf(ink), difference.plane(ink));
    }
    return difference.samePixels() || writeDifference(a, b);
  }

  void onlyIn(const char* job, const reader::Page& page) {
    line("page " + std::to_string(page.ordinal), std::string("only in ") + job);
  }

  [[nodiscard]] bool found() const { return found_; }

 private:
  [[nodiscard]] bool isIgnored(const std::string& name) const {
    return std::ranges::count(options_.ignored, name) != 0;
  }

  // How a page's band records differ: for each field how many do, and the first. The lengths differ
  // with the data, which are compared by themselves.
  void bandHeaders(const std::string& page, const reader::Page& a, const reader::Page& b) {
    if (a.bandHeaders.size() != b.bandHeaders.size()) {
      line(page, counted(a.bandHeaders.size(), "band") + " in A, " +
                     std::to_string(b.bandHeaders.size()) + " in B");
    }
    struct Count {
      std::size_t records = 0;
      std::string first;
    };
    std::map<std::string, Count> counts;
    const auto count = [&counts](const std::string& name, std::size_t record,
                                 const std::string& inA, const std::string& inB) {
      if (counts[name].records++ == 0) {
        counts[name].first = "band record " + std::to_string(record + 1) + ": " + name + ": " +
                             inA + " in A, " + inB + " in B";
      }
    };
    const std::size_t both = std::min(a.bandHeaders.size(), b.bandHeaders.size());
    for (std::size_t i = 0; i < both; ++i) {
      if (a.bandHeaders[i] == b.bandHeaders[i]) {
        continue;
      }
      const auto inkOfA = reader::parseBandRecord(a.bandHeaders[i]).ink();
      const auto inkOfB = reader::parseBandRecord(b.bandHeaders[i]).ink();
      if (inkOfA != inkOfB) {
        count("plane", i, inkOfA ? nameOf(*inkOfA) : "none", inkOfB ? nameOf(*inkOfB) : "none");
      }
      for (const HeaderDifference& difference :
           differenceOfHeaders(RecordKind::kBand, a.bandHeaders[i], b.bandHeaders[i])) {
        if (!difference.name.ends_with("_bytes") && !isIgnored(difference.name)) {
          count(difference.name, i, difference.a, difference.b);
        }
      }
    }
    for (const auto& [name, differing] : counts) {
      line(page, differing.first +
                     (differing.records == 1
                          ? ""
                          : ", and so in " + counted(differing.records - 1, "more record")));
    }
  }

  void planes(const std::string& plane, const PlaneDifference& difference) {
    if (difference.pixels > 0) {
      line(plane, counted(difference.pixels, "pixel") + " differ" +
                      (difference.pixels == 1 ? "s" : "") + ", the first at column " +
                      std::to_string(difference.firstPixel->x) + ", row " +
                      std::to_string(difference.firstPixel->y));
    }
    if (difference.paddingBits > 0) {
      line(plane, counted(difference.paddingBits, "bit") + " of padding differ" +
                      (difference.paddingBits == 1 ? "s" : ""));
    }
    if (difference.differentBands > 0) {
      line(plane, counted(difference.differentBands, "band") +
                      " with different rows, the first is " +
                      std::to_string(*difference.firstDifferentBand));
    }
    if (difference.recodedBands > 0) {
      line(plane, counted(difference.recodedBands, "band") +
                      " with different bytes for the same rows, the first is " +
                      std::to_string(*difference.firstRecodedBand));
    }
  }

  bool writeDifference(const reader::Page& a, const reader::Page& b) {
    if (!options_.folder) {
      return true;
    }
    DifferencePainter painter(a, b, options_.reduction);
    const std::filesystem::path path =
        *options_.folder / ("page-" + std::to_string(a.ordinal) + "-diff.png");
    if (!writePicture(painter, options_.reduction, path, errors_)) {
      return false;
    }
    out_ << "page " << a.ordinal << ": " << path.string() << '\n';
    return true;
  }

  void line(const std::string& where, const std::string& what) {
    out_ << where << ": " << what << '\n';
    found_ = true;
  }

  const DiffOptions& options_;
  std::ostream& out_;
  std::ostream& errors_;
  bool found_ = false;
};

}  // namespace

std::vector<std::string> fieldNames() {
  std::vector<std::string> names{kPrologueName};
  for (const RecordKind kind :
       {RecordKind::kJob, RecordKind::kHost, RecordKind::kPage, RecordKind::kBand}) {
    for (const Field& field : fieldsOf(kind, std::vector<std::uint8_t>(lengthOf(kind)))) {
      if (std::ranges::count(names, field.name) == 0) {
        names.push_back(field.name);
      }
    }
  }
  return names;
}

int diffJobs(JobInput& a, JobInput& b, const DiffOptions& options, Progress& progress,
             std::ostream& out, std::ostream& errors) {
  if (options.folder && !makeFolder(*options.folder, errors)) {
    return kUnusable;
  }
  FindingLines linesOfA(errors, a.name());
  FindingLines linesOfB(errors, b.name());
  const auto tell = [&progress](FindingLines& lines) {
    return [&progress, &lines](const reader::Finding& finding) {
      progress.clear();
      lines.tell(finding);
    };
  };
  reader::JobReader jobA(a.stream(), tell(linesOfA), options.prologueBytes);
  reader::JobReader jobB(b.stream(), tell(linesOfB), options.prologueBytes);
  std::optional<reader::Page> pageA = jobA.nextPage();
  std::optional<reader::Page> pageB = jobB.nextPage();
  Differences differences(options, out, errors);
  if (jobA.walk().foundRecord() && jobB.walk().foundRecord()) {
    differences.prologues(jobA, jobB);
    differences.headers("job record", RecordKind::kJob, jobA.totals().job, jobB.totals().job);
    differences.headers("host record", RecordKind::kHost, jobA.totals().host, jobB.totals().host);
  }
  for (; pageA || pageB; pageA = jobA.nextPage(), pageB = jobB.nextPage()) {
    progress.update(pageA ? pageA->ordinal : pageB->ordinal, jobA.walk().offset());
    if (!pageA || !pageB) {
      progress.clear();
      differences.onlyIn(pageA ? "A" : "B", pageA ? *pageA : *pageB);
    } else if (progress.clear(); !differences.pages(*pageA, *pageB)) {
      return kUnusable;
    }
  }
  progress.clear();
  const bool readable = isJobStream(jobA.walk(), jobA.prologue(), a.name(), errors) &&
                        isJobStream(jobB.walk(), jobB.prologue(), b.name(), errors);
  const int status = differences.found() ? kFaulty : kSound;
  return statusAfterWriting(out, readable ? status : kUnusable, errors);
}

}  // namespace gdi::gdiview
