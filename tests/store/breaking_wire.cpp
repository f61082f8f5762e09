#include "store/breaking_wire.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace store {
namespace {

constexpr const char* socketName = ".s.PGSQL.5432";

int socketAt(const std::filesystem::path& path, int (*join)(int, const sockaddr*, socklen_t)) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.string().copy(address.sun_path, sizeof address.sun_path - 1);
  const int result = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (join(result, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    throw std::runtime_error("no socket at " + path.string());
  }
  return result;
}

bool readable(int file) {
  pollfd input{file, POLLIN, 0};
  return ::poll(&input, 1, 20) > 0;
}

std::string take(int from) {
  std::array<char, 65536> buffer;
  const ssize_t size = ::read(from, buffer.data(), buffer.size());
  return size > 0 ? std::string(buffer.data(), static_cast<std::size_t>(size)) : "";
}

bool give(int to, const std::string& data) {
  return ::send(to, data.data(), data.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(data.size());
}

}  // namespace

BreakingWire::BreakingWire(const std::filesystem::path& folder, const std::string& server)
    : path_(folder / socketName), server_(server), listener_(socketAt(path_, ::bind)) {
  ::listen(listener_, 8);
  accepting_ = std::thread([this] { accept(); });
}

BreakingWire::~BreakingWire() {
  over_ = true;
  accepting_.join();
  for (std::thread& carrier : carriers_) carrier.join();
  ::close(listener_);
}

void BreakingWire::breakAt(const std::string& text, Break where, bool comesBack) {
  const std::lock_guard guard(lock_);
  text_ = text;
  where_ = where;
  comesBack_ = comesBack;
}

void BreakingWire::accept() {
  while (!over_) {
    if (!readable(listener_)) continue;
    const int client = ::accept(listener_, nullptr, nullptr);
    if (gone_) {
      ::close(client);
    } else {
      carriers_.emplace_back([this, client] { carry(client); });
    }
  }
}

void BreakingWire::carry(int client) {
  const int server = socketAt(std::filesystem::path(server_) / socketName, ::connect);
  bool broken = false, answer = false, quiet = false;
  while (!over_ && !broken) {
    if (readable(client)) {
      const std::string data = take(client);
      const std::lock_guard guard(lock_);
      const bool here = where_ != Break::Never && data.find(text_) != std::string::npos;
      if (here) gone_ = !comesBack_;
      broken = data.empty() || (here && where_ == Break::BeforeItArrives) || !give(server, data);
      answer = here && where_ == Break::BehindItsAnswer;
      quiet |= here && where_ == Break::QuietFromHere;
      if (here) where_ = Break::Never;
    }
    while (quiet && !over_ && !readable(client)) continue;
    while (!broken && (answer || readable(server))) {  // the answer that nobody gets is waited for
      const std::string data = take(server);
      broken = data.empty() || answer || !give(client, data);
    }
  }
  ::close(server);
  ::close(client);
}

}  // namespace store
