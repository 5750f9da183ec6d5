#include "alert.h"

#include "dialog_message.h"
#include "focus_ring.h"
#include "prominent_button.h"

#include <QGuiApplication>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 22;
constexpr int buttonGap = 20;

} // namespace

Alert::Alert(ThemeSource& themes, const AlertWords& words, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    auto* const close = new ProminentButton(themes, words.close, this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    column->setSpacing(buttonGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* const message =
        dialogMessage(themes, Symbol::exclamationMarkTriangle, words.title, words.message, this);
    message->setContentsMargins(0, 0, focusRingRoom, 0);
    column->addLayout(message);
    column->addWidget(close, 0, Qt::AlignRight);
}

} // namespace quillon
