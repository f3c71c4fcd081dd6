// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// screenpictures FOLDER OUTDIR: how the screens of a resources folder print, and the usual screens
// beside them, as PNG files.

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "tools/printmodel/LaserEngine.h"
#include "tools/screenpictures/Picture.h"
#include "tools/screenpictures/inks.h"
#include "tools/screenpictures/plane.h"
#include "tools/screenpictures/subjects.h"
#include "tools/screenquality/Conditions.h"
#include "tools/screenquality/baselines.h"
#include "tools/screenquality/bundled_sets.h"

namespace {

using namespace gdi::screenpictures;
using gdi::printmodel::kPointsAcross;
using gdi::screenquality::BundledScreen;
using gdi::screenquality::Conditions;
using gdi::screenquality::FourScreens;
using gdi::screenquality::kBaselines;
using gdi::screenquality::loadScreenSets;
using gdi::screenquality::paperClassOf;
using gdi::screenquality::ScreenSet;
using std::filesystem::path;

constexpr std::string_view kPaper = "Plain";
constexpr int kTimes = 2;  // samples across and down that a point of toner is drawn in: 8 a pixel
constexpr int kGap = 16;   // samples between two parts of a picture
constexpr std::array<std::string_view, 3> kQualities{"Fast", "Standard", "Fine"};

struct Scene {
  std::string_view name;
  Subject subject;
};

// The levels of cyan, magenta, yellow and black.
struct Tint {
  std::string_view name;
  std::array<std::uint8_t, 4> levels;
};
constexpr std::array<Tint, 2> kTints{{{"light", {40, 32, 30, 30}}, {"neutral", {80, 70, 66, 80}}}};
constexpr std::string_view kTintQuality = "Fast";
constexpr Tile kTintArea = withMargin({64, 64});
constexpr Move kMagentaMove{2, 1};

[[noreturn]] void refuse(const std::string& problem) {
  // Nothing is left to do when even this cannot be written.
  (void)std::fprintf(stderr, "%s\n", problem.c_str());
  std::exit(1);
}

// Joined by hyphens, blanks too.
std::string nameOf(std::initializer_list<std::string_view> words) {
  std::string name;
  for (const std::string_view word : words) {
    name.append(name.empty() ? "" : "-").append(word);
  }
  std::replace(name.begin(), name.end(), ' ', '-');
  return name;
}

std::string lowerCase(std::string text) {
  for (char& character : text) {
    character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  return text;
}

void write(const Picture& picture, const path& folder, const std::string& name) {
  const path file = folder / lowerCase(name + ".png");
  errno = 0;
  if (!writePicture(picture, file)) {
    refuse(file.string() + ": " + std::generic_category().message(errno == 0 ? EIO : errno));
  }
}

// The set of a quality and mode for the pictured paper.
FourScreens bundledScreens(const std::vector<ScreenSet>& sets, std::string_view quality,
                           std::string_view mode) {
  const auto set = std::ranges::find_if(sets, [&](const ScreenSet& candidate) {
    return candidate.quality == quality && candidate.mode == mode &&
           std::ranges::count(candidate.papers, kPaper) > 0;
  });
  FourScreens screens;
  std::ranges::transform(set->screens, screens.begin(), &BundledScreen::screen);
  return screens;
}

// As sent and as developed.
void pictureScenes(const std::vector<ScreenSet>& sets, const path& output,
                   const PaperModel& paper) {
  const std::array<Scene, 3> scenes{{{"wedge", greyWedge({192, 126})},
                                     {"photograph", photograph({192, 128})},
                                     {"text", text({100, 72}, 593, 757)}}};
  for (const std::string_view quality : kQualities) {
    const Screen screen = bundledScreens(sets, quality, "Mono").back();
    for (const auto& [name, subject] : scenes) {
      const Plane plane = screened(screen, subject.area, subject.levels);
      const Picture sent = sentPicture(plane, kPointsAcross * kTimes);
      const Picture printed = magnified(developedPicture(plane, paper), kTimes);
      write(besideEachOther(sent, printed, kGap, kGapPlace), output, nameOf({name, quality}));
    }
  }
}

// In register, and with one plane out of it.
Picture tintPicture(const FourScreens& screens, const Tint& tint, const PaperModel& paper) {
  std::array<Plane, 4> planes;
  for (std::size_t i = 0; i < planes.size(); ++i) {
    planes.at(i) = flatTint(screens.at(i), kTintArea, tint.levels.at(i));
  }
  const Picture registered = superposedPicture(planes, paper);
  planes[1] = flatTint(screens[1], kTintArea, tint.levels[1], kMagentaMove);
  return magnified(
      besideEachOther(registered, superposedPicture(planes, paper), kGap / kTimes, kPaleGreyPlace),
      kTimes);
}

void pictureTints(const FourScreens& screens, const std::string& name, const path& output,
                  const PaperModel& paper) {
  for (const Tint& tint : kTints) {
    write(tintPicture(screens, tint, paper), output, nameOf({tint.name, name}));
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  if (argc != 3) {
    refuse("usage: screenpictures FOLDER OUTDIR");
  }
  const path output = arguments[2];
  std::error_code error;
  std::filesystem::create_directories(output, error);
  if (error) {
    refuse(output.string() + ": " + error.message());
  }
  const auto sets = loadScreenSets(arguments[1], std::cerr);
  if (!sets) {
    return 1;
  }
  const Conditions& conditions = *paperClassOf(kPaper);
  const PaperModel& paper = conditions.paper;
  pictureScenes(*sets, output, paper);
  const FourScreens bundled = bundledScreens(*sets, kTintQuality, "Color");
  pictureTints(bundled, "bundled", output, paper);
  for (const auto& [name, make] : kBaselines) {
    pictureTints(make(bundled[0].steps, paper, conditions.gain), std::string(name), output, paper);
  }
  return 0;
}
