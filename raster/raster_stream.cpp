// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "raster/raster_stream.h"

#include <fcntl.h>

namespace gdi {

namespace {

// Lets a pipe take ten lines at once: reader and writer then wait for each other a hundredth as
// often. Left as it is when the system does not let it grow, and when it is no pipe.
void widenPipe([[maybe_unused]] int descriptor) {
#ifdef F_SETPIPE_SZ
  constexpr int kPipeBytes = 1 << 18;
  const int bytes = fcntl(descriptor, F_GETPIPE_SZ);
  if (bytes >= 0 && bytes < kPipeBytes) {
    (void)fcntl(descriptor, F_SETPIPE_SZ, kPipeBytes);
  }
#endif
}

class CupsRasterStream : public RasterStream {
 public:
  explicit CupsRasterStream(int descriptor)
      : raster_(cupsRasterOpen(descriptor, CUPS_RASTER_READ)) {
    widenPipe(descriptor);
  }
  ~CupsRasterStream() override {
    if (raster_ != nullptr) {
      cupsRasterClose(raster_);
    }
  }
  CupsRasterStream(const CupsRasterStream&) = delete;
  CupsRasterStream& operator=(const CupsRasterStream&) = delete;

  bool readHeader(cups_page_header_t& header) override {
    cups_page_header_t next;
    // The header's first version is all that the filter uses; later fields would go unread.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    const bool read = raster_ != nullptr && cupsRasterReadHeader(raster_, &next) != 0;
#pragma GCC diagnostic pop
    if (read) {
      header = next;
    }
    return read;
  }

  unsigned readPixels(std::span<std::uint8_t> line) override {
    return cupsRasterReadPixels(raster_, line.data(), static_cast<unsigned>(line.size()));
  }

 private:
  cups_raster_t* raster_;
};

}  // namespace

std::unique_ptr<RasterStream> openRasterStream(int descriptor) {
  return std::make_unique<CupsRasterStream>(descriptor);
}

}  // namespace gdi
