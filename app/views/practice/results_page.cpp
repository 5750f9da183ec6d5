#include "results_page.h"

#include "practice_texts.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/keys_view.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <vector>

namespace quillon {

namespace {

constexpr int spacing = 10;
constexpr int rowGap = 6;
constexpr int columnGap = 16;

} // namespace

ResultsPage::ResultsPage(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_score(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return bold(styles.title); }, &Palette::primary, this)),
      m_sentence(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this)),
      m_missed(new ScrollPane(themeSource, this)),
      m_button(new ProminentButton(themeSource, PracticeTexts::anotherRound(), this)) {
    m_score->setAlignment(Qt::AlignCenter);
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setWordWrap(true);
    m_missed->viewport()->setAutoFillBackground(false);
    m_missed->setAccessibleName(PracticeTexts::comeUpMore());
    QSizePolicy room = m_missed->sizePolicy();
    room.setRetainSizeWhenHidden(true);
    m_missed->setSizePolicy(room);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(m_score);
    column->addWidget(m_sentence);
    column->addWidget(m_missed, 1);
    column->addWidget(m_button, 0, Qt::AlignHCenter);
    connect(m_button, &QPushButton::clicked, this, &ResultsPage::anotherRoundWanted);
}

void ResultsPage::show(const PracticeRound& round) {
    const std::vector<MenuEntry> missed = round.missed();
    m_score->setText(PracticeTexts::score(round.rightCount(), round.length()));
    m_sentence->setText(missed.empty() ? PracticeTexts::cleanRound() : PracticeTexts::comeUpMore());
    m_missed->setWidget(missedRows(missed));
    m_missed->setVisible(!missed.empty());
}

QWidget* ResultsPage::missedRows(std::span<const MenuEntry> missed) {
    auto* rows = new QWidget;
    rows->setAutoFillBackground(false);
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(columnGap, 0, columnGap, 0);
    column->setSpacing(rowGap);
    for (const MenuEntry& entry : missed) {
        auto* title = new ThemedLabel(
            themes(), [](const TextStyles& styles) { return styles.body; }, &Palette::primary, rows);
        title->setText(foreignLine(entry.title()));
        title->setWordWrap(true);
        auto* row = new QHBoxLayout;
        row->setSpacing(columnGap);
        row->addWidget(title, 1);
        row->addWidget(new KeysView(themes(), entry.shortcut, theme().keySize(), CapEmphasis::plain, rows));
        column->addLayout(row);
    }
    column->addStretch(1);
    return rows;
}

} // namespace quillon
