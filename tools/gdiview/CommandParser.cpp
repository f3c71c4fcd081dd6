// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/gdiview/CommandParser.h"

#include <algorithm>
#include <iomanip>
#include <memory>
#include <sstream>
#include <vector>

#include "reader/rules.h"
#include "tools/gdiview/option_values.h"
#include "tools/gdiview/prologue_bytes.h"

namespace gdi::gdiview {

namespace {

constexpr const char* kJobHelp = "The job stream: a file, or - for standard input";
constexpr const char* kExitStatus =
    "Exit status: 0 the job keeps the format, 1 it violates it, 2 it is no job stream or "
    "something\n"
    "cannot be read or written.";

// Helps that say "command" where the parser's own say "subcommand".
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter() {
    label("SUBCOMMAND", "COMMAND");
    column_width(28);
  }
  std::string make_option_name(const CLI::Option* option, bool positional) const override {
    std::string name = CLI::Formatter::make_option_name(option, positional);
    // A flag with a value is "--upright{backs}" to the parser.
    const std::size_t brace = name.find('{');
    return brace == std::string::npos ? name : name.substr(0, brace) + "[=WHICH]";
  }
};

// All names that may be ignored, in lines that are no longer than the others.
std::string ignorableFields() {
  constexpr std::size_t kWidth = 90;
  std::string text = "FIELD is one of:";
  std::size_t length = text.size();
  for (const std::string& name : fieldNames()) {
    const bool breaks = length + 1 + name.size() > kWidth;
    text.append(breaks ? "\n" : " ").append(name);
    length = (breaks ? 0 : length + 1) + name.size();
  }
  return text;
}

// A line a rule: its name, whether its breach is a note alone, and what holds.
std::string rulesText() {
  std::ostringstream text;
  for (const reader::RuleText& rule : reader::allRules()) {
    text << std::left << std::setw(16) << rule.name << (rule.remark ? "note: " : "")
         << rule.sentence << '\n';
  }
  std::string lines = text.str();
  lines.pop_back();  // the parser adds one
  return lines;
}

}  // namespace

CommandParser::CommandParser(CommandLine& line)
    : line_(line),
      app_(
          "Opens, checks and pictures a printer's job stream. gdiview COMMAND --help tells a "
          "command's options.",
          "gdiview") {
  app_.formatter(std::make_shared<HelpFormatter>());
  app_.set_version_flag("--version", "gdiview " GDI_VERSION);
  app_.require_subcommand(1);
  app_.footer("Without a command, png is meant: gdiview JOB -o DIR");
  addInfo();
  addCheck();
  addPng();
  addDiff();
}

bool CommandParser::isCommand(const std::string& word) const {
  return std::ranges::any_of(app_.get_subcommands({}), [&word](const CLI::App* command) {
    return command->check_name(word);
  });
}

std::string CommandParser::calledAs() const {
  const std::vector<CLI::App*> commands = app_.get_subcommands();
  return commands.empty() ? "gdiview" : "gdiview " + commands.front()->get_name();
}

void CommandParser::finish() {
  line_.png.reduction = reductionOf(scale_).value_or(1);
  line_.diff.reduction = line_.png.reduction;
  line_.png.turned = turnedOf(turned_).value_or(Turned::kNone);
  line_.diff.ignored = namesIn(ignored_);
  if (!diffFolder_.empty()) {
    line_.diff.folder = diffFolder_;
  }
  if (!resources_.empty()) {
    line_.resources = resources_;
  }
}

CLI::App& CommandParser::add(Command command, const char* name, const char* help) {
  CLI::App* const app = app_.add_subcommand(name, help);
  app->callback([this, command] { line_.command = command; });
  app->footer(kExitStatus);
  app->group("Commands");
  return *app;
}

void CommandParser::addInfo() {
  CLI::App& command = add(Command::kInfo, "info", "Tell what a job says, record by record");
  addJob(command);
  command.add_flag("--json", line_.info.json,
                   "One JSON document, as the manual page gdiview(1) tells");
  command.add_flag("--summary", line_.info.summary,
                   "The summaries of the pages and of the job, without the records");
  addPage(command, line_.info.page);
  addResources(command);
}

void CommandParser::addCheck() {
  CLI::App& command = add(Command::kCheck, "check", "Hold a job against the whole format");
  addJob(command);
  command.add_flag("-q,--quiet", line_.check.quiet,
                   "Violations alone, without notes and without the last line");
  command.add_flag_callback(
      "--rules",
      [] { throw CLI::CallForVersion(rulesText(), static_cast<int>(CLI::ExitCodes::Success)); },
      "List the rules, without a JOB");
  addResources(command);
  command.footer(std::string("One line a violation: JOB: offset N: RECORD: RULE: what is there. "
                             "A line\nwith \"note\" is no violation.\n\n") +
                 kExitStatus);
}

void CommandParser::addPng() {
  CLI::App& command = add(Command::kPng, "png", "Write each page as a picture");
  addJob(command);
  command
      .add_option("-o,--out", line_.png.folder,
                  "The folder for page-1.png and so on; made when it is missing")
      ->option_text("DIR")
      ->check(faultOfFolder)
      ->required();
  command.add_flag("--planes", line_.png.planes,
                   "Each plane by itself as well, in grey: page-1-cyan.png and so on");
  addScale(command);
  // A flag, so that a bare one does not take the job's name for its value.
  command
      .add_flag("--upright{backs}", turned_,
                "Turn pages by 180 degrees: backs (odd page numbers, counted from 0) of a duplex\n"
                "job whose model turns them, fronts, or all. The stream does not tell which;\n"
                "backs if left out: --upright, --upright=fronts")
      ->check(faultOfTurned);
  addPage(command, line_.png.page);
  addResources(command);
  command.footer(std::string("Pictures of an earlier job that are in DIR are replaced, and those "
                             "of pages that this job\n"
                             "does not have stay.\n\n") +
                 kExitStatus);
}

void CommandParser::addDiff() {
  CLI::App& command =
      add(Command::kDiff, "diff", "Compare two jobs: fields, bands and pixels, page by page");
  command.add_option("A", line_.job, kJobHelp)->check(faultOfJob)->required();
  command.add_option("B", line_.otherJob, kJobHelp)->check(faultOfJob)->required();
  CLI::Option* const folder =
      command
          .add_option(
              "-o,--out", diffFolder_,
              "A folder for page-1-diff.png and so on: red where A has more ink, blue where\n"
              "B has, violet where each has more of some")
          ->option_text("DIR")
          ->check(faultOfFolder);
  CLI::Option& scale = addScale(command);
  scale.needs(folder);
  scale.description(scale.get_description() + ";\nonly with -o");
  command
      .add_option("--ignore", ignored_,
                  "Fields that may differ, as info names them and with a comma between two, for\n"
                  "example date,host; all are listed below")
      ->option_text("FIELD,...")
      ->join(',')
      ->check(faultOfIgnored);
  addResources(command);
  command.footer(
      ignorableFields() +
      "\n\nExit status: 0 nothing differs, 1 something does, 2 one of them is no job stream or "
      "something\ncannot be read or written.");
}

void CommandParser::addJob(CLI::App& command) {
  command.add_option("JOB", line_.job, kJobHelp)->check(faultOfJob)->required();
}

void CommandParser::addPage(CLI::App& command, std::optional<std::uint32_t>& page) {
  command.add_option("--page", page, "This page alone, counted from 1")
      ->option_text("N")
      ->check(faultOfPage);
}

CLI::Option& CommandParser::addScale(CLI::App& command) {
  return *command
              .add_option("--scale", scale_,
                          "1/N: one sample for N x N pixels, their mean, so that dots become tones")
              ->option_text("1/N")
              ->check(faultOfScale);
}

void CommandParser::addResources(CLI::App& command) {
  command
      .add_option("--resources", resources_,
                  "The filter's resources, whose Info.plist tells how long the prologue is;\n"
                  "those beside the program or installed with it if left out")
      ->option_text("FOLDER")
      ->check(faultOfFolder)
      ->check([](const std::string& folder) {
        const std::string fault = faultOfResources(folder);
        return fault.empty() ? fault : folder + ": " + fault;
      });
}

}  // namespace gdi::gdiview
