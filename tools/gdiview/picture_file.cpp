// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/picture_file.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <system_error>

#include "tools/gdiview/escaped_text.h"
#include "tools/png/PngFile.h"

namespace gdi::gdiview {

namespace {

constexpr double kMetresPerInch = 0.0254;

// At least 1: 0 would say nothing.
std::uint32_t samplesPerMetre(double samplesPerInch) {
  return static_cast<std::uint32_t>(std::max(1L, std::lround(samplesPerInch / kMetresPerInch)));
}

bool writeRows(Picture& picture, PngFile& file, const std::function<void(std::uint32_t)>& written) {
  for (std::uint32_t row = 0; row < picture.height(); ++row) {
    if (!file.writeRow(picture.nextRow())) {
      return false;
    }
    written(row + 1);
  }
  return file.finish();
}

}  // namespace

bool makeFolder(const std::filesystem::path& folder, std::ostream& errors) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    errors << "gdiview: " << nameInLine(folder.string()) << ": " << error.message() << '\n';
  }
  return !error;
}

bool writePicture(Picture& picture, double samplesPerInch, const std::filesystem::path& path,
                  std::ostream& errors, const std::function<void(std::uint32_t)>& written) {
  errno = 0;
  const PngLayout layout{picture.width(), picture.height(), picture.channels(),
                         samplesPerMetre(samplesPerInch)};
  const std::unique_ptr<PngFile> file = PngFile::create(path, layout);
  if (file != nullptr && writeRows(picture, *file, written)) {
    return true;
  }
  const std::filesystem::path failed = file == nullptr ? PngFile::partPathOf(path) : path;
  errors << "gdiview: " << nameInLine(failed.string()) << ": "
         << std::generic_category().message(errno == 0 ? EIO : errno) << '\n';
  return false;
}

}  // namespace gdi::gdiview
