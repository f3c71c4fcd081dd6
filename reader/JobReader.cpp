// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/JobReader.h"

#include <algorithm>
#include <utility>

#include "codec/pc4sc4_format.h"

namespace gdi::reader {

namespace {

std::string bandName(Ink ink, std::uint32_t band) {
  return std::string(nameOf(ink)) + " band " + std::to_string(band);
}

// The bands of a plane whose page has that many rows.
std::uint32_t bandsFor(std::uint32_t rows) {
  return (rows + kBandHeight - 1) / kBandHeight;
}

bool usesInk(const Page& page, Ink ink) {
  return page.isColor() || ink == Ink::kBlack;
}

}  // namespace

std::optional<Page> JobReader::nextPage() {
  while (std::optional<Record> record = records_.next()) {
    std::optional<Page> finished;
    if (auto* job = std::get_if<JobRecord>(&*record)) {
      job_ = std::move(*job);
    } else if (auto* host = std::get_if<HostRecord>(&*record)) {
      host_ = std::move(*host);
    } else if (auto* band = std::get_if<Band>(&*record)) {
      addBand(std::move(*band));
      continue;
    } else if (auto* trouble = std::get_if<Trouble>(&*record)) {
      troubles_.push_back(std::move(*trouble));
      if (assembly_) {
        // A stream that breaks off has told why its page is short.
        finished = std::move(assembly_->page);
        assembly_.reset();
      }
    } else {
      if (assembly_) {
        finished = finishPage();
      }
      if (const auto* page = std::get_if<PageRecord>(&*record)) {
        startPage(*page);
      } else {
        ended_ = true;
      }
    }
    if (finished) {
      return finished;
    }
  }
  return std::nullopt;
}

std::vector<Trouble> JobReader::takeTroubles() {
  return std::exchange(troubles_, {});
}

void JobReader::startPage(const PageRecord& record) {
  Assembly assembly;
  assembly.page.record = record;
  assembly.page.bitsPerPixel = job_->bitsPerPixel;
  assembly.page.offset = records_.recordOffset();
  assembly.page.rowBits = likelyRowBits(record, job_->bitsPerPixel);
  assembly.page.planes.fill(StoredPlane(assembly.page.rowBits / 8, record.rowsModulo64K));
  assembly.usable = true;
  toldOfPage_ = 0;
  if (record.rowBits % kRowBitsMultiple != 0) {
    report("the page record says " + std::to_string(record.rowBits) +
           " bits a row, which is no multiple of " + std::to_string(kRowBitsMultiple));
    assembly.usable = false;
  }
  if (record.channels != 1 && record.channels != kInkCount) {
    report("the page record says " + std::to_string(record.channels) +
           " channels; pages have 1 or 4");
    assembly.usable = false;
  }
  assembly_ = std::move(assembly);
}

// Lost bands keep their place: the plane's later bands stand where they belong.
void JobReader::addBand(Band&& band) {
  Page& page = assembly_->page;
  ++page.bandCount;
  page.compressedBytes += band.data.size();
  if (!assembly_->usable) {
    return;
  }
  const std::optional<Ink> ink = inkOf(band);
  if (!ink) {
    return;
  }
  if (!usesInk(page, *ink)) {
    report(std::string("a ") + nameOf(*ink) + " band on a page of black alone");
    return;
  }
  if (band.record.rows == 0 || band.record.rows > kBandHeight) {
    report(bandName(*ink, assembly_->arrived[indexOf(*ink)]) + " says that it has " +
           std::to_string(band.record.rows) + " rows; bands have 1 to " +
           std::to_string(kBandHeight));
    return;
  }
  StoredPlane& plane = page.planes[indexOf(*ink)];
  if (checkBand(band, *ink)) {
    plane.append(band.record.rows, std::move(band.data));
  } else {
    plane.appendLost(band.record.rows);
  }
  page.flaggedBlank = band.record.pageBlank;
  assembly_->closed = band.record.last();
  ++assembly_->arrived[indexOf(*ink)];
}

std::optional<Ink> JobReader::inkOf(const Band& band) {
  if (band.ink) {
    return band.ink;
  }
  std::optional<Ink> ink = Ink::kBlack;
  if (assembly_->page.isColor()) {
    ink = nextInWriterOrder(assembly_->arrived, bandsFor(assembly_->page.record.rowsModulo64K));
  }
  report(ink ? bandName(*ink, assembly_->arrived[indexOf(*ink)]) + " was not compressed: left blank"
             : std::string("a band of an unknown plane was not compressed: left out"));
  return ink;
}

bool JobReader::checkBand(const Band& band, Ink ink) {
  const std::uint32_t index = assembly_->arrived[indexOf(ink)];
  const std::string name = bandName(ink, index);
  if (assembly_->closed) {
    report(name + " follows the page's last band");
  }
  if (band.record.first() != (index == 0)) {
    report(name + (index == 0 ? " lacks the first band's flag" : " has the first band's flag"));
  }
  if (band.record.rowBits != assembly_->page.record.rowBits) {
    report(name + " says " + std::to_string(band.record.rowBits) +
           " bits a row, its page record says " + std::to_string(assembly_->page.record.rowBits) +
           ": left blank");
    return false;
  }
  if (!band.ink) {
    return false;
  }
  const DecodedBand decoded = decode(band);
  if (!decoded.complete) {
    report(records_.recordOffset() + band_record::kLength,
           name + " (" + std::to_string(band.data.size()) + " bytes) does not decode to " +
               std::to_string(band.record.rows) + " rows: left blank");
    return false;
  }
  checkTrailer(band, decoded.consumed, name);
  assembly_->inked |= std::any_of(decoded.rows.begin(), decoded.rows.end(),
                                  [](std::uint8_t byte) { return byte != 0; });
  return true;
}

// Until there is ink, any length will do for the bands that have come; and what does not decode to
// rows of some length does not decode to shorter ones either.
DecodedBand JobReader::decode(const Band& band) {
  Page& page = assembly_->page;
  DecodedBand decoded = decodeBand(band.data, band.record.rows, page.rowBits / 8);
  if (decoded.complete || assembly_->inked) {
    return decoded;
  }
  for (auto bits = nextLongerRow(page.rowBits); bits; bits = nextLongerRow(*bits)) {
    DecodedBand longer = decodeBand(band.data, band.record.rows, *bits / 8);
    if (longer.complete) {
      note(page.offset, "the page's rows are of " + std::to_string(*bits) +
                            " bits, which its paper's width does not suggest");
      page.rowBits = *bits;
      for (StoredPlane& plane : page.planes) {
        plane.setRowBytes(*bits / 8);
      }
      return longer;
    }
  }
  return decoded;
}

// Behind its last row a page's last band has the trailer, and any other band has nothing.
void JobReader::checkTrailer(const Band& band, std::size_t consumed, const std::string& name) {
  const auto rest = std::span(band.data).subspan(consumed);
  std::vector<std::uint8_t> expected;
  if (band.record.last()) {
    for (const pc4sc4::Word word : pc4sc4::kTrailer) {
      expected.push_back(static_cast<std::uint8_t>(word));
      expected.push_back(static_cast<std::uint8_t>(word >> 8));
    }
  }
  const std::uint64_t offset = records_.recordOffset() + band_record::kLength + consumed;
  if (!std::equal(rest.begin(), rest.end(), expected.begin(), expected.end())) {
    report(offset, name + " has " + std::to_string(rest.size()) + " bytes behind its last row" +
                       (band.record.last() ? ", which are not the page's trailer" : ""));
  } else if (band.data.size() % pc4sc4::kBandAlignment != 0) {
    report(offset, name + " is " + std::to_string(band.data.size()) +
                       " bytes long, which is no multiple of " +
                       std::to_string(pc4sc4::kBandAlignment));
  }
}

// docs/quirks.md, "A page of 257 rows"
bool JobReader::endsEarlyAsWritten(const Page& page) const {
  const std::uint32_t steps = assembly_->arrived[indexOf(Ink::kBlack)];
  const std::uint32_t rows = steps * kBandHeight + 1;
  if (assembly_->closed || steps == 0 || rows % 65536 != page.record.rowsModulo64K) {
    return false;
  }
  const BandCounts sent = bandsOfSteps(steps, bandsFor(rows));
  return std::all_of(kInks.begin(), kInks.end(), [&](Ink ink) {
    const std::uint32_t bands = usesInk(page, ink) ? sent[indexOf(ink)] : 0;
    return assembly_->arrived[indexOf(ink)] == bands &&
           page.plane(ink).rows() == bands * kBandHeight;
  });
}

Page JobReader::finishPage() {
  Page page = std::move(assembly_->page);
  if (assembly_->usable && endsEarlyAsWritten(page)) {
    const std::uint32_t steps = assembly_->arrived[indexOf(Ink::kBlack)];
    note(page.offset, "the page ends after its band step " + std::to_string(steps - 1) +
                          ", as one of " + std::to_string(steps * kBandHeight + 1) +
                          " rows does (docs/quirks.md, \"A page of 257 rows\")");
  } else if (assembly_->usable) {
    for (const Ink ink : {Ink::kBlack, Ink::kCyan, Ink::kMagenta, Ink::kYellow}) {
      const std::uint32_t rows = page.plane(ink).rows();
      if (usesInk(page, ink) && rows % 65536 != page.record.rowsModulo64K) {
        report(page.offset, "the page has " + std::to_string(rows) + " rows of " + nameOf(ink) +
                                ", its page record says " +
                                std::to_string(page.record.rowsModulo64K));
      }
    }
    if (!assembly_->closed && page.bandCount > 0) {
      report(page.offset, "the page's last band lacks the last band's flag");
    }
    if (page.flaggedBlank && assembly_->inked) {
      report(page.offset, "the page is flagged as blank and is not");
    }
  }
  assembly_.reset();
  return page;
}

void JobReader::tell(Trouble&& trouble) {
  if (toldOfPage_ < kMostTroubles) {
    troubles_.push_back(std::move(trouble));
  } else if (toldOfPage_ == kMostTroubles) {
    troubles_.push_back({trouble.offset, "there is more that is not told"});
  } else {
    return;
  }
  ++toldOfPage_;
}

}  // namespace gdi::reader
