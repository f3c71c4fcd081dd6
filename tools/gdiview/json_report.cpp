// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The report for programs: one JSON document, written record by record so that the length of a job
// costs no memory. docs/gdiview.md has its schema.

#include <nlohmann/json.hpp>

#include "tools/gdiview/info_job.h"
#include "tools/gdiview/record_fields.h"

namespace gdi::gdiview {

namespace {

using nlohmann::ordered_json;

constexpr const char* kSchema = "gdiview-info-1";

ordered_json fieldsAsJson(reader::RecordKind kind, std::span<const std::uint8_t> header) {
  ordered_json fields = ordered_json::object();
  for (const Field& field : fieldsOf(kind, header)) {
    ordered_json& entry = fields[field.name];
    std::visit([&entry](const auto& value) { entry["value"] = value; }, field.value);
    if (!field.unit.empty()) {
      entry["unit"] = field.unit;
    }
    if (!field.meaning.empty()) {
      entry["meaning"] = field.meaning;
    }
    if (!field.remark.empty()) {
      entry["note"] = field.remark;
    }
  }
  return fields;
}

// What is told of a record beside where it stands.
struct RecordAsJson {
  const reader::JobStep& job;

  [[nodiscard]] ordered_json typed(const char* kind, reader::RecordKind type) const {
    return {{"kind", kind}, {"fields", fieldsAsJson(type, job.step.header)}};
  }
  ordered_json operator()(const reader::Prologue& prologue) const {
    return {{"kind", "prologue"},
            {"as_expected", prologue.asExpected},
            {"text", escaped(prologue.start)}};
  }
  ordered_json operator()(const reader::JobRecord& /*record*/) const {
    return typed("job", reader::RecordKind::kJob);
  }
  ordered_json operator()(const reader::HostRecord& /*record*/) const {
    return typed("host", reader::RecordKind::kHost);
  }
  ordered_json operator()(const reader::PageRecord& /*record*/) const {
    ordered_json page = typed("page", reader::RecordKind::kPage);
    page["page"] = job.page;
    return page;
  }
  ordered_json operator()(const reader::Band& band) const {
    ordered_json json = typed("band", reader::RecordKind::kBand);
    if (job.page != 0) {
      json["page"] = job.page;
    }
    if (job.place) {
      json["plane"] = nameOf(job.place->ink);
      json["band"] = job.place->index;
    }
    json["first"] = band.record.first();
    json["last"] = band.record.last();
    json["compressed_bytes"] = band.data.size();
    json["uncompressed_bytes"] = std::uint64_t{band.record.rows} * job.rowBytes;
    json["decodes"] = job.sound;
    return json;
  }
  ordered_json operator()(const reader::EndOfJob& /*record*/) const {
    return {{"kind", "end_of_job"}};
  }
  ordered_json operator()(const reader::Gap& /*record*/) const { return {{"kind", "gap"}}; }
  ordered_json operator()(const reader::BrokenOff& /*record*/) const {
    return {{"kind", "broken_off"}, {"text", brokenOffText(job)}};
  }
};

class JsonReport : public InfoReport {
 public:
  JsonReport(std::ostream& out, std::string jobName) : out_(out), jobName_(std::move(jobName)) {}

  void record(const reader::JobStep& job) override {
    ordered_json json = std::visit(RecordAsJson{job}, job.step.record);
    json["offset"] = job.step.offset;
    json["bytes"] = job.step.bytes;
    add(json);
  }

  void page(const reader::PageSummary& page) override {
    ordered_json planes = ordered_json::object();
    for (const reader::Ink ink : page.inks()) {
      const reader::PlaneSummary& plane = page.summaryOf(ink);
      planes[nameOf(ink)] = {{"bands", plane.bands},
                             {"rows", plane.rows},
                             {"compressed_bytes", plane.compressedBytes}};
    }
    ordered_json json = {{"kind", "page_summary"},
                         {"page", page.ordinal},
                         {"media", mediaName(page.record.mediaSize)},
                         {"page_width", page.record.widthMicrometres},
                         {"page_length", page.record.heightMicrometres},
                         {"bits_per_pixel", page.bitsPerPixel},
                         {"width_pixels", page.widthPixels()},
                         {"rows", page.summaryOf(reader::Ink::kBlack).rows},
                         {"row_bits", page.rowBits},
                         {"planes", planes},
                         {"compressed_bytes", page.compressedBytes},
                         {"uncompressed_bytes", page.bytesOfRows()}};
    if (page.largestBandBytes > 0) {
      json["largest_band"] = {{"plane", nameOf(page.largestBand.ink)},
                              {"band", page.largestBand.index},
                              {"compressed_bytes", page.largestBandBytes}};
    }
    json["lost_bands"] = page.lostBands;
    json["blank"] = isBlank(page);
    json["flagged_blank"] = page.flaggedBlank;
    json["broken_off"] = page.brokenOff;
    add(json);
  }

  void job(const reader::JobTotals& totals) override {
    ordered_json json = {{"pages", totals.pages},
                         {"bytes", totals.bytes},
                         {"compressed_bytes", totals.compressedBytes},
                         {"violations", totals.violations},
                         {"notes", totals.remarks}};
    if (!totals.job.empty()) {
      const ordered_json fields = fieldsAsJson(reader::RecordKind::kJob, totals.job);
      json["name"] = fields["name"]["value"];
      json["copies"] = fields["copies"]["value"];
      json["date"] = fields["date"]["meaning"];
    }
    if (!totals.host.empty()) {
      const ordered_json fields = fieldsAsJson(reader::RecordKind::kHost, totals.host);
      json["host"] = fields["host"]["value"];
      json["user"] = fields["user"]["value"];
    }
    job_ = std::move(json);
  }

  void end() override {
    open();
    out_ << "\n]";
    if (!job_.is_null()) {
      out_ << ",\n\"job\": " << text(job_);
    }
    out_ << "\n}\n";
  }

 private:
  // Texts of a job may be anything; what is no UTF-8 becomes replacement characters.
  static std::string text(const ordered_json& json) {
    return json.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
  }
  void open() {
    if (!opened_) {
      out_ << "{\n\"schema\": " << text(kSchema) << ",\n\"file\": " << text(jobName_)
           << ",\n\"records\": [";
    }
    opened_ = true;
  }
  void add(const ordered_json& json) {
    open();
    out_ << (empty_ ? "\n" : ",\n") << text(json);
    empty_ = false;
  }

  std::ostream& out_;
  std::string jobName_;
  bool opened_ = false;
  bool empty_ = true;
  ordered_json job_;
};

}  // namespace

std::unique_ptr<InfoReport> jsonReport(std::ostream& out, const std::string& jobName) {
  return std::make_unique<JsonReport>(out, jobName);
}

}  // namespace gdi::gdiview
