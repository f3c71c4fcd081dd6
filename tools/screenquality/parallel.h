// SPDX-FileCopyrightText: 2026 The rasterToGDI authors
// SPDX-License-Identifier: Apache-2.0

// Work that falls into independent parts, on all of the machine's cores.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>
#include <thread>
#include <vector>

namespace gdi::screenquality {

// Calls work(0) to work(count - 1), several at once and in no certain order. The first exception
// of a worker comes out when all have ended.
template <typename Work>
void inParallel(std::size_t count, const Work& work) {
  std::atomic<std::size_t> next{0};
  const std::size_t workers =
      std::min<std::size_t>(count, std::max(1U, std::thread::hardware_concurrency()));
  std::vector<std::future<void>> running;
  for (std::size_t i = 0; i < workers; ++i) {
    running.push_back(std::async(std::launch::async, [&] {
      for (std::size_t part = next++; part < count; part = next++) {
        work(part);
      }
    }));
  }
  for (std::future<void>& worker : running) {
    worker.wait();
  }
  for (std::future<void>& worker : running) {
    worker.get();
  }
}

}  // namespace gdi::screenquality
