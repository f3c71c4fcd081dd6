// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenpictures/Picture.h"

#include <cstddef>
#include <span>

namespace gdi::screenpictures {
namespace {

constexpr std::uint32_t kSamplesPerMetre = 3780;  // 96 an inch, as web pages count

std::span<const std::uint8_t> rowOf(const Picture& picture, int y) {
  const auto width = static_cast<std::size_t>(picture.size.width);
  return std::span(picture.places).subspan(static_cast<std::size_t>(y) * width, width);
}

}  // namespace

Picture magnified(const Picture& picture, int times) {
  Picture large{{picture.size.width * times, picture.size.height * times}, picture.palette, {}};
  large.places.reserve(large.size.size());
  for (int y = 0; y < large.size.height; ++y) {
    for (const std::uint8_t place : rowOf(picture, y / times)) {
      large.places.insert(large.places.end(), static_cast<std::size_t>(times), place);
    }
  }
  return large;
}

Picture besideEachOther(const Picture& left, const Picture& right, int gap, std::uint8_t gapPlace) {
  Picture both{{left.size.width + gap + right.size.width, left.size.height}, left.palette, {}};
  both.places.reserve(both.size.size());
  const auto append = [&both](std::span<const std::uint8_t> row) {
    both.places.insert(both.places.end(), row.begin(), row.end());
  };
  for (int y = 0; y < left.size.height; ++y) {
    append(rowOf(left, y));
    both.places.insert(both.places.end(), static_cast<std::size_t>(gap), gapPlace);
    append(rowOf(right, y));
  }
  return both;
}

bool writePicture(const Picture& picture, const std::filesystem::path& path) {
  const auto file = PngFile::create(path, {static_cast<std::uint32_t>(picture.size.width),
                                           static_cast<std::uint32_t>(picture.size.height), 1,
                                           kSamplesPerMetre, picture.palette});
  if (file == nullptr) {
    return false;
  }
  for (int y = 0; y < picture.size.height; ++y) {
    if (!file->writeRow(rowOf(picture, y))) {
      return false;
    }
  }
  return file->finish();
}

}  // namespace gdi::screenpictures
