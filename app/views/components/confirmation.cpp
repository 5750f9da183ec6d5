#include "confirmation.h"

#include "dialog_message.h"
#include "focus_ring.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 22;
constexpr int buttonsGap = 20;
constexpr int betweenButtons = 6;

} // namespace

Confirmation::Confirmation(ThemeSource& themes, const ConfirmationWords& words, QWidget* parent)
    : QDialog(parent), m_destroy(new DestructiveButton(themes, words.destroy, this)),
      m_cancel(new PlainButton(themes, words.cancel, this)) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(words.title);
    setAccessibleDescription(words.message);
    setModal(true);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(betweenButtons);
    buttons->addStretch(1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_destroy);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    column->setSpacing(buttonsGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* message = dialogMessage(themes, Symbol::exclamationMarkTriangle, words.title, words.message, this);
    message->setContentsMargins(0, 0, focusRingRoom, 0);
    column->addLayout(message);
    column->addLayout(buttons);

    m_cancel->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_destroy, &QPushButton::clicked, this, &QDialog::accept);
    setTabOrder(m_cancel, m_destroy);
}

void Confirmation::showEvent(QShowEvent* event) {
    m_cancel->setFocus();
    QDialog::showEvent(event);
}

} // namespace quillon
