// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/program/expected_stream.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include <unistd.h>

#include "tests/codec/plain_encoder.h"

namespace gdi::programtest {

namespace {

constexpr std::uint32_t kRowsABand = 256;
constexpr std::size_t kDateInRecord = 20;

void append(Bytes& stream, const Bytes& more) {
  stream.insert(stream.end(), more.begin(), more.end());
}

Bytes text(const std::string& characters, std::size_t width) {
  Bytes field(characters.begin(), characters.end());
  field.resize(width);
  return field;
}

Bytes number(std::uint32_t value, std::size_t width) {
  Bytes field;
  for (std::size_t i = width; i-- > 0;) {
    field.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  }
  return field;
}

Bytes zeros(std::size_t count) {
  return Bytes(count);
}

Bytes concatenated(const std::vector<Bytes>& fields) {
  Bytes all;
  for (const Bytes& field : fields) {
    append(all, field);
  }
  return all;
}

Bytes jobAndHostRecord(const ExpectedJob& job) {
  std::array<char, 256> host{};
  if (gethostname(host.data(), host.size() - 1) != 0) {
    throw std::runtime_error("this host has no name");
  }
  return concatenated({text("GDIJ", 4),
                       number(120, 4),
                       number(100, 2),
                       number(job.copies, 2),
                       zeros(6),
                       number(152, 2),
                       zeros(4),
                       zeros(8),
                       {0x01, static_cast<std::uint8_t>(job.depth - 1), 0x00, 0x02},
                       zeros(20),
                       text(job.name, 64),
                       text("GJET", 4),
                       number(152, 4),
                       text(host.data(), 64),
                       text(job.user, 64),
                       zeros(16)});
}

std::uint32_t rowBits(const RasterPage& page, std::uint32_t depth) {
  std::uint32_t bits = depth * page.width + 32;
  while (bits % 8 != 0) {
    ++bits;
  }
  while (bits % 128 != 0) {
    ++bits;
  }
  return bits;
}

std::uint32_t micrometres(std::uint32_t points) {
  switch (points) {
    case 595:
      return 209902;
    case 842:
      return 297038;
    case 612:
      return 215900;
    case 792:
      return 279400;
    default:
      throw std::runtime_error("no micrometres known for this size");
  }
}

Bytes pageRecord(const ExpectedPage& expected, std::uint32_t depth) {
  const RasterPage& page = expected.page;
  return concatenated({text("GDIP", 4),
                       number(64, 4),
                       {expected.media, expected.tray, expected.paper, 0},
                       number(rowBits(page, depth), 2),
                       number(page.height, 2),
                       zeros(16),
                       {static_cast<std::uint8_t>(page.channels), 1},
                       number(expected.number, 2),
                       zeros(18),
                       number((page.height + 257) / 256, 2),
                       number(micrometres(page.pointsWide), 4),
                       number(micrometres(page.pointsHigh), 4)});
}

bool isBlank(const RasterPage& page) {
  for (std::uint32_t y = 0; y < page.height; ++y) {
    for (std::uint32_t x = 0; x < page.width; ++x) {
      for (std::uint32_t channel = 0; channel < page.channels; ++channel) {
        if (page.sample(x, y, channel) != 0) {
          return false;
        }
      }
    }
  }
  return true;
}

// `slot`: the place of the plane's length among black, yellow, magenta, cyan.
Bytes bandOf(const ExpectedPage& expected, std::uint32_t depth, const std::vector<Bytes>& plane,
             std::uint32_t index, std::size_t slot, bool last) {
  const auto first = std::size_t{index} * kRowsABand;
  const std::size_t rows = std::min<std::size_t>(kRowsABand, plane.size() - first);
  codectest::Band band;
  band.rowBytes = static_cast<std::uint32_t>(plane.front().size());
  band.rows = static_cast<std::uint32_t>(rows);
  for (std::size_t row = first; row < first + rows; ++row) {
    append(band.bytes, plane[row]);
  }
  const Bytes data = codectest::plainCompress(band, last);
  std::vector<Bytes> lengths(4, zeros(4));
  lengths.at(slot) = number(static_cast<std::uint32_t>(data.size()), 4);
  const auto blank = static_cast<std::uint8_t>(last && isBlank(expected.page) ? 1 : 0);
  return concatenated({text("GDIB", 4),
                       number((index == 0 ? 1U : 0U) + (last ? 2U : 0U), 4),
                       concatenated(lengths),
                       number(rowBits(expected.page, depth), 2),
                       number(band.rows, 2),
                       zeros(2),
                       {blank, 0},
                       data});
}

struct PlaneInStream {
  std::uint32_t plane;  // index of the channel
  std::uint32_t lag;    // bands behind black
  std::size_t slot;
};

Bytes pageBands(const ExpectedPage& expected, std::uint32_t depth) {
  const bool mono = expected.page.channels == 1;
  const std::vector<PlaneInStream> order =
      mono ? std::vector<PlaneInStream>{{3, 0, 0}}
           : std::vector<PlaneInStream>{{3, 0, 0}, {0, 6, 3}, {1, 12, 2}, {2, 18, 1}};
  const std::uint32_t height = expected.page.height;
  const std::uint32_t bands = (height + kRowsABand - 1) / kRowsABand;
  // A page that ends with the first row of a band never sends what is left after its last step.
  const bool cutShort = height > 1 && height % kRowsABand == 1 && !expected.upsideDown;
  const std::uint32_t steps = cutShort ? height / kRowsABand : bands + order.back().lag;
  std::vector<std::vector<Bytes>> planes(4);
  for (const PlaneInStream& place : order) {
    planes.at(place.plane) = expectedPlane(expected, place.plane, depth);
  }
  Bytes stream;
  for (std::uint32_t step = 0; step < steps; ++step) {
    for (const PlaneInStream& place : order) {
      if (step >= place.lag && step - place.lag < bands) {
        const std::uint32_t index = step - place.lag;
        const bool last = place.slot == order.back().slot && index == bands - 1;
        append(stream, bandOf(expected, depth, planes.at(place.plane), index, place.slot, last));
      }
    }
  }
  return stream;
}

}  // namespace

std::vector<Bytes> expectedPlane(const ExpectedPage& expected, std::uint32_t plane,
                                 std::uint32_t depth) {
  const RasterPage& page = expected.page;
  const std::uint32_t channel = page.channels == 1 ? 0 : plane;
  std::vector<Bytes> rows;
  for (std::uint32_t y = 0; y < page.height; ++y) {
    Bytes row(rowBits(page, depth) / 8);
    for (std::uint32_t x = 0; x < page.width; ++x) {
      const std::uint32_t from = expected.upsideDown ? page.width - 1 - x : x;
      const std::uint32_t value = screenedValue(plane, depth, x, y, page.sample(from, y, channel));
      const std::uint32_t bit = x * depth;
      row[bit / 8] = static_cast<std::uint8_t>(row[bit / 8] | value << (8 - depth - bit % 8));
    }
    rows.push_back(row);
  }
  if (expected.upsideDown) {
    std::ranges::reverse(rows);
  }
  return rows;
}

Bytes expectedJobStream(const ExpectedJob& job) {
  Bytes stream = text(job.prologue, job.prologue.size());
  if (!job.pages.empty()) {
    append(stream, jobAndHostRecord(job));
  }
  for (const ExpectedPage& page : job.pages) {
    append(stream, pageRecord(page, job.depth));
    append(stream, pageBands(page, job.depth));
  }
  if (job.ends) {
    append(stream, text("JIDG", 4));
  }
  return stream;
}

Bytes withoutDate(Bytes output, std::size_t prologueBytes) {
  const std::size_t date = prologueBytes + kDateInRecord;
  for (std::size_t i = date; i < std::min(output.size(), date + 4); ++i) {
    output[i] = 0;
  }
  return output;
}

}  // namespace gdi::programtest
