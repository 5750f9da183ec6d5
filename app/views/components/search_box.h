#pragma once

#include "symbol_view.h"
#include "themed_widget.h"

#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

namespace quillon {

/// The rounded search field with a button that clears it.
class SearchBox : public ThemedWidget {
    Q_OBJECT

  public:
    SearchBox(ThemeSource& themes, const QString& prompt, QWidget* parent = nullptr);

    QString text() const { return m_field->text(); }
    /// Shows another text; `textEdited` is not emitted.
    void setText(const QString& text);

    bool isFocused() const { return m_field->hasFocus(); }
    void focus();
    /// Gives the field a key that was pressed elsewhere, as if it had been typed into it.
    void type(QKeyEvent* event);

    /// Takes an open menu of the field off the screen.
    void closeMenu();

  Q_SIGNALS:
    /// The field's menu is about to open.
    void menuOpening();
    /// The user typed or cleared.
    void textEdited(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void themeChanged() override;

  private:
    void followText(const QString& text);
    void wearTheme();
    void clear();
    void showMenu(const QPoint& globalPosition);

    SymbolView* m_magnifier;
    QLineEdit* m_field;
    QToolButton* m_clear;
    QPointer<QMenu> m_menu;
};

} // namespace quillon
