// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A continuous-tone picture: hills and a meadow in the shadows of clouds, below a bright sky.
//
// The picture has a pixel for 2 x 2 of the page. Its colours are mixed as light and turned into ink
// last, black being taken out of what the three colours share.
#pragma once

#include <vector>

#include "tools/samplepages/PageSource.h"

namespace gdi::samplepages {

// Light: 0 to 255 each.
struct Light {
  int red = 0;
  int green = 0;
  int blue = 0;
};

// The inks that leave that light. Black begins where a quarter of all three inks is reached and
// replaces all of them where they are full.
Ink inkOf(const Light& light);

class PhotographPage : public PageSource {
 public:
  explicit PhotographPage(const PageShape& shape);

 protected:
  void paint(int y, std::span<Ink> row) const override;

 private:
  // The noises of one row of the picture, by column.
  struct Textures {
    std::vector<int> clouds;
    std::vector<int> growth;
    std::vector<int> shadows;
    std::vector<int> grain;
  };
  [[nodiscard]] std::vector<int> ridge(std::uint32_t seed, int top, int relief) const;
  [[nodiscard]] Textures texturesOf(int y) const;
  [[nodiscard]] Light sky(int x, int y, int clouds) const;
  [[nodiscard]] Light distantHills(int x, int y, int growth) const;
  [[nodiscard]] Light forest(int x, int y, int growth) const;
  [[nodiscard]] Light meadow(int x, int y, int growth) const;
  [[nodiscard]] Light lightAt(int x, int y, const Textures& textures) const;

  int width_;  // of the picture
  int height_;
  // The first row of each part of the country, by column.
  std::vector<int> hillTops_;
  std::vector<int> forestTops_;
  std::vector<int> meadowTops_;
};

}  // namespace gdi::samplepages
