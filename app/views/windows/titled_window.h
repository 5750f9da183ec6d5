#pragma once

#include "titled_windows.h"

#include <QMainWindow>
#include <QSize>
#include <QWidget>

#include <memory>

namespace quillon {

/// A window with the title that belongs to its name, around one view. It goes, and the view with it, when it
/// is closed: by the window manager, Ctrl W or, where it does so, Esc.
class TitledWindow final : public QMainWindow {
    Q_OBJECT

  public:
    TitledWindow(WindowName name, std::unique_ptr<QWidget> content, QSize contentSize, EscapeKey escape);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QSize sizeFor(QSize contentSize) const;

    QWidget* m_content;
    EscapeKey m_escape;
};

} // namespace quillon
