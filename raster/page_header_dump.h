// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The page header as lines of the debug log, one a field.
#pragma once

#include <cups/raster.h>

namespace gdi {

// Logs every field but AdvanceMedia and the four texts, in a fixed order. While the log is off each
// line costs a look for the log's marker and nothing else.
void dumpPageHeaders(const cups_page_header_t& header);

}  // namespace gdi
