#include "titled_window.h"

#include "window_texts.h"

#include <quillon/app/views/components/symbols.h>

#include <QCursor>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace quillon {

namespace {

/// What a window manager's frame takes of the screen, at most; in logical pixels.
constexpr QSize frameRoom(16, 48);

/// The room for a window where the user looks.
QSize roomOnScreen() {
    const QScreen* const pointed = QGuiApplication::screenAt(QCursor::pos());
    const QScreen* const screen = pointed ? pointed : QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() - frameRoom : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

/// The program's mark in the sizes that title bars, task bars and switchers of windows take it in.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addPixmap(productMark(size, 1));
    return icon;
}

} // namespace

TitledWindow::TitledWindow(
    WindowName name, std::unique_ptr<QWidget> content, QSize contentSize, EscapeKey escape)
    : m_content(content.release()), m_escape(escape) {
    const std::string_view id = identifier(name);
    setObjectName(QLatin1StringView(id.data(), static_cast<qsizetype>(id.size())));
    setWindowTitle(WindowTexts::title(name));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    setCentralWidget(m_content);
    setContextMenuPolicy(Qt::NoContextMenu);
    auto* closing = new QShortcut(QKeySequence(QKeySequence::Close), this);
    connect(closing, &QShortcut::activated, this, &QWidget::close);
    resize(sizeFor(contentSize));
}

/// Large fonts need more than what the window was made for, and small screens have less.
QSize TitledWindow::sizeFor(QSize contentSize) const {
    const QSize room = roomOnScreen();
    QSize size = contentSize.expandedTo(m_content->sizeHint()).boundedTo(room);
    if (m_content->hasHeightForWidth())
        size.setHeight(std::max(contentSize.height(), m_content->heightForWidth(size.width())));
    return size.boundedTo(room);
}

void TitledWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_escape == EscapeKey::closes)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace quillon
