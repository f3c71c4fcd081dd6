// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <utility>

#include "tools/searchscreens/Page.h"
#include "tools/searchscreens/Random.h"
#include "tools/searchscreens/moves.h"
#include "tools/searchscreens/rules.h"

namespace gdi::searchscreens {
namespace {

constexpr double kWarmth = 0.01;      // at first, as a share of J: how much worse is let through
constexpr double kCooled = 0.8;       // of the search, after which nothing worse is let through
constexpr double kAstray = 1.04;      // times the least J: from there the search goes back to it
constexpr double kSuperposed = 0.85;  // of what planes make of each other, that one may leave
constexpr double kSlack = 0.005;      // of J, that the estimate may be off by
constexpr double kSilence = 10.0;     // seconds

// Where changes are tried on a colour page: yellow is hardly seen.
constexpr std::array<std::size_t, 10> kPlaces{0, 0, 0, 1, 1, 1, 2, 3, 3, 3};

class Watch {
 public:
  [[nodiscard]] double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

struct Scored {
  Page page;
  double quickJ;
  double j;
};

class Search {
 public:
  Search(const Task& task, const Limits& limits, const Progress& progress)
      : task_(task), limits_(limits), progress_(progress), random_(limits.seed) {}

  Found run() {
    const Page start(task_);
    Scored current{start, start.quickJ(), start.j()};
    const double before = current.j;
    Scored best = current;
    tell(best.j);
    while (share() < 1.0) {
      if (std::optional<Scored> next = tryOne(current)) {
        current = std::move(*next);
      }
      if (current.j < best.j) {
        best = current;
        tell(best.j);
      } else if (watch_.seconds() - told_ > kSilence) {
        tell(best.j);
      }
      if (current.j > kAstray * best.j) {
        current = best;
      }
    }
    return {best.page.screens(), before, best.j, tries_};
  }

 private:
  // How much of the search is over.
  [[nodiscard]] double share() const {
    if (!limits_.tries) {
      return watch_.seconds() / limits_.seconds;
    }
    return tries_ >= *limits_.tries
               ? 1.0
               : static_cast<double>(tries_) / static_cast<double>(*limits_.tries);
  }

  void tell(double j) {
    told_ = watch_.seconds();
    progress_(told_, tries_, j);
  }

  // A changed page that is better, or worse and let through. Planes on each other take long to
  // judge: a page that is too bad without them, then by the estimate, goes no further.
  std::optional<Scored> tryOne(const Scored& current) {
    const auto [place, screen] = candidateFor(current.page.screens());
    ++tries_;
    const double warmth = kWarmth * current.j * std::max(0.0, 1.0 - share() / kCooled);
    const double most = current.quickJ + 3.0 * warmth + kSlack * current.j;
    Page page = current.page.with(place, screen);
    const double superposed = current.quickJ * current.quickJ - current.page.ownSquares();
    if (page.ownSquares() + kSuperposed * std::max(0.0, superposed) > most * most) {
      return std::nullopt;
    }
    const double quickJ = page.quickJ();
    if (quickJ > most) {
      return std::nullopt;
    }
    const double j = page.j();
    const bool taken =
        j < current.j || (warmth > 0.0 && random_.share() < std::exp((current.j - j) / warmth));
    return taken ? std::optional(Scored{std::move(page), quickJ, j}) : std::nullopt;
  }

  // A changed screen that keeps the rules, and the place where it belongs. There always is one: a
  // phase may be any.
  std::pair<std::size_t, ScreenParameters> candidateFor(
      const std::vector<ScreenParameters>& screens) {
    const Numbers numbers = limits_.shapesOnly ? Numbers::kAllButLattice : Numbers::kAll;
    while (true) {
      const std::size_t place = task_.isColour()
                                    ? kPlaces.at(static_cast<std::size_t>(
                                          random_.whole(0, static_cast<int>(kPlaces.size()) - 1)))
                                    : 0;
      std::vector<ScreenParameters> page = screens;
      page[place] = changed(screens[place], task_.depth(), numbers, random_);
      if (page[place] != screens[place] && breachOf(page, place, task_.depth()).empty()) {
        return {place, page[place]};
      }
    }
  }

  const Task& task_;
  const Limits& limits_;
  const Progress& progress_;
  Random random_;
  Watch watch_;
  long tries_ = 0;
  double told_ = 0.0;
};

}  // namespace

Found search(const Task& task, const Limits& limits, const Progress& progress) {
  return Search(task, limits, progress).run();
}

}  // namespace gdi::searchscreens
