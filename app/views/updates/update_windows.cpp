#include "update_windows.h"

#include "release_window.h"

#include <quillon/app/views/components/text.h>

#include <utility>

namespace quillon {

UpdateWindows::UpdateWindows(Needs needs) : m_needs(std::move(needs)), m_version(text(m_needs.version)) {}

UpdateWindows::~UpdateWindows() {
    delete m_message;
    delete m_release;
}

void UpdateWindows::tell(UpdateNotice notice) {
    UpdateWindow& message = makeMessage(UpdateTexts::notice(notice, m_version));
    if (notice == UpdateNotice::withSystem && m_needs.pages.hasSoftwareCentre())
        message.addButton(UpdateTexts::openSoftwareCentre(), [this] {
            if (!m_needs.pages.openSoftwareCentre())
                tellFailure(UpdateTexts::centreNotOpened());
        });
    message.addProminentButton(UpdateTexts::ok());
    present(message);
}

/// The latest message is the one that is true. It may be asked for by a button of the one before, which then
/// still has to return.
UpdateWindow& UpdateWindows::makeMessage(const UpdateTexts::Message& message) {
    if (m_message)
        m_message->close();
    m_message = new UpdateWindow(m_needs.themes, message);
    return *m_message;
}

void UpdateWindows::present(UpdateWindow& window) {
    window.show();
    m_needs.foreground.bring(window.winId());
}

void UpdateWindows::tellFailure(const UpdateTexts::Message& message) {
    UpdateWindow& window = makeMessage(message);
    window.addProminentButton(UpdateTexts::ok());
    present(window);
}

void UpdateWindows::offer(const Release& release, Occasion occasion) {
    const bool isOpen = m_release && m_release->isVisible() && m_release->version() == release.shownVersion;
    ReleaseWindow& window = isOpen ? *m_release : makeReleaseWindow(release);
    if (occasion == Occasion::asked) {
        present(window);
    } else if (!isOpen) {
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.show();
    }
}

ReleaseWindow& UpdateWindows::makeReleaseWindow(const Release& release) {
    delete m_release;
    m_release = new ReleaseWindow(m_needs.themes, m_needs.pages, release, m_version);
    QObject::connect(m_release, &QDialog::finished, m_release, [this, version = release.shownVersion] {
        m_needs.dismissed(version);
    });
    QObject::connect(
        m_release, &ReleaseWindow::failed, m_release,
        [this](const UpdateTexts::Message& message) { tellFailure(message); });
    return *m_release;
}

} // namespace quillon
