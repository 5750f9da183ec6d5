#pragma once

#include <quillon/app/views/components/form_group.h>
#include <quillon/app/views/components/theme_source.h>

#include <QWidget>

class QVBoxLayout;

namespace quillon {

/// What lies behind one tab of the settings: groups of rows, one below the other.
class SettingsPage : public QWidget {
    Q_OBJECT

  public:
    explicit SettingsPage(ThemeSource& themes, QWidget* parent = nullptr);

    /// How high it is depends on its width alone.
    QSize minimumSizeHint() const override { return {QWidget::minimumSizeHint().width(), 0}; }

  protected:
    ThemeSource& themes() const { return m_themes; }
    FormGroup* addGroup();
    /// Appends something that stands by itself; it becomes the page's.
    void addBelow(QWidget* widget);

  private:
    ThemeSource& m_themes;
    QVBoxLayout* m_groups;
};

} // namespace quillon
