// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "filter/CUPSFilter.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "filter/log/debug_log.h"
#include "filter/signals.h"
#include "platform/CFPreferences.h"
#include "platform/NSBundle.h"
#include "platform/string_values.h"

namespace gdi {

char DefaultPaperType[kDefaultPaperTypeBytes];  // NOLINT(*-avoid-c-arrays): fixed buffer

namespace {

constexpr int kOptionsArgument = 5;
constexpr int kInputArgument = 6;

// The system's checked copy: a value that does not fit ends the process instead of being cut.
// docs/quirks.md, "A long DefaultPaperType aborts".
void copyDefaultPaperType(const char* value) {
  if (std::strlen(value) >= kDefaultPaperTypeBytes) {
    (void)std::fprintf(stderr,
                       "ERROR: DefaultPaperType \"%s\" of the PPD is longer than %zu bytes\n",
                       value, kDefaultPaperTypeBytes - 1);
    std::abort();
  }
  std::strncpy(DefaultPaperType, value, kDefaultPaperTypeBytes);
}

const char* orEmpty(const char* text) {
  return text != nullptr ? text : "";
}

}  // namespace

CUPSFilter::~CUPSFilter() {
  if (ppd != nullptr) {
    ppdClose(ppd);
  }
}

bool CUPSFilter::init() {
  needsPPD = true;
  (void)std::setvbuf(stderr, nullptr, _IONBF, 0);  // each status line leaves at once
  setupCFLanguage();
  CPSDebugLog("CUPSFilter init exiting with result: %d", 1);
  return true;
}

bool CUPSFilter::initWithArgc(int argumentCount, const char** arguments) {
  installSignalHandlers();
  CPSDebugLog("CUPSFilter initWithArgc:argv");
  argc = argumentCount;
  argv = arguments;
  if (const char* deviceURI = std::getenv("DEVICE_URI"); deviceURI != nullptr) {
    uri = deviceURI;
  }
  if (!init()) {
    CPSDebugAssert_("Bad self");
    CPSDebugLog("CUPSFilter initWithArgc:argv exiting with result: %d", 0);
    return false;
  }
  const bool complete = openInput() && findPPD();
  if (complete) {
    readPPD();
  }
  loadOptions();
  if (!complete) {
    CPSDebugLog("CUPSFilter initWithArgc:argv failed");
  }
  CPSDebugLog("CUPSFilter initWithArgc:argv exiting with result: %d", complete ? 1 : 0);
  return complete;
}

// Six arguments and eight or more read standard input: docs/quirks.md, "Eight arguments".
bool CUPSFilter::openInput() {
  if (argc == kInputArgument + 1) {
    const int descriptor = open(argv[kInputArgument], O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
      CPSDebugAssert_("Unable to open argv[6]");
      return false;
    }
    sourceFD = descriptor;
  } else if (argc < kInputArgument) {
    CPSDebugAssert_("Not enough arguments");
    return false;
  }
  return true;
}

bool CUPSFilter::findPPD() {
  printerName.clear();
  const char* path = cupsGetPPD(argv[0]);
  ppdFile = orEmpty(path);
  if (path == nullptr) {
    CPSDebugAssert_("Unable to get ppd file");
    return !needsPPD;
  }
  return true;
}

void CUPSFilter::readPPD() {
  ppd = ppdOpenFile(ppdFile.empty() ? nullptr : ppdFile.c_str());
  if (!ppdFile.empty()) {
    (void)unlink(ppdFile.c_str());  // libcups made it for this process alone
  }
  if (ppd == nullptr) {
    CPSDebugAssert_("Unable to open ppd file");
    return;
  }
  printerName = orEmpty(ppd->nickname);
  for (int i = 0; i < ppd->num_attrs; ++i) {
    const ppd_attr_t& attribute = *ppd->attrs[i];
    CPSDebugLog("ppd attr %s = %s", attribute.name, orEmpty(attribute.value));
    if (std::strcmp(attribute.name, "DefaultPaperType") == 0) {
      copyDefaultPaperType(orEmpty(attribute.value));
      CPSDebugLog("DefaultPaperType: %s", DefaultPaperType);
    }
  }
  const ppd_attr_t* profile = ppdFindAttr(ppd, "cupsICCProfile", nullptr);
  if (profile != nullptr && profile->value != nullptr) {
    cupsICCProfile = profile->value;
  } else {
    cupsICCProfile = NSBundle::mainBundle().objectForInfoDictionaryKey("cupsICCProfile");
  }
}

bool CUPSFilter::run() {
  CPSDebugLog("CUPSFIlter run: ");  // docs/quirks.md, "CUPSFIlter"
  // docs/quirks.md, "Negative copies".
  copies = static_cast<std::uint32_t>(intForOption("com.apple.print.PrintSettings.PMCopies..n."));
  CPSDebugLog("copies: %d", static_cast<int>(copies));
  if (copies == 0) {
    copies = 1;
  }
  collate = boolForOption("com.apple.print.PrintSettings.PMCopyCollate..b.");
  jobName = stringForOption("com.apple.print.JobInfo.PMJobName");
  constexpr int kDuplexLongEdge = 2;
  constexpr int kDuplexShortEdge = 3;
  const int duplexing = intForOption("com.apple.print.PrintSettings.PMDuplexing..n.");
  // The edges are set whatever the paper: docs/quirks.md, "Binding without duplex".
  if (duplexing == kDuplexLongEdge || duplexing == kDuplexShortEdge) {
    duplex = canDuplexPaperSize();
    longEdge = duplexing == kDuplexLongEdge;
    shortEdge = duplexing == kDuplexShortEdge;
  }
  sidesImaged = static_cast<std::uint32_t>(
      intForOption("com.apple.print.PrintSettings.PMTotalSidesImaged..n."));
  CPSDebugLog("sidesImaged: %d", static_cast<int>(sidesImaged));
  if (sidesImaged == 0) {
    sidesImaged = 1;
  }
  CPSDebugLog("CUPSFIlter run: exiting with result %d", 1);
  return true;
}

// NOLINTNEXTLINE(*-convert-member-functions-to-static): where the answer is kept is no interface
bool CUPSFilter::cancelled() const {
  if (gSigTerm == 1) {
    CPSDebugLog("Detected SIGTERM");
  }
  if (gSigPipe == 1) {
    CPSDebugLog("Detected SIGPIPE");
  }
  return gSigTerm == 1;
}

void CUPSFilter::loadOptions() {
  optionsDict.clear();
  for (const JobOption& option :
       parseJobOptions(argc > kOptionsArgument ? argv[kOptionsArgument] : nullptr)) {
    optionsDict[option.name] = option.value;
    CPSDebugLog("Option %s = %s", option.name.c_str(), option.value.c_str());
  }
}

void CUPSFilter::setupCFLanguage() {
  const char* language = std::getenv("LANG");
  if (language == nullptr) {
    CPSDebugLog("LANG environment variable missing.");
    return;
  }
  CFPreferencesSetAppValue("AppleLanguages", {language});
  CPSDebugLog("AppleLanguages = \"%s\"", language);
}

bool CUPSFilter::canDuplexPaperSize() const {
  return canDuplexPaper(optionsDict);
}

std::optional<std::string> CUPSFilter::stringForOption(std::string_view option) const {
  return optionValue(optionsDict, option);
}

int CUPSFilter::intForOption(std::string_view option) const {
  return intValue(optionValueOr(optionsDict, option, ""));
}

bool CUPSFilter::boolForOption(std::string_view option) const {
  return isTrueWord(optionValueOr(optionsDict, option, ""));
}

// NOLINTNEXTLINE(*-convert-member-functions-to-static): where the answer is kept is no interface
std::optional<std::string> CUPSFilter::stringForPPDAttr(const std::string& attribute) const {
  std::optional<std::string> value = NSBundle::mainBundle().objectForInfoDictionaryKey(attribute);
  if (!value) {
    CPSDebugAssert_("CUPSFilter stringForPPDAttr: failed to get value for PPD attr %s",
                    attribute.c_str());
  }
  return value;
}

bool CUPSFilter::boolForPPDAttr(const std::string& attribute) const {
  return isTrueWord(stringForPPDAttr(attribute).value_or(""));
}

}  // namespace gdi
