// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// The last stage: turns the planes into the printer's job stream on standard output.
//
// The stream: prologue; job and host record at the first page; a page record and that page's band
// records for each page; the end-of-job mark. docs/job-stream.md has the bytes.
#pragma once

#include <cstdint>
#include <span>

#include "halftone/PlanarFilter.h"
#include "printer/band_record.h"
#include "printer/job_records.h"

namespace gdi {

// Bytes of the band compressor's seed row; no plane row may be wider.
inline constexpr std::uint32_t kSeedBufferBytes = 28672;

class GDIFilter : public PlanarFilter {
 public:
  bool init() override;
  bool startJob() override;
  // Decides orientation and geometry before the superclass makes the planes.
  bool startPage(std::uint32_t page) override;
  // Sends a band step whenever a band of black rows is complete, all that are left at the last
  // line.
  bool sendRaster() override;
  bool endPage(std::uint32_t page) override;
  // Adds the blank back side of an odd-sided duplex job, then the end-of-job mark.
  bool endJob() override;

 protected:
  // Compresses a band into the compression buffer and answers as qbx_Compress_PC4SC4 does; a test
  // may bring its own.
  virtual std::uint32_t compress(const std::uint8_t* band, std::uint32_t byteCount, bool lastBand);
  // Runs the band steps that are left of a page; none, and true, when it has neither 1 nor 4
  // channels. requires: a started page
  bool sendBandsLeft();

 private:
  // GDIFilter.cpp: page set-up
  void orientPage(std::uint32_t page);
  void setPlaneGeometry();
  bool allocBandBuffers();
  [[nodiscard]] bool rowFitsPrinter() const;
  bool startPlanes(std::uint32_t page);
  bool sendJobHeaders();
  bool sendPageRecord(std::uint32_t page);
  void setPageOptions(PageRecordFields& record) const;

  // GDIFilterBands.cpp: the image
  void resetBands();
  bool sendBand();
  bool sendPlaneBand(Plane plane, int& bandIndex, bool lastBand);
  std::uint32_t compressBand(RasterBandBuffer& buffer, int bandIndex, bool lastBand);
  [[nodiscard]] RasterBandBuffer* planeBuffer(Plane plane) const;
  [[nodiscard]] bool planeHasBand(Plane plane, int bandIndex) const;
  bool blankPage();
  bool sendBlankPage();
  bool sendBlankLines();

  // GDIFilterOutput.cpp: the one way to standard output. False only after the job was cancelled,
  // because until then a failed write is reported every 0.1 s.
  bool sendData(std::span<const std::uint8_t> data);
  bool flushData();
  bool reportFailedWrite();

  bool sentJobHeaders = false;     // job and host record were attempted for this job
  int cBandIndex = 0;              // next cyan band; below 0 while it lags behind black
  int mBandIndex = 0;              // next magenta band, as above
  int yBandIndex = 0;              // next yellow band, as above
  int kBandIndex = 0;              // next black band
  ZeroedBuffer seedBuffer;         // scratch row of the band compressor
  ZeroedBuffer compressionBuffer;  // one compressed band
  ZeroedBuffer blankBand;  // the rows of a band without ink; takes no memory, being read only
  std::uint32_t compressionSize = 0;  // bytes of compressionBuffer
  bool forceSimplex = false;          // carried, without a meaning
};

}  // namespace gdi
