#pragma once

#include <quillon/tests/support/system/temporary_folder.h>

#include <string>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {

/// A socket where a bus should be: it takes connections, as the system does for whoever listens, and never
/// answers.
class MuteBus {
  public:
    MuteBus() : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        path().copy(place.sun_path, sizeof place.sun_path - 1);
        m_isListening = ::bind(m_socket, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0
                        && ::listen(m_socket, 8) == 0;
    }
    MuteBus(const MuteBus&) = delete;
    MuteBus& operator=(const MuteBus&) = delete;
    ~MuteBus() { ::close(m_socket); }

    bool isListening() const { return m_isListening; }
    std::string address() const { return "unix:path=" + path(); }

  private:
    std::string path() const { return (m_folder.path() / "bus").string(); }

    TemporaryFolder m_folder;
    int m_socket;
    bool m_isListening = false;
};

} // namespace quillon
