// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <fstream>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/docs/JsonSchema.h"
#include "tests/jobs/job_builder.h"
#include "tests/support/document_block.h"
#include "tools/gdiview/info_job.h"

namespace gdi::gdiview {
namespace {

using jobtest::Bytes;
using jobtest::JobBuilder;
using jobtest::kFirst;
using jobtest::kLast;
using nlohmann::json;
using reader::Ink;

constexpr char kPrologue[] = "\x1B%-12345X@PJL JOB\r\n@PJL ENTER LANGUAGE=GDI\r\n";

std::string contentsOf(const char* path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

const test::JsonSchema& schema() {
  static const test::JsonSchema kSchema(json::parse(contentsOf(GDI_INFO_SCHEMA)));
  return kSchema;
}

std::string infoOf(const JobBuilder& job, InfoOptions options = {},
                   const std::string& name = "JOB") {
  std::istringstream stream = job.stream();
  JobInput input(stream, name);
  options.json = true;
  std::ostringstream out;
  std::ostringstream errors;
  Progress progress(errors, false);
  infoJob(input, options, progress, out, errors);
  EXPECT_EQ(errors.str(), "");
  return out.str();
}

void addBlackPage(JobBuilder& job) {
  job.pageRecord({.rows = 2});
  job.band(Ink::kBlack, kFirst | kLast, {Bytes(16, 0x0F), Bytes(16, 0xFF)});
}

// A job with a record of every kind: pages of black and of colour, one with a band of no plane, a
// blank one that says so, a gap, and no end-of-job mark where one should be.
JobBuilder everyRecord() {
  JobBuilder job;
  job.text(kPrologue).jobRecord(1).hostRecord("d\xFFsk", "Ann\xC3\xA4");
  addBlackPage(job);
  job.pageRecord({.rows = 1, .channels = 4, .number = 1});
  for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
    job.band(ink, ink == Ink::kYellow ? kFirst | kLast : kFirst, jobtest::solidRows(1, 16, 0xFF));
  }
  job.text("no record begins here");
  job.pageRecord({.rows = 1, .channels = 1, .number = 2}).bandRecord({.rows = 1}, 0);
  job.bandRecord({.ink = Ink::kCyan, .rows = 1}, 16).raw(Bytes(16));
  job.pageRecord({.rowBits = 127, .rows = 1, .channels = 3, .number = 3});
  job.band({.flags = kFirst | kLast, .rows = 1, .pageBlank = true}, Bytes(16, 0x55));
  job.end();
  return job.jobRecord(8).pageRecord({.rows = 1});
}

std::set<std::string> kindsOf(const json& document) {
  std::set<std::string> kinds;
  for (const json& record : document["records"]) {
    kinds.insert(record["kind"]);
  }
  return kinds;
}

void collectKeys(const json& value, std::set<std::string>& keys) {
  for (const auto& entry : value.items()) {
    if (value.is_object()) {
      keys.insert(entry.key());
    }
    if (entry.value().is_structured()) {
      collectKeys(entry.value(), keys);
    }
  }
}

TEST(InfoSchema, HoldsForAJobWithEveryKindOfRecord) {
  const json document = json::parse(infoOf(everyRecord()));
  EXPECT_EQ(kindsOf(document),
            (std::set<std::string>{"prologue", "job", "host", "page", "band", "end_of_job", "gap",
                                   "broken_off", "page_summary"}));
  EXPECT_EQ(schema().faultOf(document), "");
}

TEST(InfoSchema, HoldsForBandsAheadOfTheFirstPage) {
  JobBuilder job;
  job.jobRecord(1).hostRecord();
  job.band(Ink::kCyan, kFirst, jobtest::solidRows(1, 16, 0xFF)).end();
  const json document = json::parse(infoOf(job));
  EXPECT_EQ(kindsOf(document).count("band"), 1U);
  EXPECT_EQ(schema().faultOf(document), "");
}

TEST(InfoSchema, HoldsForAJobOfNoPages) {
  JobBuilder job;
  EXPECT_EQ(schema().faultOf(json::parse(infoOf(job.text(kPrologue).end()))), "");
}

// Down to the first eight bytes of the job record, by which it is known.
TEST(InfoSchema, HoldsForAJobThatIsCutOffAnywhere) {
  constexpr std::size_t kStep = 17;  // falls on all parts of records
  constexpr std::size_t kLeast = sizeof(kPrologue) - 1 + 8;
  JobBuilder job = everyRecord();
  for (; job.size() >= kLeast + kStep; job.bytes().resize(job.size() - kStep)) {
    const std::string text = infoOf(job);
    ASSERT_EQ(schema().faultOf(json::parse(text)), "") << job.size() << " bytes: " << text;
  }
  job.bytes().resize(kLeast);
  EXPECT_EQ(schema().faultOf(json::parse(infoOf(job))), "");
}

TEST(InfoSchema, HoldsForSummariesAloneAndForOnePage) {
  InfoOptions options;
  options.summary = true;
  EXPECT_EQ(schema().faultOf(json::parse(infoOf(everyRecord(), options))), "");
  options.summary = false;
  options.page = 2;
  const json page = json::parse(infoOf(everyRecord(), options));
  EXPECT_EQ(schema().faultOf(page), "");
  EXPECT_FALSE(page.contains("job"));
  EXPECT_EQ(kindsOf(page), (std::set<std::string>{"page", "band", "gap", "page_summary"}));
}

TEST(InfoSchema, RefusesWhatTheDocumentsDoNotHave) {
  json document = json::parse(infoOf(everyRecord()));
  document["records"][0]["offset"] = "0";
  EXPECT_NE(schema().faultOf(document), "");
  document["records"][0]["offset"] = 0;
  EXPECT_EQ(schema().faultOf(document), "");
  document["records"][0]["kind"] = "preface";
  EXPECT_NE(schema().faultOf(document), "");
  document["records"][0]["kind"] = "prologue";
  document["records"][1]["fields"]["new"] = 1;
  EXPECT_NE(schema().faultOf(document), "");
  document["records"][1]["fields"].erase("new");
  document["records"][1].erase("bytes");
  EXPECT_NE(schema().faultOf(document), "");
}

TEST(InfoDocument, NamesEveryKeyOfTheOutput) {
  std::set<std::string> keys;
  collectKeys(json::parse(infoOf(everyRecord())), keys);
  const std::string page = contentsOf(GDI_INFO_DOCUMENT);
  for (const std::string& key : keys) {
    EXPECT_NE(page.find("`" + key + "`"), std::string::npos) << key;
  }
}

// Each record's line parses by itself, without the comma behind it.
TEST(InfoDocument, IsOneObjectALine) {
  const std::string text = infoOf(everyRecord());
  json records = json::array();
  bool inside = false;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line) && !line.starts_with("]");) {
    if (inside) {
      records.push_back(json::parse(line.substr(0, line.find_last_not_of(',') + 1)));
    }
    inside = inside || line == "\"records\": [";
  }
  EXPECT_EQ(records, json::parse(text)["records"]);
}

TEST(InfoDocument, ItsExampleIsWhatIsPrintedOfTheJobStreamDocumentsJob) {
  std::string example;
  for (const std::string& line : test::linesOfBlock(GDI_INFO_DOCUMENT, "json")) {
    example += line + "\n";
  }
  ASSERT_NE(example, "");
  EXPECT_EQ(schema().faultOf(json::parse(example)), "");
  JobBuilder job;
  job.text(kPrologue).raw(test::bytesOfHexBlock(GDI_JOB_STREAM_DOCUMENT));
  EXPECT_EQ(infoOf(job, {}, "hello.gdi"), example);
}

}  // namespace
}  // namespace gdi::gdiview
