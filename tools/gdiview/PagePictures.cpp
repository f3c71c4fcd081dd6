// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/PagePictures.h"

#include <filesystem>
#include <sstream>

#include "reader/counted.h"
#include "reader/page_resolution.h"
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

}  // namespace

PagePictures::PagePictures(const reader::Page& page, const PngOptions& options, Progress& progress,
                           std::ostream& out, std::ostream& errors)
    : page_(page),
      options_(options),
      progress_(progress),
      out_(out),
      errors_(errors),
      paint_{.reduction = options.reduction, .upright = isTurned(page, options.turned)},
      pictures_(options.planes ? 1 + page.inks().size() : 1) {
}

bool PagePictures::write() {
  if (page_.rows() == 0 || page_.widthPixels() == 0) {
    progress_.clear();
    out_ << description(page_) << ", no picture\n";
    return true;
  }
  return hasFolder() &&
         writeOne(paint_, description(page_), "page-" + std::to_string(page_.ordinal)) &&
         (!options_.planes || writePlanes());
}

bool PagePictures::hasFolder() {
  std::ostringstream trouble;
  const bool made = makeFolder(options_.folder, trouble);
  if (!made) {
    progress_.clear();
    errors_ << trouble.str();
  }
  return made;
}

bool PagePictures::writePlanes() {
  const std::string ordinal = std::to_string(page_.ordinal);
  for (const reader::Ink ink : page_.inks()) {
    PaintOptions paint = paint_;
    paint.separation = ink;
    const std::string text = std::string("page ").append(ordinal).append(", ").append(nameOf(ink));
    const std::string name = std::string("page-").append(ordinal).append("-").append(nameOf(ink));
    if (!writeOne(paint, text, name)) {
      return false;
    }
  }
  return true;
}

bool PagePictures::writeOne(const PaintOptions& paint, const std::string& text,
                            const std::string& name) {
  PagePainter painter(page_, paint);
  const std::filesystem::path path = options_.folder / (name + ".png");
  const double samplesPerInch =
      static_cast<double>(reader::pixelsPerInchOf(page_)) / options_.reduction;
  const auto tellRows = [&](std::uint32_t rows) {
    progress_.work(std::uint64_t{painted_} * painter.height() + rows,
                   std::uint64_t{pictures_} * painter.height());
  };
  std::ostringstream trouble;
  const bool written = writePicture(painter, samplesPerInch, path, trouble, tellRows);
  ++painted_;
  progress_.clear();
  out_ << text;
  if (written) {
    out_ << ": " << nameInLine(path.string()) << '\n';
  } else {
    out_ << ", no picture\n";
  }
  errors_ << trouble.str();
  return written;
}

}  // namespace gdi::gdiview
