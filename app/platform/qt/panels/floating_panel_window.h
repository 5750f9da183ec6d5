#pragma once

#include "panel_shadow.h"
#include "panel_windows.h"

#include <quillon/app/ports/floating_panel.h>
#include <quillon/app/ports/panel_content.h>

#include <QPropertyAnimation>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace quillon {

/// A borderless, rounded window above all others that the window manager does not manage. It never has the
/// keyboard unless it asked for it with `makeKey`.
class FloatingPanelWindow : public QWidget, public FloatingPanel {
    Q_OBJECT

  public:
    /// `windows` outlives the panel. Edge and shadow have the colours that the toolkit's palette has for
    /// them (`Mid`, `Shadow`).
    FloatingPanelWindow(PanelContent content, PanelWindows& windows);
    ~FloatingPanelWindow() override;

    void prepare() override;
    void setFrame(Rect frame) override;
    void orderFront() override;
    void makeKey() override;
    void orderOut() override;
    void fadeIn(Seconds time) override;
    void fadeOut(Seconds time) override;
    bool isVisible() const override { return QWidget::isVisible(); }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    enum class Keyboard {
        elsewhere, ///< with another window
        wanted,    ///< asked for; the window is not on the screen yet
        asked,     ///< asked for; not known to have arrived
        here
    };

    void prepareWindow();
    void showAtOpacity(double opacity);
    void fadeTo(double opacity, Seconds time);
    void followCompositing();
    void applyShape();
    WindowShape shape() const;
    void takeKeyboard();
    void returnKeyboard();
    void loseKeyboard();
    void resign();
    int shadowReach() const;

    PanelWindows& m_windows;
    PanelContent m_content;
    Rect m_frame;
    bool m_isPrepared = false;
    Keyboard m_keyboard = Keyboard::elsewhere;
    bool m_owesKeyboard = false; ///< took it and has not given it back, even if it has lost it since
    QTimer m_return;
    QPropertyAnimation m_fade; ///< of the window's opacity; runs only while it changes
    PanelShadow m_shadow;
    Subscription m_compositing;
    Subscription m_presses;
};

} // namespace quillon
