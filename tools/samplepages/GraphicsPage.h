// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page of business graphics: a title bar, two charts, a tint table, gradients, lines.
#pragma once

#include <vector>

#include "tools/samplepages/PageSource.h"
#include "tools/samplepages/shapes.h"

namespace gdi::samplepages {

class GraphicsPage : public PageSource {
 public:
  explicit GraphicsPage(const PageShape& shape);

 protected:
  void paint(int y, std::span<Ink> row) const override;

 private:
  // Positions in thousandths of the page's sides, as pixels.
  [[nodiscard]] int across(int thousandths) const;
  [[nodiscard]] int down(int thousandths) const;
  [[nodiscard]] Box box(int left, int top, int right, int bottom) const;

  void addTitle();
  void addBarChart();
  void addPieChart();
  void addTintTable();
  void addGradients();
  void addLines();

  std::vector<Shape> shapes_;  // the lowest first
};

}  // namespace gdi::samplepages
