// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/searchscreens/search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "tools/searchscreens/Page.h"
#include "tools/searchscreens/Random.h"
#include "tools/searchscreens/Score.h"
#include "tools/searchscreens/moves.h"
#include "tools/searchscreens/rules.h"

namespace gdi::searchscreens {
namespace {

constexpr double kWarmth = 0.01;      // at first, a share of the score: how much worse may pass
constexpr double kCooled = 0.8;       // of the search, after which nothing worse is let through
constexpr double kAstray = 1.04;      // times the least score: from there the search goes back
constexpr double kSuperposed = 0.85;  // of what planes make of each other, that one may leave
constexpr double kSlack = 0.005;      // of the score, that the estimate may be off by
constexpr double kAny = std::numeric_limits<double>::infinity();
constexpr double kSilence = 10.0;  // seconds

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
  double score;
};

std::vector<Rival> rivalsIn(const Task& task, const Limits& limits) {
  return limits.robust ? screenquality::rivalsOf(*task.conditions, task.depth(), task.isColour())
                       : std::vector<Rival>{};
}

class Search {
 public:
  Search(const Task& task, const Limits& limits, const Progress& progress)
      : task_(task),
        limits_(limits),
        progress_(progress),
        score_(*task.conditions, rivalsIn(task, limits)),
        random_(limits.seed) {}

  Found run() {
    const Page start(task_);
    Scored current{start, start.quickJ(), start.j(), 0.0};
    current.score = score_.of(start, current.j, kAny);
    const double before = current.score;
    Scored best = current;
    tell(best.score);
    while (share() < 1.0) {
      if (std::optional<Scored> next = tryOne(current)) {
        current = std::move(*next);
      }
      if (current.score < best.score) {
        best = current;
        tell(best.score);
      } else if (watch_.seconds() - told_ > kSilence) {
        tell(best.score);
      }
      if (current.score > kAstray * best.score) {
        current = best;
      }
    }
    return {best.page.screens(), before, best.score, best.j, tries_};
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

  void tell(double score) {
    told_ = watch_.seconds();
    progress_(told_, tries_, score);
  }

  // A changed page that is better, or worse and let through. Planes on each other take long to
  // judge: a page that is too bad without them, then by the estimate, goes no further.
  std::optional<Scored> tryOne(const Scored& current) {
    const auto [place, screen] = candidateFor(current.page.screens());
    ++tries_;
    const double warmth = kWarmth * current.score * std::max(0.0, 1.0 - share() / kCooled);
    const double raised = current.score - current.j;
    const double most = current.quickJ + raised + 3.0 * warmth + kSlack * current.score;
    Page page = current.page.with(place, screen);
    const double superposed = current.quickJ * current.quickJ - current.page.ownSquares();
    if (page.ownSquares() + kSuperposed * std::max(0.0, superposed) > most * most) {
      return std::nullopt;
    }
    const double quickJ = page.quickJ();
    if (quickJ > most) {
      return std::nullopt;
    }
    // Worse by x with the chance exp(-x / warmth).
    const double limit = current.score - warmth * std::log(1.0 - random_.share());
    const double j = page.j();
    const double score = score_.of(page, j, limit);
    return score < limit ? std::optional(Scored{std::move(page), quickJ, j, score}) : std::nullopt;
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
  Score score_;
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
