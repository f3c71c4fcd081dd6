// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Standard input, output and error, whatever state the caller left them in.
#pragma once

namespace gdi {

// Opens what is closed of descriptors 0 to 2, so that no file of the job takes the place of one:
// input then ends at once, output refuses every byte, and errors go nowhere.
void fillStandardDescriptors();

}  // namespace gdi
