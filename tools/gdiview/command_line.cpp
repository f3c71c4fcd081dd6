// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/command_line.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>

#include "tools/gdiview/CommandParser.h"
#include "tools/gdiview/escaped_text.h"
#include "tools/gdiview/option_values.h"

namespace gdi::gdiview {

namespace {

bool isOption(const std::string& word) {
  return word.starts_with("-") && word != "-";
}

bool mayBeJob(const std::string& word) {
  std::error_code unknown;
  return word == "-" ||
         std::filesystem::status(word, unknown).type() != std::filesystem::file_type::not_found;
}

// Puts the command ahead of words that have none. Answers what is wrong with the first word, or
// nothing.
std::string addCommand(const CommandParser& parser, std::vector<std::string>& words) {
  if (words.empty()) {
    return "there is no command and no JOB";
  }
  const std::string& first = words.front();
  if (first.empty()) {
    return std::string("JOB: ").append(faultOfJob(first));
  }
  const bool ofNoCommand = first == "-h" || first == "--help" || first == "--version";
  if (parser.isCommand(first) || ofNoCommand) {
    return "";
  }
  if (!isOption(first) && !mayBeJob(first)) {
    return "there is no command or file " + first;
  }
  words.insert(words.begin(), "png");
  return "";
}

// All of it goes through the stream's buffer: what passes it by is gone when it cannot be written,
// and with it the reason that statusAfterWriting() looks for.
void writeByteByByte(std::ostream& out, const std::string& text) {
  for (const char byte : text) {
    out.put(byte);
  }
}

// An option that does not exist is told ahead of anything that is missing.
std::string faultOf(CommandParser& parser, const CLI::ParseError& error) {
  const std::vector<std::string> left = parser.app().remaining(true);
  const auto option = std::ranges::find_if(left, isOption);
  if (option != left.end()) {
    return "there is no option " + *option;
  }
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr && !left.empty()) {
    return left.front() + " is one word too many";
  }
  std::string text = error.what();
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const std::string name = text.substr(0, text.find(':'));
    return name + (text.ends_with("missing") ? " needs a value" : " may be given once");
  }
  return text;
}

}  // namespace

std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors) {
  CommandLine line;
  CommandParser parser(line);
  const auto refuse = [&](const std::string& fault) {
    errors << "gdiview: " << nameInLine(fault) << "; " << parser.calledAs()
           << " --help tells more\n";
    return kUnusable;
  };
  if (const std::string fault = addCommand(parser, words); !fault.empty()) {
    return refuse(fault);
  }
  try {
    // The parser takes the words from the back.
    parser.app().parse(std::vector<std::string>(words.rbegin(), words.rend()));
  } catch (const CLI::Success& success) {
    std::ostringstream text;
    const int status = parser.app().exit(success, text, errors);
    writeByteByByte(out, text.str());
    return statusAfterWriting(out, status, errors);
  } catch (const CLI::ParseError& error) {
    return refuse(faultOf(parser, error));
  }
  parser.finish();
  if (line.command == Command::kDiff && line.job == "-" && line.otherJob == "-") {
    return refuse("one of A and B alone may be standard input");
  }
  return line;
}

}  // namespace gdi::gdiview
