// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The base of the filter's class chain: what the spooler hands over (arguments, input, PPD, job
// options) and what every stage may ask of it.
//
// One thread. A stage reports failure by its boolean result and the debug log; nothing throws.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <cups/ppd.h>

#include "filter/job_options.h"

namespace gdi {

// The PPD's DefaultPaperType, NUL-terminated; empty when the PPD has none.
inline constexpr std::size_t kDefaultPaperTypeBytes = 20;
extern char DefaultPaperType[kDefaultPaperTypeBytes];  // NOLINT(*-avoid-c-arrays): fixed buffer

class CUPSFilter {
 public:
  CUPSFilter() = default;
  virtual ~CUPSFilter();
  CUPSFilter(const CUPSFilter&) = delete;
  CUPSFilter& operator=(const CUPSFilter&) = delete;

  // First half of construction: needs of the class, standard error, language.
  virtual bool init();
  // Second half: arguments, input, PPD, options. `arguments` has argumentCount + 1 entries and
  // must outlive the object. False: the job cannot run, and the object is only good for being
  // destroyed.
  bool initWithArgc(int argumentCount, const char** arguments);

  // Reads the job settings from the options. Always true here.
  virtual bool run();

  // Whether the job was cancelled (SIGTERM). A broken pipe alone is no cancellation.
  [[nodiscard]] bool cancelled() const;

  // A job option; nothing, 0 or false when absent.
  [[nodiscard]] std::optional<std::string> stringForOption(std::string_view option) const;
  [[nodiscard]] int intForOption(std::string_view option) const;
  [[nodiscard]] bool boolForOption(std::string_view option) const;

  // A per-model setting: an entry of the bundle's information dictionary, not of the PPD file:
  // docs/quirks.md, "PPD attributes of the bundle".
  [[nodiscard]] std::optional<std::string> stringForPPDAttr(const std::string& attribute) const;
  [[nodiscard]] bool boolForPPDAttr(const std::string& attribute) const;

 protected:
  bool needsPPD = false;                      // a missing PPD file makes construction fail
  std::string printerName;                    // the PPD's nickname; may be empty
  std::optional<std::string> jobName;         // nothing when the option is absent
  std::uint32_t priorityTray = 0;             // carried, without a meaning
  int argc = 0;                               // entries of argv
  const char** argv = nullptr;                // the process's; not owned
  OptionsDict optionsDict;                    // the job options, argv[5]
  std::optional<std::string> uri;             // DEVICE_URI; nothing when unset
  std::string ppdFile;                        // where libcups put the PPD; removed once it is open
  ppd_file_t* ppd = nullptr;                  // may be null; owned
  int sourceFD = 0;                           // where the raster is read from
  std::optional<std::string> cupsICCProfile;  // name or path of the job's colour profile
  std::uint32_t copies = 0;                   // >= 1 after run()
  bool collate = false;                       // copies come collated
  bool duplex = false;                        // two-sided, and the paper allows it
  bool longEdge = false;                      // two-sided, bound on the long edge
  bool shortEdge = false;                     // two-sided, bound on the short edge
  std::uint32_t sidesImaged = 0;              // >= 1 after run()

 private:
  bool openInput();
  bool findPPD();
  void readPPD();
  void loadOptions();
  static void setupCFLanguage();
  [[nodiscard]] bool canDuplexPaperSize() const;
};

}  // namespace gdi
