// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/command_line.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>
#include <system_error>

#include <CLI/CLI.hpp>

namespace gdi::gdiview {

namespace {

constexpr char kJobHelp[] = "The job stream: a file, or - for standard input";
constexpr char kExitStatus[] =
    "Exit status: 0 the job keeps the format, 1 it violates it, 2 it is no job stream or "
    "something\n"
    "cannot be read or written.";

// A number from 1 up; nothing for anything else.
std::optional<std::uint32_t> numberOf(std::string_view text) {
  std::uint32_t value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end && value > 0 ? std::optional(value) : std::nullopt;
}

// The N of "1/N" or of a bare "N".
std::optional<std::uint32_t> reductionOf(std::string_view text) {
  if (text.starts_with("1/")) {
    text.remove_prefix(2);
  }
  return numberOf(text);
}

// What the parser calls with a value: answers what is wrong with it, or nothing.
std::string checkPage(const std::string& text) {
  return numberOf(text) ? "" : "it must be a page's number, from 1 up";
}
std::string checkScale(const std::string& text) {
  return reductionOf(text) ? "" : "it must be 1/N with N from 1 up";
}
std::string checkFolder(const std::string& text) {
  return text.empty() ? "it must name a folder" : "";
}
std::string checkResources(const std::string& text) {
  std::error_code unknown;
  const bool has =
      std::filesystem::is_regular_file(std::filesystem::path(text) / "Info.plist", unknown);
  return has ? "" : "there is no Info.plist in " + text;
}

const std::map<std::string, Turned> kTurned{
    {"backs", Turned::kBacks}, {"fronts", Turned::kFronts}, {"all", Turned::kAll}};

std::string checkTurned(const std::string& text) {
  return kTurned.contains(text) ? "" : "it must be backs, fronts or all, not " + text;
}

// The commands with their options, each bound to its place in `line`.
class Parser {
 public:
  explicit Parser(CommandLine& line) : line_(line) {
    app_.set_version_flag("--version", "gdiview " GDI_VERSION);
    app_.require_subcommand(1);
    app_.footer("Without a command, png is meant: gdiview JOB -o DIR");
    app_.get_formatter()->column_width(28);
    addInfo();
    addCheck();
    addPng();
    addDiff();
  }

  CLI::App& app() { return app_; }

  // Neither a command nor an option.
  [[nodiscard]] bool isJobName(const std::string& word) const {
    const std::vector<const CLI::App*> commands = app_.get_subcommands({});
    return (word == "-" || !word.starts_with("-")) &&
           std::ranges::none_of(
               commands, [&word](const CLI::App* command) { return command->check_name(word); });
  }

  // Fills the line in with what the parser holds as text.
  void finish() {
    line_.png.reduction = reductionOf(scale_).value_or(1);
    line_.diff.reduction = line_.png.reduction;
    line_.png.turned = turned_.empty() ? Turned::kNone : kTurned.at(turned_);
    if (!diffFolder_.empty()) {
      line_.diff.folder = diffFolder_;
    }
    if (!resources_.empty()) {
      line_.resources = resources_;
    }
  }

 private:
  CLI::App& add(Command command, const char* name, const char* help) {
    CLI::App* const app = app_.add_subcommand(name, help);
    app->callback([this, command] { line_.command = command; });
    app->footer(kExitStatus);
    return *app;
  }

  void addInfo() {
    CLI::App& command = add(Command::kInfo, "info", "Tell what a job says, record by record");
    addJob(command);
    command.add_flag("--json", line_.info.json, "One JSON document, as docs/gdiview.md tells");
    command.add_flag("--summary", line_.info.summary,
                     "The summaries of the pages and of the job, without the records");
    addPage(command, line_.info.page);
    addResources(command);
  }

  void addCheck() {
    CLI::App& command = add(Command::kCheck, "check", "Hold a job against the whole format");
    addJob(command);
    command.add_flag("-q,--quiet", line_.check.quiet,
                     "Violations alone, without notes and without the last line");
    addResources(command);
    command.footer(std::string("One line a violation: JOB: offset N: RECORD: RULE: what is there. "
                               "docs/job-stream.md lists\nthe rules. A line with \"note\" is no "
                               "violation.\n\n") +
                   kExitStatus);
  }

  void addPng() {
    CLI::App& command = add(Command::kPng, "png", "Write each page as a picture");
    addJob(command);
    command
        .add_option("-o,--out", line_.png.folder,
                    "The folder for page-1.png and so on; made when it is missing")
        ->option_text("DIR")
        ->check(checkFolder)
        ->required();
    command.add_flag("--planes", line_.png.planes,
                     "Each plane by itself as well, in grey: page-1-cyan.png and so on");
    addScale(command);
    // A flag, so that a bare one does not take the job's name for its value.
    command
        .add_flag(
            "--upright{backs}", turned_,
            "Turn pages by 180 degrees: backs (odd page numbers, counted from 0) of a duplex\n"
            "job whose model turns them, fronts, or all. The stream does not tell which;\n"
            "backs if left out: --upright, --upright=fronts")
        ->check(checkTurned);
    addPage(command, line_.png.page);
    addResources(command);
  }

  void addDiff() {
    CLI::App& command =
        add(Command::kDiff, "diff", "Compare two jobs: fields, bands and pixels, page by page");
    command.add_option("A", line_.job, kJobHelp)->required();
    command.add_option("B", line_.otherJob, kJobHelp)->required();
    command
        .add_option("-o,--out", diffFolder_,
                    "A folder for page-1-diff.png and so on: red where A has more ink, blue where\n"
                    "B has, violet where each has more of some")
        ->option_text("DIR")
        ->check(checkFolder);
    addScale(command);
    command
        .add_option("--ignore", line_.diff.ignored,
                    "Fields that may differ, as info names them, for example date,host")
        ->option_text("FIELD,...")
        ->delimiter(',')
        ->check(CLI::IsMember(fieldNames()));
    addResources(command);
    command.footer(
        "Exit status: 0 nothing differs, 1 something does, 2 one of them is no job stream or "
        "something\ncannot be read or written.");
  }

  void addJob(CLI::App& command) { command.add_option("JOB", line_.job, kJobHelp)->required(); }

  static void addPage(CLI::App& command, std::optional<std::uint32_t>& page) {
    command.add_option("--page", page, "This page alone, counted from 1")
        ->option_text("N")
        ->check(checkPage);
  }

  void addScale(CLI::App& command) {
    command
        .add_option("--scale", scale_,
                    "1/N: one sample for N x N pixels, their mean, so that dots become tones")
        ->option_text("1/N")
        ->check(checkScale);
  }

  void addResources(CLI::App& command) {
    command
        .add_option("--resources", resources_,
                    "The filter's resources, whose Info.plist tells how long the prologue is;\n"
                    "those beside the program or installed with it if left out")
        ->option_text("FOLDER")
        ->check(checkResources);
  }

  CommandLine& line_;
  std::string scale_ = "1/1";
  std::string turned_;  // empty, or a name of kTurned
  std::string diffFolder_;
  std::string resources_;
  CLI::App app_{
      "Opens, checks and pictures a printer's job stream. COMMAND --help tells a command's "
      "options.",
      "gdiview"};
};

}  // namespace

std::variant<CommandLine, int> readCommandLine(std::vector<std::string> words, std::ostream& out,
                                               std::ostream& errors) {
  CommandLine line;
  Parser parser(line);
  if (!words.empty() && parser.isJobName(words.front())) {
    words.insert(words.begin(), "png");
  }
  try {
    // The parser takes the words from the back.
    parser.app().parse(std::vector<std::string>(words.rbegin(), words.rend()));
  } catch (const CLI::Success& success) {
    return statusAfterWriting(out, parser.app().exit(success, out, errors), errors);
  } catch (const CLI::ParseError& error) {
    errors << "gdiview: " << error.what() << "; gdiview --help tells more\n";
    return kUnusable;
  }
  parser.finish();
  if (line.command == Command::kDiff && line.job == "-" && line.otherJob == "-") {
    errors << "gdiview: one of A and B alone may be standard input; gdiview --help tells more\n";
    return kUnusable;
  }
  return line;
}

}  // namespace gdi::gdiview
