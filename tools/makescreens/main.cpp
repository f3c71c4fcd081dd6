// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// makescreens PARAMETERS OUTDIR: writes the screens and their list that the parameter file states.

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

#include "tools/makescreens/parameters.h"
#include "tools/makescreens/screen_sets.h"

namespace {

using namespace gdi::makescreens;

bool complain(const std::string& problem) {
  // Nothing is left to do when even this cannot be written.
  (void)std::fprintf(stderr, "%s\n", problem.c_str());
  return false;
}

std::optional<std::string> contentsOf(const std::string& path) {
  std::string text;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file != nullptr) {
    std::array<char, 4096> part{};
    std::size_t count = 0;
    while ((count = std::fread(part.data(), 1, part.size(), file)) > 0) {
      text.append(part.data(), count);
    }
    const bool whole = std::ferror(file) == 0;
    const int reason = errno;
    // Nothing was written, so closing has nothing to report.
    (void)std::fclose(file);
    if (whole) {
      return text;
    }
    errno = reason;
  }
  complain(path + ": cannot be read: " + std::strerror(errno));
  return std::nullopt;
}

bool writeFile(const std::filesystem::path& path, const std::string& contents) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(contents.data(), static_cast<std::streamsize>(contents.size()));
  file.close();
  return file.good() || complain(path.string() + ": cannot be written: " + std::strerror(errno));
}

bool writeAll(const Parameters& parameters, const std::filesystem::path& folder) {
  std::error_code error;
  const std::filesystem::path screens = folder / "Screens";
  std::filesystem::create_directories(screens, error);
  if (error) {
    return complain(screens.string() + ": cannot be made: " + error.message());
  }
  for (std::size_t c = 0; c < parameters.classes.size(); ++c) {
    for (std::size_t q = 0; q < parameters.qualities.size(); ++q) {
      for (std::size_t p = 0; p < kPlanes.size(); ++p) {
        if (!writeFile(screens / screenName(parameters, c, q, p),
                       makeScreen(parameters, c, q, p))) {
          return false;
        }
      }
    }
  }
  // Last, so that a list never names screens that are not there.
  return writeFile(folder / "ScreenSets.plist", screenSetsList(parameters));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    complain("usage: makescreens PARAMETERS OUTDIR");
    return 1;
  }
  const std::optional<std::string> text = contentsOf(argv[1]);
  if (!text) {
    return 1;
  }
  std::string error;
  const std::optional<Parameters> parameters = parseParameters(*text, argv[1], error);
  if (!parameters) {
    complain(error);
    return 1;
  }
  return writeAll(*parameters, argv[2]) ? 0 : 1;
}
