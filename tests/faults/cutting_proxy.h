#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace test {

/// Stands between a driver and a PostgreSQL server, at a socket of its own, and passes on what they say to
/// each other, message by message, until one of them is to go wrong.
///
/// Messages are counted in both directions together. The greeting at the end of a connection is none: it
/// comes when nobody waits for it any more.
class CuttingProxy {
 public:
  /// What becomes of the message that the cut is at.
  enum class Passed {
    Nothing,  ///< it never arrives
    Half,     ///< its first half does
    Whole     ///< it arrives, and is the last
  };

  /// Where the connection is cut, and how.
  struct Cut {
    std::int64_t at = 1;  ///< number of the message, counted from 1
    Passed passed = Passed::Nothing;
    bool forGood = false;                       ///< nobody gets through after it
    std::function<void()> otherwise = nullptr;  ///< done just before the connection is cut
  };

  /// Both folders hold, or get, the socket of a server at the usual port.
  CuttingProxy(const std::string& serverFolder, const std::string& ownFolder);
  ~CuttingProxy();
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;

  /// Counts from here on, and cuts there.
  void arm(const Cut& cut);
  /// Cuts nothing any more, and lets everybody through. Returns whether it has cut since arm.
  bool disarm();
  /// How many messages have come since arm.
  std::int64_t count() const;

 private:
  class Line;

  void work();
  void admit();
  bool passes(Line& line, bool toServer);
  bool strike(Line& line, bool toServer, const std::string& message);
  bool isShut() const;

  std::string server_;
  int listener_ = -1;
  int stop_[2] = {-1, -1};
  std::vector<std::unique_ptr<Line>> lines_;
  mutable std::mutex guard_;  // of all below
  Cut cut_;
  bool armed_ = false;
  bool struck_ = false;
  std::int64_t count_ = 0;
  std::thread worker_;
};

}  // namespace test
