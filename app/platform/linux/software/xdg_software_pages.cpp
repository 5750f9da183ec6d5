#include "xdg_software_pages.h"

#include "software_centre.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView opener = "xdg-open"_L1;
/// This program as the catalogues of software know it.
constexpr QLatin1StringView ownPage = "appstream:app.quillon.Quillon"_L1;

bool isInstalled(const std::string& program) {
    return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
}

std::optional<std::string> centre() {
    return softwareCentre(qgetenv("XDG_CURRENT_DESKTOP").toStdString(), isInstalled);
}

} // namespace

bool XdgSoftwarePages::openPage(const std::string& url) {
    const QUrl page(QString::fromStdString(url), QUrl::StrictMode);
    if (!page.isValid() || page.scheme() != "https"_L1 || page.host().isEmpty())
        return false;
    return QProcess::startDetached(opener, {page.toString(QUrl::FullyEncoded)});
}

bool XdgSoftwarePages::hasSoftwareCentre() const {
    return centre().has_value();
}

bool XdgSoftwarePages::openSoftwareCentre() {
    const auto program = centre();
    return program && QProcess::startDetached(QString::fromStdString(*program), {ownPage});
}

} // namespace quillon
