// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <cstdlib>
#include <random>
#include <string>

namespace nautrel {

/// How long a proof by chance goes on: always the same rounds in a short run, or as many as fit
/// into the NAUTREL_SECONDS of a long one.
class Budget {
 public:
  explicit Budget(int rounds) : rounds_(rounds), seconds_(std::getenv("NAUTREL_SECONDS")) {}
  bool allows(int round) const {
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin_;
    return seconds_ == nullptr ? round < rounds_ : passed.count() < std::stod(seconds_);
  }

 private:
  int rounds_;
  const char* seconds_;
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

/// Where its chances begin: NAUTREL_SEED; else at 1 in a short run, anywhere in a long one.
inline unsigned seedOfRun() {
  if (const char* told = std::getenv("NAUTREL_SEED"))
    return static_cast<unsigned>(std::stoul(told));
  return std::getenv("NAUTREL_SECONDS") == nullptr ? 1 : std::random_device{}() % 1'000'000;
}

}  // namespace nautrel
