#include "cutting_proxy.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>

namespace test {
namespace {

constexpr const char* socketName = "/.s.PGSQL.5432";
constexpr char goodbye = 'X';

sockaddr_un addressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) throw std::runtime_error("too long for a socket: " + path);
  path.copy(address.sun_path, path.size());
  return address;
}

/// A connection to the server; -1 where it does not answer.
int connectTo(const std::string& path) {
  const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = addressOf(path);
  if (connect(end, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return end;
  close(end);
  return -1;
}

int listenAt(const std::string& path) {
  const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = addressOf(path);
  if (bind(end, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || listen(end, 8) != 0)
    throw std::runtime_error("cannot listen at " + path);
  return end;
}

bool sendAll(int end, const std::string& bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const ssize_t sent = send(end, bytes.data() + at, bytes.size() - at, MSG_NOSIGNAL);
    if (sent <= 0) return false;
    at += static_cast<std::size_t>(sent);
  }
  return true;
}

}  // namespace

/// A connection of the driver with the one to the server that belongs to it.
class CuttingProxy::Line {
 public:
  Line(int driver, int server) : driver_(driver), server_(server) {}
  ~Line() {
    close(driver_);
    close(server_);
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  int from(bool toServer) const { return toServer ? driver_ : server_; }
  int to(bool toServer) const { return toServer ? server_ : driver_; }

  /// Takes what has come from that side; false where the side has ended.
  bool receive(bool toServer) {
    std::array<char, 65536> room{};
    const ssize_t got = recv(from(toServer), room.data(), room.size(), 0);
    if (got <= 0) return false;
    waiting(toServer).append(room.data(), static_cast<std::size_t>(got));
    return true;
  }

  /// The next whole message from that side. The driver's first one bears no letter for its kind.
  std::optional<std::string> next(bool toServer) {
    std::string& bytes = waiting(toServer);
    const std::size_t head = toServer && !greeted_ ? 0 : 1;
    if (bytes.size() < head + 4) return std::nullopt;
    std::size_t length = head;
    std::size_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) number = number << 8U | static_cast<unsigned char>(bytes[head + i]);
    length += number;
    if (bytes.size() < length) return std::nullopt;
    std::string message = bytes.substr(0, length);
    bytes.erase(0, length);
    greeted_ = greeted_ || toServer;
    return message;
  }

 private:
  std::string& waiting(bool toServer) { return toServer ? fromDriver_ : fromServer_; }

  int driver_;
  int server_;
  bool greeted_ = false;
  std::string fromDriver_;
  std::string fromServer_;
};

CuttingProxy::CuttingProxy(const std::string& serverFolder, const std::string& ownFolder)
    : server_(serverFolder + socketName), listener_(listenAt(ownFolder + socketName)) {
  if (pipe2(stop_, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  worker_ = std::thread([this] { work(); });
}

CuttingProxy::~CuttingProxy() {
  close(stop_[1]);
  worker_.join();
  close(stop_[0]);
  close(listener_);
}

void CuttingProxy::arm(const Cut& cut) {
  const std::lock_guard<std::mutex> lock(guard_);
  cut_ = cut;
  armed_ = true;
  struck_ = false;
  count_ = 0;
}

bool CuttingProxy::disarm() {
  const std::lock_guard<std::mutex> lock(guard_);
  armed_ = false;
  return struck_;
}

std::int64_t CuttingProxy::count() const {
  const std::lock_guard<std::mutex> lock(guard_);
  return count_;
}

bool CuttingProxy::isShut() const {
  const std::lock_guard<std::mutex> lock(guard_);
  return armed_ && struck_ && cut_.forGood;
}

void CuttingProxy::work() {
  for (;;) {
    std::vector<pollfd> ends{{stop_[0], POLLIN, 0}, {listener_, POLLIN, 0}};
    for (const auto& line : lines_)
      for (const bool toServer : {true, false}) ends.push_back({line->from(toServer), POLLIN, 0});
    poll(ends.data(), ends.size(), -1);
    if (ends[0].revents != 0) return lines_.clear();
    for (std::size_t i = lines_.size(); i-- > 0;) {
      bool goesOn = true;
      for (const bool toServer : {true, false})
        if (goesOn && ends[2 + 2 * i + (toServer ? 0 : 1)].revents != 0)
          goesOn = passes(*lines_[i], toServer);
      if (!goesOn) lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(i));
    }
    if (ends[1].revents != 0) admit();
  }
}

void CuttingProxy::admit() {
  const int driver = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
  const int server = isShut() ? -1 : connectTo(server_);
  if (server >= 0)
    lines_.push_back(std::make_unique<Line>(driver, server));
  else
    close(driver);
}

/// False where the line has ended.
bool CuttingProxy::passes(Line& line, bool toServer) {
  if (!line.receive(toServer)) return false;
  while (const auto message = line.next(toServer))
    if (strike(line, toServer, *message) || !sendAll(line.to(toServer), *message)) return false;
  return true;
}

/// True where it is here that the line is cut.
bool CuttingProxy::strike(Line& line, bool toServer, const std::string& message) {
  const std::lock_guard<std::mutex> lock(guard_);
  if (!armed_ || (toServer && message.front() == goodbye)) return false;
  if (++count_ != cut_.at) return false;
  struck_ = true;
  if (cut_.otherwise) cut_.otherwise();
  if (cut_.passed == Passed::Half) sendAll(line.to(toServer), message.substr(0, message.size() / 2));
  if (cut_.passed == Passed::Whole) sendAll(line.to(toServer), message);
  return true;
}

}  // namespace test
