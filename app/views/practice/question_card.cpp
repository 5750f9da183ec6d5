#include "question_card.h"

#include "practice_texts.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/menu/menu_entry.h>

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <string>
#include <variant>

namespace quillon {

namespace {

constexpr int padding = 18;
constexpr int spacing = 6;
constexpr int verdictGap = 6;
constexpr int signSize = 18;
constexpr int mostLines = 2; ///< of a text from another application
constexpr double keySize = 22;
constexpr double cornerRadius = 12;

/// "File › Export", where the command is found.
QString placeOf(const MenuEntry& entry) {
    const std::string submenu = entry.submenuPath();
    return foreignLine(
        submenu.empty() ? std::string(entry.menu()) : std::string(entry.menu()) + " › " + submenu);
}

QString verdictOn(const std::optional<PracticeAnswer>& answer) {
    if (!answer)
        return PracticeTexts::pressShortcut();
    if (const auto* wrong = std::get_if<WrongAnswer>(&*answer))
        return PracticeTexts::youPressed(text(wrong->pressed));
    return std::holds_alternative<RightAnswer>(*answer) ? PracticeTexts::right() : QString();
}

template <class Widget>
void keepRoom(Widget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

} // namespace

QuestionCard::QuestionCard(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent),
      m_menu(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary, this)),
      m_command(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return bold(styles.title); }, &Palette::primary, this)),
      m_sign(new SymbolView(themeSource, Symbol::checkmarkCircleFill, signSize, &Palette::accent, this)),
      m_verdict(new ThemedLabel(
          themeSource, [](const TextStyles& styles) { return styles.headline; }, &Palette::primary, this)),
      m_keys(new KeysView(themeSource, std::nullopt, keySize, CapEmphasis::prominent, this)) {
    readAs(*this, ReadAs::text);
    setFocusPolicy(Qt::StrongFocus);
    for (ThemedLabel* label : {m_menu, m_command}) {
        label->setAlignment(Qt::AlignCenter);
        label->setMostLines(mostLines);
    }
    keepRoom(*m_keys); // so that nothing jumps when the answer comes
    auto* verdict = new QHBoxLayout;
    verdict->setSpacing(verdictGap);
    verdict->addStrut(signSize + 2);
    verdict->addStretch(1);
    verdict->addWidget(m_sign);
    verdict->addWidget(m_verdict);
    verdict->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(spacing);
    column->addStretch(1);
    column->addWidget(m_menu);
    column->addWidget(m_command);
    column->addSpacing(spacing);
    column->addLayout(verdict);
    column->addWidget(m_keys, 0, Qt::AlignHCenter);
    column->addStretch(1);
}

void QuestionCard::show(const PracticeRound& round) {
    const MenuEntry& entry = *round.question();
    const auto& answer = round.answer();
    m_menu->setText(placeOf(entry));
    m_command->setText(foreignLine(entry.title()));
    m_sign->setVisible(answer && std::holds_alternative<RightAnswer>(*answer));
    m_verdict->setText(verdictOn(answer));
    m_keys->setVisible(answer.has_value());
    if (answer)
        m_keys->setShortcut(entry.shortcut);
    setFocusPolicy(answer ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleName(PracticeTexts::readQuestion(m_command->text(), m_menu->text(), verdict()));
}

QString QuestionCard::verdict() const {
    const QString said = m_verdict->text();
    if (m_keys->isHidden())
        return said;
    const QString keys = keysText(*m_keys->shortcut(), theme());
    return said.isEmpty() ? keys : PracticeTexts::readVerdict(said, keys);
}

void QuestionCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette& palette = theme().palette;
    painter.setBrush(palette.card);
    painter.setPen(hasFocus() ? QPen(palette.focusRing, 1.5) : QPen(palette.cardBorder, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
}

void QuestionCard::focusInEvent(QFocusEvent* event) {
    update();
    ThemedWidget::focusInEvent(event);
}

void QuestionCard::focusOutEvent(QFocusEvent* event) {
    update();
    ThemedWidget::focusOutEvent(event);
}

} // namespace quillon
