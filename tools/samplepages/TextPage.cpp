// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/TextPage.h"

#include <algorithm>
#include <cstddef>

namespace gdi::samplepages {
namespace {

// Capitals are 8 grid units high, which is 0.7 of an em; there are 600 / 72 pixels a point.
constexpr int kBodyUnit = 8;      // 11 point
constexpr int kHeadingUnit = 18;  // 24 point
constexpr int kLinePitch = 14;    // grid units
constexpr int kParagraphGap = 7;  // grid units

constexpr Ink kHeadingInk{200, 110, 0, 20};
constexpr Ink kBodyInk{0, 0, 0, 255};

constexpr std::string_view kHeading = "How a page comes to paper";
constexpr std::array<std::string_view, 3> kParagraphs = {
    "A page of letters is mostly paper. What there is of ink stands in thin stems and bowls, full "
    "black on white, and between the lines lies nothing at all. Rows of pixels that cross a line "
    "of text change little from one to the next, because a stem goes on for many rows, and only "
    "its rounded ends and joints differ from what was there before.",
    "Edges are another matter. Where a curve leaves the grid of pixels, some of them are covered "
    "in part and come out grey. Half a pixel cannot be printed, so the screen decides which of "
    "them turn black, and a smooth edge grows small teeth. Readers seldom see them, but they "
    "have to be sent to the printer like all the rest.",
    "Long words, short words, a hyphen in a well-known place, a comma, a full stop. Nobody has to "
    "read this far down. Yet a reader who does will find that every line was broken where the "
    "next word would not fit, and that the last line of a paragraph is shorter than the others.",
};

}  // namespace

TextPage::Face::Face(int pixels) : unitPixels(pixels) {
  for (std::size_t code = 0; code < glyphs.size(); ++code) {
    glyphs.at(code) = Glyph(letterOf(static_cast<char>(code)), unitPixels);
  }
}

const Glyph& TextPage::Face::glyph(char character) const {
  return glyphs.at(static_cast<unsigned char>(character));
}

int TextPage::Face::lengthOf(std::string_view word) const {
  int length = 0;
  for (const char character : word) {
    length += glyph(character).advance();
  }
  return length;
}

TextPage::TextPage(const PageShape& shape)
    : PageSource(shape),
      marginX_(shape.width / 12),
      marginY_(shape.height / 16),
      heading_(kHeadingUnit),
      body_(kBodyUnit) {
  const int gap = kParagraphGap * kBodyUnit;
  int top = gap + setParagraph(kHeading, heading_, kHeadingInk, marginY_);
  for (std::size_t i = 0; top < shape.height - marginY_; ++i) {
    top = gap + setParagraph(kParagraphs.at(i % kParagraphs.size()), body_, kBodyInk, top);
  }
}

int TextPage::setParagraph(std::string_view text, const Face& face, const Ink& ink, int top) {
  const int right = shape().width - marginX_;
  const int pitch = kLinePitch * face.unitPixels;
  const int blank = face.glyph(' ').advance();
  const auto beginLine = [&] {
    lines_.push_back({top, face.glyph(' ').height(), ink, {}});
    top += pitch;
  };
  int left = marginX_;
  beginLine();
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    if (left > marginX_ && left + face.lengthOf(word) > right) {
      if (top + pitch > shape().height - marginY_) {
        return top;
      }
      beginLine();
      left = marginX_;
    }
    for (const char character : word) {
      const Glyph& glyph = face.glyph(character);
      lines_.back().glyphs.push_back({left - face.unitPixels, &glyph});
      left += glyph.advance();
    }
    left += blank;
  }
  return top;
}

void TextPage::paint(int y, std::span<Ink> row) const {
  for (const Line& line : lines_) {
    const int glyphRow = y - line.top;
    if (glyphRow < 0 || glyphRow >= line.height) {
      continue;
    }
    for (const PlacedGlyph& placed : line.glyphs) {
      paintGlyph(placed, glyphRow, line.ink, row);
    }
  }
}

// Glyphs may reach into each other's empty columns, never into each other's ink.
void TextPage::paintGlyph(const PlacedGlyph& placed, int glyphRow, const Ink& ink,
                          std::span<Ink> row) const {
  const int from = std::max(0, -placed.left);
  const int to = std::min(placed.glyph->width(), shape().width - placed.left);
  for (int x = from; x < to; ++x) {
    const int column = placed.left + x;
    if (const int coverage = placed.glyph->coverage(x, glyphRow); coverage > 0) {
      row[static_cast<std::size_t>(column)] = between(Ink{}, ink, coverage, 255);
    }
  }
}

}  // namespace gdi::samplepages
