// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The worked examples of the documents, taken from their pages so that tests can run them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace gdi::test {

// The lines of the document's blocks that begin with ```language and end with ```, each up to its
// # and none that is empty by then. Nothing where there is no such block or no such document.
std::vector<std::string> linesOfBlock(const std::filesystem::path& document,
                                      std::string_view language);

// The numbers of a line, which are hexadecimal, of 16 bits, and separated by blanks. Throws what
// std::stoul throws at anything else.
std::vector<std::uint16_t> hexNumbers(const std::string& line);

// The bytes of the document's ```hex blocks.
std::vector<std::uint8_t> bytesOfHexBlock(const std::filesystem::path& document);

}  // namespace gdi::test
