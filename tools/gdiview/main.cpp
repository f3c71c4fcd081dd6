// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// gdiview's command line.

#include <cerrno>
#include <charconv>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include <CLI/CLI.hpp>

#include "tools/gdiview/view_job.h"

namespace {

// The N of "1/N" or of a bare "N"; nothing for anything else and for 0.
std::optional<std::uint32_t> reductionOf(std::string_view text) {
  if (text.starts_with("1/")) {
    text.remove_prefix(2);
  }
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value == 0) {
    return std::nullopt;
  }
  return value;
}

int png(const std::string& job, const gdi::gdiview::ViewOptions& options) {
  if (job == "-") {
    return gdi::gdiview::viewJob(std::cin, job, options, std::cout, std::cerr);
  }
  std::ifstream input(job, std::ios::binary);
  if (!input) {
    std::cerr << "gdiview: " << job << ": " << std::generic_category().message(errno) << '\n';
    return 1;
  }
  return gdi::gdiview::viewJob(input, job, options, std::cout, std::cerr);
}

int run(std::vector<std::string> arguments) {
  CLI::App app("Shows a printer's job stream as pictures.", "gdiview");
  app.require_subcommand(1);
  app.footer("Without a subcommand, png is meant: gdiview JOB -o DIR");

  std::string job;
  std::string scale = "1/1";
  gdi::gdiview::ViewOptions options;
  CLI::App* pngCommand = app.add_subcommand("png", "Write one PNG file a page");
  pngCommand->add_option("JOB", job, "The job stream's file, or - for standard input")->required();
  pngCommand->add_option("-o,--out", options.folder, "The folder for page-1.png and so on")
      ->required();
  pngCommand->add_option("--scale", scale, "1/N: one sample for N x N pixels, their mean")
      ->check([](const std::string& text) {
        return reductionOf(text) ? std::string() : "it must be 1/N with N from 1 up";
      });
  pngCommand->add_option("--page", options.page, "This page alone, counted from 1")
      ->check(CLI::PositiveNumber);

  // The parser takes the arguments from the back.
  const bool bare = !arguments.empty() && arguments.front() != "png" && arguments.front() != "-h" &&
                    arguments.front() != "--help";
  if (bare) {
    arguments.insert(arguments.begin(), "png");
  }
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 1;
  }
  options.reduction = reductionOf(scale).value_or(1);
  return png(job, options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::cerr << "gdiview: " << error.what() << '\n';
    return 1;
  }
}
