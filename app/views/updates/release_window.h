#pragma once

#include "update_window.h"

#include <quillon/app/ports/software_pages.h>

#include <string>

namespace quillon {

struct Release;

/// Shows a newer release: its version, what is new, and where to get it.
class ReleaseWindow : public UpdateWindow {
    Q_OBJECT

  public:
    /// `pages` outlives it. `ownVersion` is this program's.
    ReleaseWindow(
        ThemeSource& themes, SoftwarePages& pages, const Release& release, const QString& ownVersion);

    /// Of the release, as it is shown.
    const std::string& version() const { return m_version; }

  Q_SIGNALS:
    /// Something could not be opened.
    void failed(const quillon::UpdateTexts::Message& message);

  private:
    void addNotes(const Release& release);
    void addWays(const Release& release);
    void open(const std::string& page);
    void openCentre();

    SoftwarePages& m_pages;
    std::string m_version;
};

} // namespace quillon
