#pragma once

#include "update_texts.h"

#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/components/themed_label.h>

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace quillon {

/// A message with the program's mark and a row of buttons; each of them closes it, as Esc does. Deleted when
/// it closes.
class UpdateWindow : public QDialog {
    Q_OBJECT

  public:
    UpdateWindow(ThemeSource& themes, const UpdateTexts::Message& message);

    /// Adds a button behind the others: what it is to do beside closing the window.
    void addButton(const QString& label, std::function<void()> pressed = {});
    /// The same for the one that the window wants to be pressed, by the Return key too.
    void addProminentButton(const QString& label, std::function<void()> pressed = {});

  protected:
    const Theme& theme() const { return m_themes.theme(); }
    ThemeSource& themes() const { return m_themes; }
    /// Puts something between the message and the buttons, as large as the window lets it be.
    void addContent(QWidget* content);

    /// Another theme is in force.
    virtual void themeChanged();

  private:
    void add(QPushButton* button, std::function<void()> pressed);

    ThemeSource& m_themes;
    QLabel* m_mark;
    QVBoxLayout* m_texts;
    QHBoxLayout* m_buttons;
    Subscription m_subscription;
};

} // namespace quillon
