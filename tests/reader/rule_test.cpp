// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include "tests/jobs/read_job.h"
#include "tests/reader/breaches.h"

namespace gdi::reader {

Breaches allBreaches() {
  Breaches all;
  for (const Breaches& some :
       {streamBreaches(), jobRecordBreaches(), pageRecordBreaches(), bandRecordBreaches(),
        bandDataBreaches(), pageBreaches(), remarks()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

void PrintTo(const Breach& breach, std::ostream* stream) {
  *stream << breach.kind;
}

namespace {

class EachBreach : public testing::TestWithParam<Breach> {};

TEST_P(EachBreach, IsTheOnlyThingThatIsTold) {
  const Breach& breach = GetParam();
  const jobtest::ReadJob job = jobtest::readJob(breach.stream);
  ASSERT_EQ(job.findings.size(), 1U) << job.told();
  const Finding& finding = job.findings.front();
  EXPECT_EQ(textOf(finding.rule).name, textOf(breach.rule).name) << job.told();
  EXPECT_EQ(finding.offset, breach.offset) << job.told();
  EXPECT_EQ(finding.record, breach.record) << job.told();
  EXPECT_FALSE(finding.text.empty());
  EXPECT_EQ(finding.text.find('\n'), std::string::npos);
  EXPECT_EQ(job.totals.violations, finding.remark() ? 0U : 1U);
  EXPECT_EQ(job.totals.remarks, finding.remark() ? 1U : 0U);
  EXPECT_EQ(job.totals.bytes, breach.stream.size());
}

// "PageEnd_NeitherFlagNorTrailer" for the rule "page-end".
std::string testNameOf(const testing::TestParamInfo<Breach>& test) {
  std::string name;
  bool capital = true;
  for (const char letter : textOf(test.param.rule).name) {
    if (letter != '-') {
      name += capital ? static_cast<char>(letter - 'a' + 'A') : letter;
    }
    capital = letter == '-';
  }
  return name + "_" + test.param.kind;
}

INSTANTIATE_TEST_SUITE_P(Rules, EachBreach, testing::ValuesIn(allBreaches()), testNameOf);

TEST(Rules, AllHaveAStreamThatBreaksThemAlone) {
  const Breaches breaches = allBreaches();
  for (const RuleText& rule : allRules()) {
    EXPECT_EQ(std::ranges::count(breaches, rule.rule, &Breach::rule) > 0, true) << rule.name;
  }
}

TEST(Rules, StandInTheirOrderAndHaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  std::size_t index = 0;
  for (const RuleText& rule : allRules()) {
    EXPECT_EQ(static_cast<std::size_t>(rule.rule), index++) << rule.name;
    EXPECT_EQ(&textOf(rule.rule), &rule);
    EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
    EXPECT_FALSE(rule.sentence.empty());
  }
  EXPECT_EQ(static_cast<std::size_t>(Rule::kPaperSize) + 1, index);
}

TEST(Rules, AreAllListedInTheDocument) {
  std::ifstream file(GDI_JOB_STREAM_DOCUMENT);
  const std::string document((std::istreambuf_iterator<char>(file)), {});
  for (const RuleText& rule : allRules()) {
    std::string listed("| `");
    listed.append(rule.name).append("` | ").append(rule.sentence).append(" |\n");
    EXPECT_NE(document.find(listed), std::string::npos) << listed;
  }
}

TEST(Rules, AFindingIsALineWithItsPlaceAndRule) {
  EXPECT_EQ(lineOf({336, Rule::kZeroField, "page 1, black band 0", "byte 28 is 1, not 0"}),
            "offset 336: page 1, black band 0: zero-field: byte 28 is 1, not 0");
  EXPECT_EQ(lineOf({272, Rule::kPaperSize, "page 1", "it is"}),
            "offset 272: page 1: note paper-size: it is");
}

}  // namespace
}  // namespace gdi::reader
