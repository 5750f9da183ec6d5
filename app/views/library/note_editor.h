#pragma once

#include <quillon/app/views/components/theme_source.h>
#include <quillon/kit/base/subscription.h>

#include <QDialog>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace quillon {

/// The note of one command, to be written: Ctrl+Return or "Save" keeps it, Esc or "Cancel" leaves it as it
/// was. Deleted when it closes.
class NoteEditor : public QDialog {
    Q_OBJECT

  public:
    /// `title` is that of the command, `note` what was noted so far; both may be of any length.
    NoteEditor(ThemeSource& themes, const QString& title, const QString& note, QWidget* parent);

  Q_SIGNALS:
    /// The note is to be this from now on: without white space and line breaks at its ends.
    void saved(const QString& note);

  private:
    void setUpField(const QString& title, const QString& note);
    void addTexts(QVBoxLayout& column, const QString& title);
    void addButtons(QVBoxLayout& column);
    void saveOnCtrlReturn();
    QSize firstSize() const;

    void save();
    void wearTheme();
    void showMenu(const QPoint& position);

    ThemeSource& m_themes;
    QPlainTextEdit* m_field;
    Subscription m_themeChange;
};

} // namespace quillon
