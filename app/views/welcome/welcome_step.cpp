#include "welcome_step.h"

#include <quillon/app/views/components/focus_ring.h>

#include <QHBoxLayout>

namespace quillon {

namespace {

constexpr int markerGap = 14;
constexpr int titleGap = 14; ///< between title and body
constexpr int partGap = 6;

} // namespace

WelcomeStep::WelcomeStep(ThemeSource& themeSource, int number, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_marker(new StepMarker(themeSource, number, this)),
      m_title(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return semibold(styles.title); }, &Palette::primary,
          this)),
      m_column(new QVBoxLayout), m_body(makeText()) {
    m_title->setWordWrap(true);
    // One line of it is level with the marker.
    m_title->setMinimumHeight(m_marker->minimumHeight());
    m_column->setSpacing(partGap);
    addInset(m_title);
    m_column->addSpacing(titleGap - partGap);
    addInset(m_body);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(markerGap - focusRingRoom);
    row->addWidget(m_marker, 0, Qt::AlignTop);
    row->addLayout(m_column, 1);
}

ThemedLabel* WelcomeStep::makeText() {
    auto* label = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this);
    label->setWordWrap(true);
    return label;
}

void WelcomeStep::addInset(QWidget* part) {
    part->setContentsMargins(focusRingRoom, 0, 0, 0);
    m_column->addWidget(part);
}

ThemedLabel* WelcomeStep::addText(const QString& text) {
    ThemedLabel* const label = makeText();
    label->setText(text);
    addInset(label);
    return label;
}

void WelcomeStep::setText(const QString& title, const QString& body) {
    m_title->setText(title);
    m_body->setText(body);
}

} // namespace quillon
