#include "release_window.h"

#include "release_notes_view.h"

#include <quillon/app/core/updates/release.h>
#include <quillon/app/views/components/text.h>

namespace quillon {

namespace {

constexpr QSize smallestNotes(420, 120);
constexpr QSize firstSize(620, 460);

} // namespace

ReleaseWindow::ReleaseWindow(
    ThemeSource& themeSource, SoftwarePages& pages, const Release& release, const QString& ownVersion)
    : UpdateWindow(themeSource, UpdateTexts::newer(text(release.shownVersion), ownVersion)), m_pages(pages),
      m_version(release.shownVersion) {
    if (!release.notes.empty())
        addNotes(release);
    addWays(release);
}

void ReleaseWindow::addNotes(const Release& release) {
    auto* const notes = new ReleaseNotesView(themes(), release.notes, this);
    notes->setAccessibleName(UpdateTexts::notesName(text(release.shownVersion)));
    notes->setMinimumSize(smallestNotes);
    connect(notes, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        open(utf8(link.toString(QUrl::FullyEncoded)));
    });
    addContent(notes);
    resize(firstSize);
}

void ReleaseWindow::addWays(const Release& release) {
    addButton(UpdateTexts::later());
    if (!release.notesPage.empty())
        addButton(UpdateTexts::openReleaseNotes(), [this, page = release.notesPage] { open(page); });
    const bool hasCentre = m_pages.hasSoftwareCentre();
    if (release.page.empty() && hasCentre) {
        addProminentButton(UpdateTexts::openSoftwareCentre(), [this] { openCentre(); });
        return;
    }
    if (hasCentre)
        addButton(UpdateTexts::openSoftwareCentre(), [this] { openCentre(); });
    if (!release.page.empty())
        addProminentButton(UpdateTexts::openPage(), [this, page = release.page] { open(page); });
}

void ReleaseWindow::open(const std::string& page) {
    if (!m_pages.openPage(page))
        Q_EMIT failed(UpdateTexts::pageNotOpened(text(page)));
}

void ReleaseWindow::openCentre() {
    if (!m_pages.openSoftwareCentre())
        Q_EMIT failed(UpdateTexts::centreNotOpened());
}

} // namespace quillon
