#include "xdg_session_start.h"

#include "autostart_entry.h"
#include "paths.h"

#include <quillon/app/platform/linux/base/short_file.h>

#include <QSaveFile>

#include <sstream>
#include <system_error>

namespace quillon {

namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

fs::path entryBelow(const fs::path& config) {
    return config / "autostart" / (std::string(applicationID) + ".desktop");
}

std::vector<fs::path> systemFiles(const Environment& environment) {
    std::string folders = environment("XDG_CONFIG_DIRS");
    if (folders.empty())
        folders = "/etc/xdg";
    std::vector<fs::path> files;
    std::istringstream list(folders);
    for (std::string folder; std::getline(list, folder, ':');)
        if (fs::path(folder).is_absolute())
            files.push_back(entryBelow(folder));
    return files;
}

/// Where the program lies, also after a newer one was put in its place.
fs::path thisExecutable() {
    constexpr std::string_view replaced = " (deleted)";
    std::error_code error;
    std::string path = fs::read_symlink("/proc/self/exe", error).string();
    if (path.ends_with(replaced))
        path.resize(path.size() - replaced.size());
    return path;
}

bool write(const fs::path& file, const std::string& text) {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    QSaveFile saved(QString::fromStdString(file.string()));
    const auto length = static_cast<qint64>(text.size());
    return saved.open(QIODevice::WriteOnly) && saved.write(text.data(), length) == length && saved.commit();
}

} // namespace

XdgSessionStart::Places XdgSessionStart::ownPlaces() {
    return {.executable = thisExecutable(), .sandboxNotice = "/.flatpak-info"};
}

XdgSessionStart::XdgSessionStart(Places places, const Environment& environment)
    : m_isOffered(
        !configHome(environment).empty() && !places.executable.empty() && !isThere(places.sandboxNotice)
        && environment("SNAP").empty()),
      m_ownEntry(autostart::entryFor(autostart::nameOf(places.executable, environment("PATH")))),
      m_file(entryBelow(configHome(environment))), m_systemFiles(systemFiles(environment)) {}

std::optional<std::string> XdgSessionStart::systemEntry() const {
    for (const fs::path& file : m_systemFiles)
        if (isThere(file))
            return readShortFile(file);
    return std::nullopt;
}

/// An entry of the user's hides that of the computer, also where it is none that works.
bool XdgSessionStart::isOn() const {
    const std::optional<std::string> entry = isThere(m_file) ? readShortFile(m_file) : systemEntry();
    return m_isOffered && entry && autostart::startsProgram(*entry);
}

bool XdgSessionStart::setOn(bool on) {
    if (!m_isOffered)
        return false;
    if (on == isOn())
        return true;
    return on ? turnOn() : turnOff();
}

/// What the user wrote into an entry stays, if it works when it is switched on.
bool XdgSessionStart::turnOn() const {
    const auto present = readShortFile(m_file);
    const auto mended = present ? autostart::switched(*present, true) : std::nullopt;
    return write(m_file, mended && autostart::startsProgram(*mended) ? *mended : m_ownEntry);
}

bool XdgSessionStart::turnOff() const {
    const auto system = systemEntry();
    const bool wouldStartAnyway = system && autostart::startsProgram(*system);
    const std::string present = readShortFile(m_file).value_or(m_ownEntry);
    if (wouldStartAnyway || present != m_ownEntry)
        return write(m_file, autostart::switched(present, false).value_or(m_ownEntry));
    std::error_code error;
    return fs::remove(m_file, error);
}

} // namespace quillon
