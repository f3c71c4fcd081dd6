// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/printer/FilterJob.h"

#include <algorithm>
#include <cstdio>

#include <fcntl.h>
#include <stdio_ext.h>
#include <unistd.h>

#include "filter/signals.h"

namespace gdi::test {

std::string copiesOption(int copies) {
  return "com.apple.print.PrintSettings.PMCopies..n.=" + std::to_string(copies) + " ";
}

std::string sidesOption(int sides) {
  return "com.apple.print.PrintSettings.PMTotalSidesImaged..n.=" + std::to_string(sides) + " ";
}

void fillInk(std::uint32_t /*line*/, std::span<std::uint8_t> bytes) {
  std::ranges::fill(bytes, std::uint8_t{255});
}

JobFilter::JobFilter(std::string options, std::vector<FakePage> pages)
    : options_(std::move(options)), pages_(std::move(pages)) {
}

bool JobFilter::prepare() {
  arguments_ = {"queue", "1", user.c_str(), title.c_str(), "1", options_.c_str(), nullptr};
  argc = static_cast<int>(arguments_.size()) - 1;
  argv = arguments_.data();
  for (const JobOption& option : parseJobOptions(options_.c_str())) {
    optionsDict[option.name] = option.value;
  }
  return init();
}

std::unique_ptr<RasterStream> JobFilter::openRaster() {
  return std::make_unique<FakeRasterStream>(pages_);
}

std::uint32_t JobFilter::compress(const std::uint8_t* band, std::uint32_t byteCount,
                                  bool lastBand) {
  const std::size_t number = bands_++;
  const auto answer = beforeBand ? beforeBand(number) : std::nullopt;
  return answer ? *answer : GDIFilter::compress(band, byteCount, lastBand);
}

bool JobFilter::startPage(std::uint32_t page) {
  const bool started = (!beforePage || beforePage(page)) && GDIFilter::startPage(page);
  turns.push_back({flip, mirror});
  sides.push_back(sidesImaged);
  return started;
}

bool JobFilter::startPageOf(const cups_page_header_t& header) {
  cupsPageHeader = header;
  return GDIFilter::startPage(0);
}

StandardOutput::StandardOutput(int descriptor) {
  (void)std::fflush(stdout);
  former_ = dup(STDOUT_FILENO);
  (void)dup2(descriptor, STDOUT_FILENO);
}

StandardOutput::~StandardOutput() {
  (void)std::fflush(stdout);
  __fpurge(stdout);
  std::clearerr(stdout);
  (void)dup2(former_, STDOUT_FILENO);
  (void)close(former_);
}

void FilterJob::TearDown() {
  gSigTerm = 0;
  gSigPipe = 0;
  bundle_.reset();  // a later bundle lies in the scratch folder
  EXPECT_EQ(scratch_.entries(), std::vector<std::string>{}) << "plane files are left";
}

bool FilterJob::runInto(int descriptor, JobFilter& filter) {
  EXPECT_TRUE(filter.prepare());
  testing::internal::CaptureStderr();
  bool succeeded = false;
  {
    const StandardOutput redirected(descriptor);
    succeeded = filter.run();
  }
  (void)close(descriptor);
  errors_ = testing::internal::GetCapturedStderr();
  return succeeded;
}

bool FilterJob::run(JobFilter& filter) {
  const std::string path = outputFolder_.path() / "stream";
  const bool succeeded =
      runInto(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600), filter);
  const std::string output = contentsOf(path);
  const std::size_t prologue = output.starts_with(kPrologue) ? std::string(kPrologue).size() : 0;
  stream_.assign(output.begin(), output.end());
  records_ = recordsOf({stream_.begin() + static_cast<std::ptrdiff_t>(prologue), stream_.end()});
  return succeeded;
}

bool FilterJob::run(const std::string& options, std::vector<FakePage> pages) {
  JobFilter filter(options, std::move(pages));
  return run(filter);
}

void FilterJob::setInformation(TestBundle::Texts information) {
  information.try_emplace("CUPSFileHeader", kPrologue);
  bundle_.emplace(information);
}

std::vector<std::string> FilterJob::logLines(const std::vector<std::string>& words) const {
  std::vector<std::string> found;
  std::ranges::copy_if(log_.lines(), std::back_inserter(found), [&words](const std::string& line) {
    return std::ranges::any_of(words,
                               [&line](const std::string& word) { return line.starts_with(word); });
  });
  return found;
}

std::size_t FilterJob::bandsWritten() const {
  return logLines({"GDIFilter sendRaster: wrote"}).size();
}

}  // namespace gdi::test
