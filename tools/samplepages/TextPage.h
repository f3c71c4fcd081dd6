// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// A page of text: a heading in a tint, paragraphs in black.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "tools/samplepages/Glyph.h"
#include "tools/samplepages/PageSource.h"

namespace gdi::samplepages {

class TextPage : public PageSource {
 public:
  explicit TextPage(const PageShape& shape);

 protected:
  void paint(int y, std::span<Ink> row) const override;

 private:
  // The letters at one size.
  struct Face {
    explicit Face(int pixels);
    [[nodiscard]] const Glyph& glyph(char character) const;
    [[nodiscard]] int lengthOf(std::string_view word) const;

    int unitPixels;
    std::array<Glyph, 128> glyphs;  // by ASCII code
  };
  // A glyph's left column, which may lie beyond the page.
  struct PlacedGlyph {
    int left;
    const Glyph* glyph;
  };
  struct Line {
    int top;  // of the glyphs' rows
    int height;
    Ink ink;
    std::vector<PlacedGlyph> glyphs;
  };

  // Appends lines of `text` from row `top` of the page on, while they fit; the row below them.
  int setParagraph(std::string_view text, const Face& face, const Ink& ink, int top);
  void paintGlyph(const PlacedGlyph& placed, int glyphRow, const Ink& ink,
                  std::span<Ink> row) const;

  int marginX_;
  int marginY_;
  Face heading_;
  Face body_;
  std::vector<Line> lines_;
};

}  // namespace gdi::samplepages
