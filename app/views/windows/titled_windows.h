#pragma once

#include <quillon/app/ports/foreground.h>
#include <quillon/app/ports/windows.h>
#include <quillon/kit/base/subscription.h>

#include <QPointer>
#include <QSize>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>

namespace quillon {

/// What Esc does in a window whose content has no use for it.
enum class EscapeKey { closes, doesNothing };

/// What a window shows.
struct WindowContent {
    /// Makes the view, each time that the window is opened anew. Not null.
    std::function<std::unique_ptr<QWidget>()> make;
    /// Of the view when the window opens, in logical pixels. Larger where the view says that it needs more,
    /// smaller on a small screen.
    QSize size;
    EscapeKey escape = EscapeKey::closes;
};

/// The program's titled windows: one of each, made when it is asked for and gone when it is closed.
class TitledWindows final : public Windows {
  public:
    /// `foreground` outlives the windows.
    explicit TitledWindows(Foreground& foreground) : m_foreground(foreground) {}
    TitledWindows(const TitledWindows&) = delete;
    TitledWindows& operator=(const TitledWindows&) = delete;
    /// No window is left.
    ~TitledWindows() override;

    /// The window is on offer while the handle lives; when that ends, an open one is gone. At most one
    /// content at a time for each window.
    Subscription offer(WindowName name, WindowContent content);

    void open(WindowName name) override;
    bool offers(WindowName name) const override { return m_contents.contains(name); }
    bool hasKeyboard(WindowName name) const override;

    /// The open window; null when it is not open.
    QWidget* window(WindowName name) const;

  private:
    QWidget& make(WindowName name, const WindowContent& content);
    void withdraw(WindowName name);

    Foreground& m_foreground;
    std::map<WindowName, WindowContent> m_contents;
    std::map<WindowName, QPointer<QWidget>> m_open;
};

} // namespace quillon
