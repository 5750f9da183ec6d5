#pragma once

#include <QProcess>
#include <QStringList>

#include <string>

namespace quillon {

/// An X server of its own, without a window manager, as long as this object lives.
class XServer {
  public:
    explicit XServer(const QStringList& options = {});
    ~XServer();

    /// What clients connect to, such as ":7"; empty when the server did not start.
    const std::string& display() const { return m_display; }
    /// Ends it at once, as a crash does.
    void kill();

  private:
    QProcess m_process;
    std::string m_display;
};

} // namespace quillon
