// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/makescreens/parameters.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <span>
#include <system_error>
#include <utility>

#include "tools/makescreens/parameter_text.h"
#include "tools/makescreens/tile_rules.h"

namespace gdi::makescreens {
namespace {

constexpr int kLargestPeriod = 64;
constexpr int kLastPlace = 9999;  // far more than cells have pixels

using Fields = std::span<const std::string_view>;

// Reads one text. Every member answers false and sets `problem_` when a line is wrong.
class Reader {
 public:
  bool readLine(int line, Fields fields) {
    line_ = line;
    struct Form {
      std::string_view keyword;
      std::string_view fields;
      bool (Reader::*read)(Fields);
    };
    static constexpr std::array<Form, 7> kForms{{
        {"quality", "NAME DEPTH", &Reader::readQuality},
        {"start", "PLANE X Y", &Reader::readStart},
        {"variation", "SPOT THRESHOLD SOFTNESS", &Reader::readVariation},
        {"class", "NAME SPOT THRESHOLD SOFTNESS SPREAD SOLID GAIN", &Reader::readClass},
        {"paper", "NAME CLASS", &Reader::readPaper},
        {"screen",
         "CLASS QUALITY PLANE N A B C D U V CELLS SOFT-EDGE EVENNESS REACH DOT-ELLIPSE DOT-ROUND "
         "DOT-PAIRS HOLE-ELLIPSE HOLE-ROUND HOLE-PAIRS LEAST-DOT LEAST-HOLE GRADUAL",
         &Reader::readScreen},
        {"order", "CLASS QUALITY PLANE dots|holes PLACE...", &Reader::readOrder},
    }};
    for (const Form& form : kForms) {
      if (fields.front() != form.keyword) {
        continue;
      }
      const auto blanks = std::count(form.fields.begin(), form.fields.end(), ' ');
      const auto expected = static_cast<std::size_t>(blanks) + 2;
      const bool mayGoOn = form.fields.ends_with("...");
      if (fields.size() < expected || (fields.size() > expected && !mayGoOn)) {
        return fail("expected: " + std::string(form.keyword) + ' ' + std::string(form.fields));
      }
      return (this->*form.read)(fields.subspan(1));
    }
    return fail("unknown keyword " + quoted(fields.front()));
  }

  bool finish(int lastLine) {
    line_ = lastLine;
    if (parameters_.qualities.empty()) {
      return fail("no quality is given");
    }
    if (parameters_.classes.empty()) {
      return fail("no class is given");
    }
    if (parameters_.papers.empty()) {
      return fail("no paper is given");
    }
    for (std::size_t c = 0; c < parameters_.classes.size(); ++c) {
      for (std::size_t q = 0; q < parameters_.qualities.size(); ++q) {
        for (std::size_t p = 0; p < kPlanes.size(); ++p) {
          const auto screen = screens_.find({c, q, p});
          if (screen == screens_.end()) {
            line_ = classLines_[c];
            return fail("class " + quoted(parameters_.classes[c].name) + " has no screen for " +
                        parameters_.qualities[q].name + ' ' + std::string(kPlanes.at(p)));
          }
          parameters_.screens.push_back(screen->second);
        }
      }
    }
    return true;
  }

  [[nodiscard]] int line() const { return line_; }
  [[nodiscard]] const std::string& problem() const { return problem_; }
  Parameters takeParameters() { return std::move(parameters_); }

 private:
  bool fail(std::string problem) {
    problem_ = std::move(problem);
    return false;
  }

  // Names become keys and file names.
  bool readNewName(std::string_view kind, std::string_view field, std::string& name) {
    const auto isPlain = [](char c) {
      return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    };
    if (!std::all_of(field.begin(), field.end(), isPlain)) {
      return fail(quoted(field) + " is no name of letters and digits");
    }
    name = field;
    if (!names_.insert(std::string(kind) + ' ' + name).second) {
      return fail(std::string(kind) + ' ' + quoted(field) + " is given twice");
    }
    return true;
  }

  template <typename List>
  bool readReference(std::string_view kind, const List& list, std::string_view field,
                     std::size_t& index) {
    for (index = 0; index < list.size(); ++index) {
      if (list[index].name == field) {
        return true;
      }
    }
    return fail("unknown " + std::string(kind) + ' ' + quoted(field));
  }

  bool readPlane(std::string_view field, std::size_t& plane) {
    plane = static_cast<std::size_t>(std::find(kPlanes.begin(), kPlanes.end(), field) -
                                     kPlanes.begin());
    return plane < kPlanes.size() || fail("unknown plane " + quoted(field));
  }

  template <typename Number>
  bool readNumber(std::string_view what, std::string_view field, Number least, Number most,
                  Number& number) {
    const char* const end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, number);
    if (error == std::errc() && stop == end && number >= least && number <= most) {
      return true;
    }
    return fail(std::string(what) + ' ' + quoted(field) + " is no number of " + decimal(least) +
                " to " + decimal(most));
  }

  bool readQuality(Fields fields) {
    Quality quality;
    if (!readNewName("quality", fields[0], quality.name) ||
        !readNumber("depth", fields[1], 1, 8, quality.depth)) {
      return false;
    }
    if ((quality.depth & (quality.depth - 1)) != 0) {
      return fail("depth is none of 1, 2, 4 and 8");
    }
    parameters_.qualities.push_back(std::move(quality));
    return true;
  }

  bool readStart(Fields fields) {
    std::size_t plane = 0;
    if (!readPlane(fields[0], plane)) {
      return false;
    }
    GrowthStart& start = parameters_.starts.at(plane);
    return readNumber("start", fields[1], 0.0, 0.999, start.x) &&
           readNumber("start", fields[2], 0.0, 0.999, start.y);
  }

  bool readVariation(Fields fields) {
    Variation& variation = parameters_.variation;
    return readNumber("variation", fields[0], 0.0, 0.09, variation.spot) &&
           readNumber("variation", fields[1], 0.0, 0.04, variation.threshold) &&
           readNumber("variation", fields[2], 0.0, 0.5, variation.softness);
  }

  bool readClass(Fields fields) {
    PaperClass paperClass;
    PaperModel& model = paperClass.model;
    if (!readNewName("class", fields[0], paperClass.name) ||
        !readNumber("spot", fields[1], 0.1, 1.0, model.spot) ||
        !readNumber("threshold", fields[2], 0.05, 0.95, model.threshold) ||
        !readNumber("softness", fields[3], 0.005, 0.5, model.softness) ||
        !readNumber("spread", fields[4], 0.1, 5.0, model.spread) ||
        !readNumber("solid", fields[5], 0.0, 0.5, model.solid) ||
        !readNumber("gain", fields[6], 0.0, 0.25, paperClass.gain)) {
      return false;
    }
    classLines_.push_back(line_);
    parameters_.classes.push_back(std::move(paperClass));
    return true;
  }

  bool readPaper(Fields fields) {
    Paper paper;
    if (!readNewName("paper", fields[0], paper.name) ||
        !readReference("class", parameters_.classes, fields[1], paper.paperClass)) {
      return false;
    }
    parameters_.papers.push_back(std::move(paper));
    return true;
  }

  bool readScreen(Fields fields) {
    std::size_t paperClass = 0;
    std::size_t quality = 0;
    std::size_t plane = 0;
    ScreenParameters screen;
    if (!readReference("class", parameters_.classes, fields[0], paperClass) ||
        !readReference("quality", parameters_.qualities, fields[1], quality) ||
        !readPlane(fields[2], plane) || !readLattice(fields.subspan(3, 7), screen.lattice) ||
        !readNumber("cell count", fields[10], 1, 1024, screen.leastCells) ||
        !readNumber("soft edge", fields[11], 0.0, 1.0, screen.softEdge) ||
        !readGrowth(fields.subspan(12, 10), screen.growth) ||
        !readNumber("gradual weight", fields[22], 0.0, 100.0, screen.gradualWeight)) {
      return false;
    }
    return checkTile(screen, parameters_.qualities[quality]) &&
           (screens_.try_emplace({paperClass, quality, plane}, screen).second ||
            fail("this class, quality and plane has a screen already"));
  }

  bool readOrder(Fields fields) {
    std::size_t paperClass = 0;
    std::size_t quality = 0;
    std::size_t plane = 0;
    if (!readReference("class", parameters_.classes, fields[0], paperClass) ||
        !readReference("quality", parameters_.qualities, fields[1], quality) ||
        !readPlane(fields[2], plane)) {
      return false;
    }
    const auto found = screens_.find({paperClass, quality, plane});
    if (found == screens_.end()) {
      return fail("this class, quality and plane has no screen yet");
    }
    if (fields[3] != "dots" && fields[3] != "holes") {
      return fail(quoted(fields[3]) + " is neither dots nor holes");
    }
    ScreenParameters& screen = found->second;
    SpotShape& shape = fields[3] == "dots" ? screen.growth.dots : screen.growth.holes;
    if (!shape.order.empty()) {
      return fail("these " + std::string(fields[3]) + " have an order already");
    }
    for (const std::string_view field : fields.subspan(4)) {
      int place = 0;
      if (!readNumber("place", field, 0, kLastPlace, place)) {
        return false;
      }
      shape.order.push_back(place);
    }
    return checkTile(screen, parameters_.qualities[quality]);
  }

  bool readLattice(Fields fields, Lattice& lattice) {
    double u = 0.0;
    double v = 0.0;
    if (!readNumber("period", fields[0], 1, kLargestPeriod, lattice.n) ||
        !readNumber("A", fields[1], -kLargestPeriod, kLargestPeriod, lattice.a) ||
        !readNumber("B", fields[2], -kLargestPeriod, kLargestPeriod, lattice.b) ||
        !readNumber("C", fields[3], -kLargestPeriod, kLargestPeriod, lattice.c) ||
        !readNumber("D", fields[4], -kLargestPeriod, kLargestPeriod, lattice.d) ||
        !readNumber("phase", fields[5], 0.0, 0.999, u) ||
        !readNumber("phase", fields[6], 0.0, 0.999, v)) {
      return false;
    }
    lattice.phaseU = static_cast<int>(std::lround(u * 1000.0));
    lattice.phaseV = static_cast<int>(std::lround(v * 1000.0));
    return true;
  }

  bool readGrowth(Fields fields, GrowthRule& growth) {
    return readNumber("evenness", fields[0], 0.0, 100.0, growth.evenness) &&
           readNumber("reach", fields[1], 0.1, 10.0, growth.reach) &&
           readShape(fields.subspan(2, 3), growth.dots) &&
           readShape(fields.subspan(5, 3), growth.holes) &&
           readNumber("least dot", fields[8], 1, 16, growth.leastDot) &&
           readNumber("least hole", fields[9], 1, 16, growth.leastHole);
  }

  bool readShape(Fields fields, SpotShape& shape) {
    return readNumber("ellipse", fields[0], 0.0, 1.0, shape.ellipse) &&
           readNumber("roundness", fields[1], -1.0, 1.0, shape.roundness) &&
           readNumber("pairs", fields[2], -1.0, 1.0, shape.pairs);
  }

  bool checkTile(const ScreenParameters& screen, const Quality& quality) {
    const std::string problem = tileProblem(screen, quality.depth);
    return problem.empty() || fail(problem);
  }

  using Place = std::array<std::size_t, 3>;  // class, quality, plane

  int line_ = 0;
  std::string problem_;
  std::set<std::string> names_;
  std::vector<int> classLines_;
  std::map<Place, ScreenParameters> screens_;
  Parameters parameters_;
};

}  // namespace

std::optional<Parameters> parseParameters(std::string_view text, std::string_view name,
                                          std::string& error) {
  Reader reader;
  bool good = true;
  int line = 0;
  while (good && !text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::vector<std::string_view> fields = fieldsOf(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    ++line;
    good = fields.empty() || reader.readLine(line, fields);
  }
  if (good && reader.finish(std::max(line, 1))) {
    return reader.takeParameters();
  }
  error = std::string(name) + ':' + std::to_string(reader.line()) + ": " + reader.problem();
  return std::nullopt;
}

}  // namespace gdi::makescreens
