// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/screenquality/Spectrum.h"

#include <algorithm>
#include <cstddef>
#include <mutex>

#include <fftw3.h>

namespace gdi::screenquality {
namespace {

// The library's plans are made and destroyed by one thread at a time.
std::mutex& planning() {
  static std::mutex mutex;
  return mutex;
}

}  // namespace

struct Spectrum::Plans {
  fftw_plan forward = nullptr;
  fftw_plan backward = nullptr;
};

Spectrum::Spectrum(const Tile& field)
    : field_(field),
      values_(field.size()),
      waves_((static_cast<std::size_t>(field.width) / 2 + 1) *
             static_cast<std::size_t>(field.height)),
      plans_(std::make_unique<Plans>()) {
  const std::lock_guard alone(planning());
  // The library's complex number is laid out as the language's.
  auto* waves = reinterpret_cast<fftw_complex*>(waves_.data());  // NOLINT
  plans_->forward =
      fftw_plan_dft_r2c_2d(field.height, field.width, values_.data(), waves, FFTW_ESTIMATE);
  plans_->backward =
      fftw_plan_dft_c2r_2d(field.height, field.width, waves, values_.data(), FFTW_ESTIMATE);
}

Spectrum::~Spectrum() {
  const std::lock_guard alone(planning());
  fftw_destroy_plan(plans_->forward);
  fftw_destroy_plan(plans_->backward);
}

void Spectrum::transform(std::span<const double> field) {
  std::copy(field.begin(), field.end(), values_.begin());
  fftw_execute(plans_->forward);
}

double Spectrum::varianceSeen(std::span<const double> field, std::span<const double> shares) {
  transform(field);
  return varianceOfWaves(shares);
}

std::array<double, 2> Spectrum::variancesSeen(std::span<const double> field,
                                              std::span<const double> shares,
                                              std::span<const double> otherShares) {
  transform(field);
  return {varianceOfWaves(shares), varianceOfWaves(otherShares)};
}

double Spectrum::varianceOfWaves(std::span<const double> shares) const {
  const auto columns = static_cast<std::size_t>(field_.width) / 2 + 1;
  double sum = 0.0;
  for (std::size_t i = 1; i < waves_.size(); ++i) {
    const std::size_t column = i % columns;
    // The half that is left out mirrors all columns but the first and, of an even width, the last.
    const bool alone = column == 0 || 2 * column == static_cast<std::size_t>(field_.width);
    sum += (alone ? 1.0 : 2.0) * std::norm(waves_[i]) * shares[i] * shares[i];
  }
  const auto count = static_cast<double>(field_.size());
  return sum / (count * count);
}

std::vector<double> Spectrum::seen(std::span<const double> field, std::span<const double> shares) {
  transform(field);
  const auto count = static_cast<double>(field_.size());
  for (std::size_t i = 0; i < waves_.size(); ++i) {
    waves_[i] *= shares[i] / count;
  }
  fftw_execute(plans_->backward);
  return values_;
}

}  // namespace gdi::screenquality
