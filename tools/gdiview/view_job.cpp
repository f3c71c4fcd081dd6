// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/view_job.h"

#include <cerrno>
#include <cmath>
#include <system_error>

#include "reader/JobReader.h"
#include "tools/gdiview/PagePainter.h"
#include "tools/gdiview/PngFile.h"

namespace gdi::gdiview {

namespace {

constexpr double kMetresPerInch = 0.0254;

std::uint32_t samplesPerMetre(std::uint32_t reduction) {
  return static_cast<std::uint32_t>(
      std::lround(reader::kPixelsPerInch / kMetresPerInch / reduction));
}

// False, with errno set, when the picture cannot be written.
bool writePicture(const reader::Page& page, std::uint32_t reduction,
                  const std::filesystem::path& path) {
  PagePainter painter(page, {.reduction = reduction});
  const std::unique_ptr<PngFile> file = PngFile::create(
      path, {painter.width(), painter.height(), painter.channels(), samplesPerMetre(reduction)});
  if (file == nullptr) {
    return false;
  }
  for (std::uint32_t row = 0; row < painter.height(); ++row) {
    if (!file->writeRow(painter.nextRow())) {
      return false;
    }
  }
  return file->finish();
}

// "1 row", "2 rows".
std::string counted(std::uint32_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

void describe(const reader::Page& page, std::uint32_t number, std::ostream& out) {
  out << "page " << number << ": " << (page.isColor() ? "4 planes (CMYK)" : "1 plane (K)") << ", "
      << counted(page.rows(), "row") << " of " << counted(page.rowBits, "bit") << ", "
      << counted(page.widthPixels(), "pixel") << " of " << counted(page.bitsPerPixel, "bit") << ", "
      << counted(page.bandCount, "band") << ", " << page.compressedBytes << " compressed bytes";
}

void tell(const reader::Trouble& trouble, const std::string& jobName, std::ostream& out) {
  out << "gdiview: " << jobName << ": offset " << trouble.offset << ": "
      << (trouble.note ? "note: " : "") << trouble.text << '\n';
}

}  // namespace

int viewJob(std::istream& input, const std::string& jobName, const ViewOptions& options,
            std::ostream& pages, std::ostream& troubles) {
  std::error_code error;
  std::filesystem::create_directories(options.folder, error);
  if (error) {
    troubles << "gdiview: " << options.folder.string() << ": " << error.message() << '\n';
    return 1;
  }
  int status = 0;
  reader::JobReader job(input);
  std::uint32_t number = 0;
  for (bool more = true; more;) {
    const std::optional<reader::Page> page = job.nextPage();
    more = page.has_value();
    for (const reader::Trouble& trouble : job.takeTroubles()) {
      tell(trouble, jobName, troubles);
      status = trouble.note ? status : 1;
    }
    number += more ? 1 : 0;
    if (!more || (options.page && *options.page != number)) {
      continue;
    }
    describe(*page, number, pages);
    if (page->rows() == 0) {
      pages << ", no picture\n";
      continue;
    }
    const std::filesystem::path path = options.folder / ("page-" + std::to_string(number) + ".png");
    errno = 0;
    if (!writePicture(*page, options.reduction, path)) {
      pages << ", no picture\n";
      troubles << "gdiview: " << path.string() << ": "
               << std::generic_category().message(errno == 0 ? EIO : errno) << '\n';
      return 1;
    }
    pages << ": " << path.string() << '\n';
  }
  if (options.page && *options.page > number) {
    troubles << "gdiview: " << jobName << ": there is no page " << *options.page << "; the job has "
             << number << '\n';
    status = 1;
  }
  errno = 0;
  if (!pages.flush()) {
    troubles << "gdiview: the lines about pages cannot be written: "
             << std::generic_category().message(errno == 0 ? EIO : errno) << '\n';
    status = 1;
  }
  return status;
}

}  // namespace gdi::gdiview
