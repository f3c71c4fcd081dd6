// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The commands with their options and helps, each option bound to its place in a CommandLine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "tools/gdiview/command_line.h"

namespace gdi::gdiview {

class CommandParser {
 public:
  // line: must outlive this.
  explicit CommandParser(CommandLine& line);

  CLI::App& app() { return app_; }
  [[nodiscard]] bool isCommand(const std::string& word) const;
  // The command that was asked for, as it is called: "gdiview png", or "gdiview" when none was.
  [[nodiscard]] std::string calledAs() const;
  // Fills the line in with what the parser holds as text.
  void finish();

 private:
  CLI::App& add(Command command, const char* name, const char* help);
  void addInfo();
  void addCheck();
  void addPng();
  void addDiff();

  void addJob(CLI::App& command);
  static void addPage(CLI::App& command, std::optional<std::uint32_t>& page);
  CLI::Option& addScale(CLI::App& command);
  void addResources(CLI::App& command);

  CommandLine& line_;
  std::string scale_ = "1/1";
  std::string turned_;      // empty, or a word of turnedOf()
  std::string diffFolder_;  // possibly none
  std::string ignored_;     // names with commas between them
  std::string resources_;
  CLI::App app_;
};

}  // namespace gdi::gdiview
