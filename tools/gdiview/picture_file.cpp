// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/picture_file.h"

#include <cerrno>
#include <cmath>
#include <system_error>

#include "reader/row_width.h"
#include "tools/gdiview/PngFile.h"

namespace gdi::gdiview {

namespace {

constexpr double kMetresPerInch = 0.0254;

std::uint32_t samplesPerMetre(std::uint32_t reduction) {
  return static_cast<std::uint32_t>(
      std::lround(reader::kPixelsPerInch / kMetresPerInch / reduction));
}

bool writeRows(Picture& picture, PngFile& file) {
  for (std::uint32_t row = 0; row < picture.height(); ++row) {
    if (!file.writeRow(picture.nextRow())) {
      return false;
    }
  }
  return file.finish();
}

}  // namespace

bool makeFolder(const std::filesystem::path& folder, std::ostream& errors) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    errors << "gdiview: " << folder.string() << ": " << error.message() << '\n';
  }
  return !error;
}

bool writePicture(Picture& picture, std::uint32_t reduction, const std::filesystem::path& path,
                  std::ostream& errors) {
  errno = 0;
  const PngLayout layout{picture.width(), picture.height(), picture.channels(),
                         samplesPerMetre(reduction)};
  const std::unique_ptr<PngFile> file = PngFile::create(path, layout);
  if (file != nullptr && writeRows(picture, *file)) {
    return true;
  }
  errors << "gdiview: " << path.string() << ": "
         << std::generic_category().message(errno == 0 ? EIO : errno) << '\n';
  return false;
}

}  // namespace gdi::gdiview
