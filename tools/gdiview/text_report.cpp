// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The report for people: a block of lines a record, one line a band.

#include <array>
#include <cstdio>

#include "reader/counted.h"
#include "tools/gdiview/info_job.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using reader::counted;

// "12.3 % of 163840"
std::string share(std::uint64_t part, std::uint64_t whole) {
  if (whole == 0) {
    return "of nothing";
  }
  std::array<char, 32> percent{};
  (void)std::snprintf(percent.data(), percent.size(), "%.1f %% of ",
                      100.0 * static_cast<double>(part) / static_cast<double>(whole));
  return percent.data() + std::to_string(whole);
}

std::string inParentheses(const std::string& text) {
  return text.empty() ? "" : std::string(" (").append(text).append(")");
}

const char* inkText(const reader::PageSummary& page) {
  if (page.inked) {
    return "not blank";
  }
  return isBlank(page) ? "blank" : "no ink in what can be read";
}

class TextReport : public InfoReport {
 public:
  explicit TextReport(std::ostream& out) : out_(out) {}

  void record(const reader::JobStep& job) override {
    step_ = &job;
    std::visit(*this, job.step.record);
  }
  void page(const reader::PageSummary& page) override;
  void job(const reader::JobTotals& totals) override;
  void end() override {}

  // One for each kind of record.
  void operator()(const reader::Prologue& prologue) {
    if (step_->step.bytes == 0) {
      out_ << "offset " << step_->step.offset << ": no prologue\n";
      return;
    }
    heading("prologue") << ", "
                        << (prologue.asExpected ? "as long as Info.plist says"
                                                : "found by searching for a record")
                        << '\n';
    if (!prologue.start.empty()) {
      out_ << "  " << quoted(prologue.start)
           << (prologue.start.size() < step_->step.bytes ? " ...\n" : "\n");
    }
  }
  void operator()(const reader::JobRecord& /*record*/) {
    heading("job record") << '\n';
    fields(reader::RecordKind::kJob);
  }
  void operator()(const reader::HostRecord& /*record*/) {
    heading("host record") << '\n';
    fields(reader::RecordKind::kHost);
  }
  void operator()(const reader::PageRecord& /*record*/) {
    heading("page record") << ": page " << step_->page << '\n';
    fields(reader::RecordKind::kPage);
  }
  void operator()(const reader::Band& band);
  void operator()(const reader::EndOfJob& /*record*/) { heading("end-of-job mark") << '\n'; }
  void operator()(const reader::Gap& /*record*/) { heading("no record") << '\n'; }
  void operator()(const reader::BrokenOff& /*record*/) {
    out_ << "offset " << step_->step.offset << ": " << brokenOffText(*step_) << '\n';
  }

 private:
  std::ostream& heading(const char* kind) {
    return out_ << "offset " << step_->step.offset << ": " << kind << ", "
                << counted(step_->step.bytes, "byte");
  }
  void fields(reader::RecordKind kind) {
    constexpr std::size_t kNameWidth = 20;
    for (const Field& field : fieldsOf(kind, step_->step.header)) {
      out_ << "  " << field.name << std::string(kNameWidth - field.name.size(), ' ')
           << valueText(field) << (field.unit.empty() ? "" : " ") << field.unit
           << inParentheses(field.meaning) << inParentheses(field.remark) << '\n';
    }
  }

  std::ostream& out_;
  const reader::JobStep* step_ = nullptr;
};

// A band's fields in one line: there are a hundred bands a page.
void TextReport::operator()(const reader::Band& band) {
  out_ << "offset " << step_->step.offset << ": band record, ";
  if (step_->page != 0) {
    out_ << "page " << step_->page << ", ";
  }
  out_ << (step_->place ? step_->place->name() : "no plane") << ':';
  for (const Field& field : fieldsOf(reader::RecordKind::kBand, step_->step.header)) {
    const bool unusedSlot = field.unit == "bytes" && field.value == Field{}.value;
    if (!unusedSlot) {
      out_ << ' ' << field.name << ' ' << valueText(field) << inParentheses(field.meaning) << ',';
    }
  }
  out_ << ' ' << share(band.data.size(), std::uint64_t{band.record.rows} * step_->rowBytes)
       << " bytes" << (step_->sound ? "" : ", does not decode") << '\n';
}

void TextReport::page(const reader::PageSummary& page) {
  out_ << "page " << page.ordinal << ": " << mediaName(page.record.mediaSize) << ", "
       << millimetres(page.record.widthMicrometres) << " x "
       << millimetres(page.record.heightMicrometres) << " mm, "
       << counted(page.inks().size(), "plane") << " of " << counted(page.bitsPerPixel, "bit")
       << inParentheses(qualityName(page.bitsPerPixel)) << ", " << page.widthPixels() << " x "
       << page.summaryOf(reader::Ink::kBlack).rows << " pixels, rows of "
       << counted(page.rowBits, "bit") << ", " << inkText(page)
       << (page.flaggedBlank ? ", flagged as blank" : "") << (page.brokenOff ? ", broken off" : "")
       << '\n';
  for (const reader::Ink ink : page.inks()) {
    const reader::PlaneSummary& plane = page.summaryOf(ink);
    out_ << "  " << nameOf(ink) << ": " << counted(plane.bands, "band") << ", "
         << counted(plane.rows, "row") << ", " << counted(plane.compressedBytes, "byte") << '\n';
  }
  out_ << "  compressed: " << counted(page.compressedBytes, "byte") << ", "
       << share(page.compressedBytes, page.bytesOfRows());
  if (page.largestBandBytes > 0) {
    out_ << "; the largest is " << page.largestBand.name() << " with "
         << counted(page.largestBandBytes, "byte");
  }
  if (page.lostBands > 0) {
    out_ << "; " << counted(page.lostBands, "band") << " lost";
  }
  out_ << '\n';
}

void TextReport::job(const reader::JobTotals& totals) {
  out_ << "job: " << counted(totals.pages, "page");
  if (!totals.job.empty()) {
    const reader::JobRecord record = reader::parseJobRecord(totals.job);
    out_ << ", " << record.copies << (record.copies == 1 ? " copy" : " copies") << ", "
         << fieldText(reader::RecordKind::kJob, totals.job, "name") << ", "
         << dateText(record.packedDate);
  }
  if (!totals.host.empty()) {
    out_ << ", host " << fieldText(reader::RecordKind::kHost, totals.host, "host") << ", user "
         << fieldText(reader::RecordKind::kHost, totals.host, "user");
  }
  out_ << "\n  " << counted(totals.bytes, "byte") << ", of these " << totals.compressedBytes
       << " in bands; " << counted(totals.violations, "violation") << " and "
       << counted(totals.remarks, "note");
  out_ << (totals.violations + totals.remarks == 0 ? "\n" : ", which gdiview check tells\n");
}

}  // namespace

std::unique_ptr<InfoReport> textReport(std::ostream& out) {
  return std::make_unique<TextReport>(out);
}

}  // namespace gdi::gdiview
