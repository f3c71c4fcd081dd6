// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The page header as lines of the debug log, one a field.
#pragma once

#include <cups/raster.h>

namespace gdi {

// Logs every field that the filter's users ask about, in a fixed order. Costs nothing but the
// look for the log's marker while the log is off.
void dumpPageHeaders(const cups_page_header_t& header);

}  // namespace gdi
