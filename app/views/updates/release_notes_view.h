#pragma once

#include <quillon/app/views/components/theme_source.h>

#include <QTextBrowser>

#include <string>

namespace quillon {

/// Notes as `ReleaseNotes` makes them, to be scrolled and to be gone through with the keyboard. Loads
/// nothing.
class ReleaseNotesView : public QTextBrowser {
    Q_OBJECT

  public:
    ReleaseNotesView(ThemeSource& themes, const std::string& notes, QWidget* parent = nullptr);

    QVariant loadResource(int, const QUrl&) override { return {}; }

  private:
    void wearTheme();

    ThemeSource& m_themes;
    QString m_notes;
    Subscription m_subscription;
};

} // namespace quillon
