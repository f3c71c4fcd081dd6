// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/samplepages/sample_pages.h"

#include <cstdio>

#include "tools/samplepages/GraphicsPage.h"
#include "tools/samplepages/PhotographPage.h"
#include "tools/samplepages/TextPage.h"

namespace gdi::samplepages {

const char* nameOf(Subject subject) {
  switch (subject) {
    case Subject::kText:
      return "text";
    case Subject::kGraphics:
      return "graphics";
    case Subject::kPhotograph:
      break;
  }
  return "photograph";
}

std::unique_ptr<PageSource> samplePage(Subject subject, const PageShape& shape) {
  if (!shape.valid()) {
    (void)std::fprintf(stderr,
                       "ERROR: no sample page of %d x %d pixels and %d channels: sides are 1 to "
                       "%d, channels 1 or 4\n",
                       shape.width, shape.height, shape.channels, kMaxSide);
    return nullptr;
  }
  switch (subject) {
    case Subject::kText:
      return std::make_unique<TextPage>(shape);
    case Subject::kGraphics:
      return std::make_unique<GraphicsPage>(shape);
    case Subject::kPhotograph:
      break;
  }
  return std::make_unique<PhotographPage>(shape);
}

}  // namespace gdi::samplepages
