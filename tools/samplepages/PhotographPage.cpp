// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/PhotographPage.h"

#include <algorithm>
#include <cstddef>

#include "tools/samplepages/value_noise.h"

namespace gdi::samplepages {
namespace {

constexpr int kWhole = 256;  // of a share

// Between two colours; `share` is brought into 0 to kWhole.
Light mixed(const Light& from, const Light& to, int share) {
  share = std::clamp(share, 0, kWhole);
  return {between(from.red, to.red, share, kWhole), between(from.green, to.green, share, kWhole),
          between(from.blue, to.blue, share, kWhole)};
}

std::vector<int> octavesOf(const Noise& noise, int octaves, int y, int width) {
  std::vector<int> values(static_cast<std::size_t>(width));
  addOctaves(noise, octaves, y, values);
  return values;
}

int atLeast1(int number) {
  return std::max(number, 1);
}

}  // namespace

Ink inkOf(const Light& light) {
  constexpr int kFull = 255;
  constexpr int kBlackStart = 64;
  const int cyan = kFull - light.red;
  const int magenta = kFull - light.green;
  const int yellow = kFull - light.blue;
  const int shared = std::min({cyan, magenta, yellow}) - kBlackStart;
  const int black = shared <= 0 ? 0 : shared * kFull / (kFull - kBlackStart);
  return {static_cast<std::uint8_t>(cyan - black), static_cast<std::uint8_t>(magenta - black),
          static_cast<std::uint8_t>(yellow - black), static_cast<std::uint8_t>(black)};
}

PhotographPage::PhotographPage(const PageShape& shape)
    : PageSource(shape),
      width_((shape.width + 1) / 2),
      height_((shape.height + 1) / 2),
      hillTops_(ridge(11, height_ * 36 / 100, height_ * 10 / 100)),
      forestTops_(ridge(23, height_ * 47 / 100, height_ * 7 / 100)),
      meadowTops_(ridge(37, height_ * 60 / 100, height_ * 3 / 100)) {
}

std::vector<int> PhotographPage::ridge(std::uint32_t seed, int top, int relief) const {
  std::vector<int> rows = octavesOf({seed, atLeast1(width_ / 3), 1, relief}, 7, 0, width_);
  for (int& row : rows) {
    row += top - relief;
  }
  return rows;
}

PhotographPage::Textures PhotographPage::texturesOf(int y) const {
  const int side = atLeast1(std::min(width_, height_));
  return {octavesOf({101, atLeast1(side / 3), atLeast1(side / 8), 512}, 6, y, width_),
          octavesOf({211, 96, 48, 128}, 6, y, width_),
          octavesOf({307, atLeast1(side / 4), atLeast1(side / 9), 256}, 2, y, width_),
          octavesOf({401, 1, 1, 5}, 1, y, width_)};
}

Light PhotographPage::sky(int x, int y, int clouds) const {
  const int toHorizon = y * kWhole / atLeast1(height_ * 42 / 100);
  const Light clear = mixed({46, 98, 176}, {216, 227, 238}, toHorizon);
  const Light clouded = mixed(clear, {252, 250, 245}, (clouds - 500) * 5 / 4);
  // The sun's glow falls off with the square of the distance.
  const std::int64_t dx = x - width_ * 7 / 10;
  const std::int64_t dy = y - height_ * 12 / 100;
  const std::int64_t reach = std::int64_t{height_} * height_ / 160 + 1;
  return mixed(clouded, {255, 248, 222},
               static_cast<int>(kWhole * reach / (reach + dx * dx + dy * dy)));
}

Light PhotographPage::distantHills(int x, int y, int growth) const {
  const int below = y - hillTops_[static_cast<std::size_t>(x)];
  const Light hazy = mixed({96, 122, 154}, {186, 198, 204}, below * kWhole / atLeast1(height_ / 7));
  return mixed(hazy, {78, 104, 120}, (growth - 90) * 2 / 3);
}

Light PhotographPage::forest(int x, int y, int growth) const {
  const int below = y - forestTops_[static_cast<std::size_t>(x)];
  const Light leaves = mixed({8, 24, 16}, {112, 134, 66}, (growth - 40) * 3 / 2);
  return mixed(leaves, {20, 40, 30}, below * kWhole / atLeast1(height_ / 4));
}

Light PhotographPage::meadow(int x, int y, int growth) const {
  const int below = y - meadowTops_[static_cast<std::size_t>(x)];
  const int nearness = below * kWhole / atLeast1(height_ * 45 / 100);
  const Light grass = mixed({176, 178, 96}, {92, 120, 40}, nearness);
  const Light soil = mixed({150, 150, 84}, {30, 34, 10}, nearness);
  return mixed(grass, soil, (growth - 70) * 2);
}

Light PhotographPage::lightAt(int x, int y, const Textures& textures) const {
  const auto column = static_cast<std::size_t>(x);
  const int growth = textures.growth[column];
  if (y < std::min({hillTops_[column], forestTops_[column], meadowTops_[column]})) {
    return sky(x, y, textures.clouds[column]);
  }
  if (y < std::min(forestTops_[column], meadowTops_[column])) {
    return distantHills(x, y, growth);
  }
  const Light sunlit = y < meadowTops_[column] ? forest(x, y, growth) : meadow(x, y, growth);
  // The blue sky lights what the sun does not.
  const Light shaded{sunlit.red * 3 / 8, sunlit.green * 7 / 16, sunlit.blue * 9 / 16};
  return mixed(sunlit, shaded, (textures.shadows[column] - 170) * 3);
}

void PhotographPage::paint(int y, std::span<Ink> row) const {
  const Textures textures = texturesOf(y / 2);
  for (int x = 0; x < width_; ++x) {
    const auto column = static_cast<std::size_t>(x);
    const Light light = lightAt(x, y / 2, textures);
    const auto grained = [grain = textures.grain[column] - 2](int value) {
      return std::clamp(value + grain, 0, 255);
    };
    const Ink ink = inkOf({grained(light.red), grained(light.green), grained(light.blue)});
    std::ranges::fill(row.subspan(2 * column, std::min<std::size_t>(2, row.size() - 2 * column)),
                      ink);
  }
}

}  // namespace gdi::samplepages
