// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The pictures of one page as files: of the whole page, and of each plane if that is asked for.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>

#include "reader/Page.h"
#include "tools/gdiview/PagePainter.h"
#include "tools/gdiview/Progress.h"
#include "tools/gdiview/png_job.h"

namespace gdi::gdiview {

class PagePictures {
 public:
  // All of these must outlive this.
  PagePictures(const reader::Page& page, const PngOptions& options, Progress& progress,
               std::ostream& out, std::ostream& errors);

  // Writes them into the folder, which is made when it is missing, and a line a picture to `out`,
  // or a line that there is none. False, with a line in `errors`, when one cannot be written.
  // Painting takes longer than reading the page did: its rows are the progress.
  bool write();

 private:
  bool hasFolder();
  bool writePlanes();
  // text: what its line says. name: of the file, without ".png".
  bool writeOne(const PaintOptions& paint, const std::string& text, const std::string& name);

  const reader::Page& page_;
  const PngOptions& options_;
  Progress& progress_;
  std::ostream& out_;
  std::ostream& errors_;
  PaintOptions paint_;       // of the whole page
  std::size_t pictures_;     // all of them
  std::size_t painted_ = 0;  // of these
};

}  // namespace gdi::gdiview
