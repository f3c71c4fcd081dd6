// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// gdiview's command line.

#include <algorithm>
#include <charconv>
#include <exception>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "tools/gdiview/check_job.h"
#include "tools/gdiview/diff_jobs.h"
#include "tools/gdiview/info_job.h"
#include "tools/gdiview/png_job.h"

namespace {

using namespace gdi::gdiview;

constexpr char kJobHelp[] = "The job stream: a file, or - for standard input";
constexpr char kExitStatus[] =
    "Exit status: 0 the job keeps the format, 1 it violates it, 2 it is no job stream or "
    "something\n"
    "cannot be read or written.";

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

// Every command's arguments, as the parser fills them in.
struct Arguments {
  std::string job;
  std::string otherJob;
  std::optional<std::string> resources;
  std::string scale = "1/1";
  std::string outFolder;
  InfoOptions info;
  CheckOptions check;
  PngOptions png;
  DiffOptions diff;
};

void addScale(CLI::App& command, Arguments& arguments) {
  command
      .add_option("--scale", arguments.scale,
                  "1/N: one sample for N x N pixels, their mean, so that dots become tones")
      ->option_text("1/N")
      ->check([](const std::string& text) {
        return reductionOf(text) ? std::string() : "it must be 1/N with N from 1 up";
      });
}

void addResources(CLI::App& command, Arguments& arguments) {
  command
      .add_option("--resources", arguments.resources,
                  "The filter's resources, whose Info.plist tells how long the prologue is;\n"
                  "those that are installed if left out")
      ->option_text("FOLDER");
}

CLI::App* addInfo(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("info", "Tell what a job says, record by record");
  command->add_option("JOB", arguments.job, kJobHelp)->required();
  command->add_flag("--json", arguments.info.json, "One JSON document, as docs/gdiview.md tells");
  command->add_flag("--summary", arguments.info.summary,
                    "The summaries of the pages and of the job, without the records");
  command->add_option("--page", arguments.info.page, "This page alone, counted from 1")
      ->option_text("N")
      ->check(CLI::PositiveNumber);
  addResources(*command, arguments);
  command->footer(kExitStatus);
  return command;
}

CLI::App* addCheck(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("check", "Hold a job against the whole format");
  command->add_option("JOB", arguments.job, kJobHelp)->required();
  command->add_flag("-q,--quiet", arguments.check.quiet,
                    "Violations alone, without notes and without the last line");
  addResources(*command, arguments);
  command->footer(std::string("One line a violation: JOB: offset N: RECORD: RULE: what is there. "
                              "docs/job-stream.md lists\nthe rules. A line with \"note\" is no "
                              "violation.\n\n") +
                  kExitStatus);
  return command;
}

CLI::App* addPng(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("png", "Write each page as a picture");
  command->add_option("JOB", arguments.job, kJobHelp)->required();
  command
      ->add_option("-o,--out", arguments.png.folder,
                   "The folder for page-1.png and so on; made when it is missing")
      ->option_text("DIR")
      ->required();
  command->add_flag("--planes", arguments.png.planes,
                    "Each plane by itself as well, in grey: page-1-cyan.png and so on");
  addScale(*command, arguments);
  const std::map<std::string, Turned> turned{
      {"backs", Turned::kBacks}, {"fronts", Turned::kFronts}, {"all", Turned::kAll}};
  command
      ->add_option("--upright", arguments.png.turned,
                   "Turn pages by 180 degrees: backs (the 2nd, 4th and so on) of a duplex job\n"
                   "whose model turns them, fronts, or all. The stream does not tell which")
      ->option_text("[backs|fronts|all]")
      ->expected(0, 1)
      ->default_str("backs")
      ->transform(CLI::Transformer(turned));
  command->add_option("--page", arguments.png.page, "This page alone, counted from 1")
      ->option_text("N")
      ->check(CLI::PositiveNumber);
  addResources(*command, arguments);
  command->footer(kExitStatus);
  return command;
}

CLI::App* addDiff(CLI::App& app, Arguments& arguments) {
  CLI::App* command =
      app.add_subcommand("diff", "Compare two jobs: fields, bands and pixels, page by page");
  command->add_option("A", arguments.job, kJobHelp)->required();
  command->add_option("B", arguments.otherJob, kJobHelp)->required();
  command
      ->add_option(
          "-o,--out", arguments.outFolder,
          "A folder for page-1-diff.png and so on: red where A has more ink, blue where B\n"
          "has, violet where each has more of some")
      ->option_text("DIR");
  addScale(*command, arguments);
  command
      ->add_option("--ignore", arguments.diff.ignored,
                   "Fields that may differ, as info names them, for example date,host")
      ->option_text("FIELD,...")
      ->delimiter(',')
      ->check(CLI::IsMember(fieldNames()));
  addResources(*command, arguments);
  command->footer(
      "Exit status: 0 nothing differs, 1 something does, 2 one of them is no job stream or "
      "something\ncannot be read or written.");
  return command;
}

// Neither a command nor an option.
bool isJobName(const std::string& word, const CLI::App& app) {
  const std::vector<const CLI::App*> commands = app.get_subcommands({});
  return (word == "-" || !word.starts_with("-")) &&
         std::ranges::none_of(
             commands, [&word](const CLI::App* command) { return command->check_name(word); });
}

int run(std::vector<std::string> words) {
  CLI::App app(
      "Opens, checks and pictures a printer's job stream. COMMAND --help tells a command's "
      "options.",
      "gdiview");
  app.set_version_flag("--version", "gdiview " GDI_VERSION);
  app.require_subcommand(1);
  app.footer("Without a command, png is meant: gdiview JOB -o DIR");
  app.get_formatter()->column_width(28);

  Arguments arguments;
  const CLI::App* info = addInfo(app, arguments);
  const CLI::App* check = addCheck(app, arguments);
  const CLI::App* png = addPng(app, arguments);
  addDiff(app, arguments);

  if (!words.empty() && isJobName(words.front(), app)) {
    words.insert(words.begin(), "png");
  }
  try {
    // The parser takes the words from the back.
    app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
  } catch (const CLI::Success& success) {
    return app.exit(success);
  } catch (const CLI::ParseError& error) {
    std::cerr << "gdiview: " << error.what() << "; gdiview --help tells more\n";
    return kUnusable;
  }

  const std::optional<std::uint64_t> prologueBytes = prologueBytesOf(arguments.resources);
  JobInput job(arguments.job);
  if (!job.isOpen(std::cerr)) {
    return kUnusable;
  }
  Progress progress(std::cerr, isatty(STDERR_FILENO) != 0, job.size());
  if (info->parsed()) {
    arguments.info.prologueBytes = prologueBytes;
    return infoJob(job, arguments.info, std::cout, std::cerr);
  }
  if (check->parsed()) {
    arguments.check.prologueBytes = prologueBytes;
    return checkJob(job, arguments.check, std::cout, std::cerr);
  }
  if (png->parsed()) {
    arguments.png.reduction = reductionOf(arguments.scale).value_or(1);
    arguments.png.prologueBytes = prologueBytes;
    return pngJob(job, arguments.png, progress, std::cout, std::cerr);
  }
  JobInput otherJob(arguments.otherJob);
  if (!otherJob.isOpen(std::cerr)) {
    return kUnusable;
  }
  arguments.diff.reduction = reductionOf(arguments.scale).value_or(1);
  arguments.diff.prologueBytes = prologueBytes;
  if (!arguments.outFolder.empty()) {
    arguments.diff.folder = arguments.outFolder;
  }
  return diffJobs(job, otherJob, arguments.diff, progress, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::cerr << "gdiview: " << error.what() << '\n';
    return kUnusable;
  }
}
