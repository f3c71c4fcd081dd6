// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "reader/rules.h"

namespace gdi::reader {

namespace {

constexpr std::array kRules{
    RuleText{Rule::kTag, "tag", "every record begins with one of the five tags"},
    RuleText{Rule::kRecordOrder, "record-order",
             "job record, host record, then pages with their bands, then the end-of-job mark"},
    RuleText{Rule::kRecordLength, "record-length", "a record's length field is its length"},
    RuleText{Rule::kTruncated, "truncated", "no record or band is cut off by the stream's end"},
    RuleText{Rule::kEndMark, "end-mark", "the stream ends with the end-of-job mark"},
    RuleText{Rule::kAfterEnd, "after-end", "nothing follows the end-of-job mark"},
    RuleText{Rule::kConstant, "constant", "constant fields hold their constants"},
    RuleText{Rule::kZeroField, "zero-field", "fields called zero are zero"},
    RuleText{Rule::kTextPadding, "text-padding", "a text field is filled up with NUL bytes"},
    RuleText{Rule::kBitsPerPixel, "bits-per-pixel", "pixels have 1, 2 or 4 bits"},
    RuleText{Rule::kColorFlag, "color-flag",
             "the job record's colour flag is 0, in colour jobs too"},
    RuleText{Rule::kDate, "date", "the packed date is a day and a time that exist"},
    RuleText{Rule::kMediaCode, "media-code", "the media size code is a known one"},
    RuleText{Rule::kTrayCode, "tray-code", "the input tray code is a known one"},
    RuleText{Rule::kPaperCode, "paper-code", "the paper type code is a known one"},
    RuleText{Rule::kChannels, "channels", "a page has 1 or 4 planes"},
    RuleText{Rule::kPageRowBits, "page-row-bits", "a row's bits are a multiple of 128"},
    RuleText{Rule::kBandFlags, "band-flags", "no flag but first band and last band is set"},
    RuleText{Rule::kBandPlane, "band-plane", "a band is of one plane, and of one of its page"},
    RuleText{Rule::kBandRows, "band-rows", "a band has 1 to 256 rows"},
    RuleText{Rule::kBandLength, "band-length",
             "a band's length is a multiple of 16 bytes, and what its rows can take"},
    RuleText{Rule::kBlankFlag, "blank-flag",
             "the page-blank flag is 0 or 1, and 0 where the last band's flag is not set"},
    RuleText{Rule::kBandRowBits, "band-row-bits", "a band's row bits are those of its page record"},
    RuleText{Rule::kBandOrder, "band-order",
             "bands come step by step: black, cyan 6, magenta 12 and yellow 18 bands behind"},
    RuleText{Rule::kFirstFlag, "first-flag", "each plane's band 0, and no other, is flagged first"},
    RuleText{Rule::kLastFlag, "last-flag", "the page's last band, and no other, is flagged last"},
    RuleText{Rule::kBandHeight, "band-height", "only a plane's last band has less than 256 rows"},
    RuleText{Rule::kBandData, "band-data", "a band decodes to exactly its rows"},
    RuleText{Rule::kClearRow, "clear-row", "a band's first row begins with the clear-row command"},
    RuleText{
        Rule::kRecordMinimum, "record-minimum",
        "a row record has 0 or at least 8 code words, unless it is the last and has padding alone"},
    RuleText{Rule::kTrailer, "trailer", "the page's last band ends with the trailer"},
    RuleText{Rule::kBandEnd, "band-end", "nothing follows a band's last row but a trailer"},
    RuleText{Rule::kRowSlack, "row-slack", "a row's last 32 bits are zero"},
    RuleText{Rule::kPageNumber, "page-number",
             "page numbers count from 0; only a filler page at the end leaves one out"},
    RuleText{Rule::kBandCount, "band-count", "the band count is (rows + 257) / 256"},
    RuleText{Rule::kPageRows, "page-rows",
             "every plane has as many rows as the page record says, but see steps-left-out"},
    RuleText{Rule::kPageEnd, "page-end",
             "a page with bands has its last band, but see steps-left-out"},
    RuleText{Rule::kNoPages, "no-pages", "a job has a page", true},
    RuleText{Rule::kNotCompressed, "not-compressed", "every band was compressed and has its data",
             true},
    RuleText{Rule::kCodecHabit, "codec-habit",
             "bands hold no code that this project's writer never writes", true},
    RuleText{Rule::kWideRows, "wide-rows", "rows are as long as the paper's width suggests", true},
    RuleText{Rule::kStepsLeftOut, "steps-left-out",
             "no band is left out, as of a page of 256 k + 1 rows", true},
    RuleText{Rule::kBlankContent, "blank-content",
             "the page-blank flag agrees with the planes; a screen may ink level 0", true},
    RuleText{Rule::kPaperSize, "paper-size",
             "the pixels are those of the paper at 600 dots an inch", true},
};

}  // namespace

std::span<const RuleText> allRules() {
  return kRules;
}

const RuleText& textOf(Rule rule) {
  return kRules[static_cast<std::size_t>(rule)];
}

std::string lineOf(const Finding& finding) {
  std::string line = "offset " + std::to_string(finding.offset) + ": ";
  line.append(finding.record).append(finding.remark() ? ": note " : ": ");
  line.append(textOf(finding.rule).name).append(": ").append(finding.text);
  return line;
}

}  // namespace gdi::reader
