// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/png_job.h"

#include <sstream>
#include <string>

#include "reader/JobReader.h"
#include "reader/counted.h"
#include "reader/page_resolution.h"
#include "tools/gdiview/FindingLines.h"
#include "tools/gdiview/PagePainter.h"
#include "tools/gdiview/escaped_text.h"
#include "tools/gdiview/picture_file.h"

namespace gdi::gdiview {

namespace {

using reader::counted;

bool isTurned(const reader::Page& page, Turned turned) {
  const bool isBack = page.record.number % 2 != 0;
  return turned == Turned::kAll || turned == (isBack ? Turned::kBacks : Turned::kFronts);
}

std::string description(const reader::Page& page) {
  std::ostringstream text;
  text << "page " << page.ordinal << ": " << (page.isColor() ? "4 planes (CMYK)" : "1 plane (K)")
       << ", " << counted(page.rows(), "row") << " of " << counted(page.rowBits, "bit") << ", "
       << counted(page.widthPixels(), "pixel") << " of " << counted(page.bitsPerPixel, "bit")
       << ", " << counted(page.bandCount, "band") << ", "
       << counted(page.compressedBytes, "compressed byte");
  return text.str();
}

// The pictures of one page, in the folder, which is made when it is missing; false, with a line,
// when one cannot be written. Painting takes longer than reading the page did: its rows are the
// progress.
bool writePage(const reader::Page& page, const PngOptions& options, Progress& progress,
               std::ostream& out, std::ostream& errors) {
  const std::string name = "page-" + std::to_string(page.ordinal);
  PaintOptions paint;
  paint.reduction = options.reduction;
  paint.upright = isTurned(page, options.turned);
  const double samplesPerInch =
      static_cast<double>(reader::pixelsPerInchOf(page)) / options.reduction;
  const std::size_t pictures = options.planes ? 1 + page.inks().size() : 1;
  std::size_t painted = 0;
  const auto write = [&](const std::string& text, const std::string& file) {
    PagePainter painter(page, paint);
    const std::filesystem::path path = options.folder / (file + ".png");
    std::ostringstream trouble;
    const auto tellRows = [&](std::uint32_t rows) {
      progress.work(std::uint64_t{painted} * painter.height() + rows,
                    std::uint64_t{pictures} * painter.height());
    };
    const bool written = writePicture(painter, samplesPerInch, path, trouble, tellRows);
    ++painted;
    progress.clear();
    out << text;
    if (written) {
      out << ": " << nameInLine(path.string()) << '\n';
    } else {
      out << ", no picture\n";
    }
    errors << trouble.str();
    return written;
  };
  if (page.rows() == 0 || page.widthPixels() == 0) {
    progress.clear();
    out << description(page) << ", no picture\n";
    return true;
  }
  std::ostringstream trouble;
  if (!makeFolder(options.folder, trouble)) {
    progress.clear();
    errors << trouble.str();
    return false;
  }
  if (!write(description(page), name)) {
    return false;
  }
  for (const reader::Ink ink : options.planes ? page.inks() : std::span<const reader::Ink>()) {
    paint.separation = ink;
    std::string text("page ");
    text.append(std::to_string(page.ordinal)).append(", ").append(nameOf(ink));
    if (!write(text, std::string(name).append("-").append(nameOf(ink)))) {
      return false;
    }
  }
  return true;
}

}  // namespace

int pngJob(JobInput& input, const PngOptions& options, Progress& progress, std::ostream& out,
           std::ostream& errors) {
  FindingLines lines(errors, input.name());
  const auto tell = [&](const reader::Finding& finding) {
    progress.clear();
    lines.tell(finding);
  };
  reader::JobReader job(input.stream(), tell, options.prologueBytes);
  bool shown = false;
  while (const std::optional<reader::Page> page = job.nextPage()) {
    progress.update(page->ordinal, job.walk().offset());
    if (options.page && *options.page != page->ordinal) {
      continue;
    }
    shown = true;
    if (!writePage(*page, options, progress, out, errors)) {
      return kUnusable;
    }
    if (options.page) {
      break;
    }
  }
  progress.clear();
  if (!isJobStream(job.walk(), {job.prologue(), job.prologueBytes()}, input.name(), errors)) {
    return statusAfterWriting(out, kUnusable, errors);
  }
  if (options.page && !shown) {
    tellMissingPage(input.name(), *options.page, job.totals(), errors);
    return kUnusable;
  }
  if (job.totals().pages == 0) {
    out << nameInLine(input.name()) << ": 0 pages, no picture\n";
  }
  return statusAfterWriting(out, job.totals().violations == 0 ? kSound : kFaulty, errors);
}

}  // namespace gdi::gdiview
