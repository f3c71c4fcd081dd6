// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/ProgramInFolder.h"

#include <cstdio>

#include <sys/wait.h>

namespace gdi::test {

int ProgramInFolder::run(const std::string& arguments, const std::string& input,
                         const std::string& output) const {
  std::string command = "cd '";
  command.append(folder_.path().string()).append("' && '").append(program_).append("' ");
  command.append(arguments).append(" <").append(input).append(" >").append(output);
  command.append(" 2>errors");
  std::FILE* pipe = popen(command.c_str(), "r");  // NOLINT(cert-env33-c): a test's own command
  if (pipe == nullptr) {
    return -1;
  }
  const int status = pclose(pipe);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace gdi::test
