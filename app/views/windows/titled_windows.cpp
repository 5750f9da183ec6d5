#include "titled_windows.h"

#include "titled_window.h"

#include <utility>

namespace quillon {

TitledWindows::~TitledWindows() {
    while (!m_contents.empty())
        withdraw(m_contents.begin()->first);
}

Subscription TitledWindows::offer(WindowName name, WindowContent content) {
    m_contents.insert_or_assign(name, std::move(content));
    return Subscription([this, name] { withdraw(name); });
}

void TitledWindows::withdraw(WindowName name) {
    m_contents.erase(name);
    if (const auto found = m_open.extract(name); !found.empty())
        delete found.mapped();
}

QWidget* TitledWindows::window(WindowName name) const {
    const auto found = m_open.find(name);
    return found == m_open.end() ? nullptr : found->second.data();
}

QWidget& TitledWindows::make(WindowName name, const WindowContent& content) {
    auto* made = new TitledWindow(name, content.make(), content.size, content.escape);
    m_open[name] = made;
    return *made;
}

void TitledWindows::open(WindowName name) {
    const auto content = m_contents.find(name);
    if (content == m_contents.end())
        return;
    QWidget* const existing = window(name);
    // One that was closed a moment ago is still there, hidden; it goes soon.
    QWidget& shown = existing && existing->isVisible() ? *existing : make(name, content->second);
    shown.setWindowState(shown.windowState() & ~Qt::WindowMinimized);
    shown.show();
    shown.raise();
    shown.activateWindow();
    m_foreground.bring(shown.winId());
}

bool TitledWindows::hasKeyboard(WindowName name) const {
    const QWidget* const open = window(name);
    return open && open->isActiveWindow();
}

} // namespace quillon
