// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Writes the sample photograph to standard output as a PostScript page: A4 in full, 300 pixels an
// inch, CMYK.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

#include "tools/samplepages/sample_pages.h"

namespace {

constexpr int kWidth = 4960;  // A4 at 600 dpi, in which each pixel of the picture is 2 x 2
constexpr int kHeight = 7016;
constexpr int kChannels = 4;

void printHead(int width, int height) {
  (void)std::printf(
      "%%!PS-Adobe-3.0\n<< /PageSize [595.2 841.92] >> setpagedevice\n"
      "595.2 841.92 scale /DeviceCMYK setcolorspace\n"
      "<< /ImageType 1 /Width %d /Height %d /BitsPerComponent 8 /Decode [0 1 0 1 0 1 0 1]\n"
      "/ImageMatrix [%d 0 0 -%d 0 %d] /DataSource currentfile >> image\n",
      width, height, width, height, height);
}

// Every second pixel of the row.
void halve(const std::vector<std::uint8_t>& row, std::vector<std::uint8_t>& half) {
  auto to = half.begin();
  for (auto from = row.begin(); to != half.end(); from += std::ptrdiff_t{2} * kChannels) {
    to = std::copy_n(from, kChannels, to);
  }
}

}  // namespace

int main() {
  const auto page = gdi::samplepages::samplePage(gdi::samplepages::Subject::kPhotograph,
                                                 {kWidth, kHeight, kChannels});
  if (page == nullptr) {
    return 1;
  }
  printHead(kWidth / 2, kHeight / 2);
  std::vector<std::uint8_t> row(page->rowBytes());
  std::vector<std::uint8_t> half(row.size() / 2);
  bool written = true;
  for (int y = 0; written && y < kHeight; y += 2) {
    written = page->scanline(y, row);
    halve(row, half);
    written = written && std::fwrite(half.data(), 1, half.size(), stdout) == half.size();
  }
  (void)std::printf("\nshowpage\n");
  if (!written || std::fflush(stdout) != 0) {
    (void)std::fprintf(stderr, "photograph_page: the picture cannot be written\n");
    return 1;
  }
  return 0;
}
