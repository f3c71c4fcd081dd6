// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include "platform/NSBundle.h"
#include "tests/platform/platform_helpers.h"

namespace gdi {
namespace {

namespace fs = std::filesystem;

// The main bundle's folder as a copy of the helper program in `folder` sees it, started with `name`
// as its first argument.
std::string mainBundleOfProgramIn(const fs::path& folder, const std::string& name) {
  const fs::path program = folder / "program";
  fs::copy_file(PRINT_MAIN_BUNDLE, program, fs::copy_options::overwrite_existing);
  const std::string command =
      "cd / && exec bash -c 'exec -a \"" + name + "\" \"" + program.native() + "\"'";
  std::FILE* output = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a fixed command
  if (output == nullptr) {
    return "(not started)";
  }
  std::string line;
  for (int c = std::fgetc(output); c != EOF && c != '\n'; c = std::fgetc(output)) {
    line.push_back(static_cast<char>(c));
  }
  return pclose(output) == 0 ? line : "(failed)";
}

TEST(MainBundle, IsTheResourcesBesideTheProgramWhateverItsFirstArgument) {
  const TemporaryFolder folder;
  fs::create_directory(folder.path() / "resources");
  const std::string expected = fs::canonical(folder.path()) / "resources";
  EXPECT_EQ(mainBundleOfProgramIn(folder.path(), "ColourLaser"), expected);
  EXPECT_EQ(mainBundleOfProgramIn(folder.path(), "/usr/bin/other"), expected);
}

TEST(MainBundle, IsTheInstalledDataFolderOtherwise) {
  const TemporaryFolder folder;
  EXPECT_EQ(mainBundleOfProgramIn(folder.path(), "ColourLaser"), INSTALLED_BUNDLE);
  folder.write("resources", "a file is no bundle");
  EXPECT_EQ(mainBundleOfProgramIn(folder.path(), "ColourLaser"), INSTALLED_BUNDLE);
}

TEST(MainBundle, IsOneForTheWholeProgram) {
  NSBundle::setMainBundle("/somewhere");
  EXPECT_EQ(NSBundle::mainBundle().resourcePath(), "/somewhere");
  EXPECT_EQ(&NSBundle::mainBundle(), &NSBundle::mainBundle());
}

}  // namespace
}  // namespace gdi
