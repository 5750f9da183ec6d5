#include "note_editor.h"

#include "library_texts.h"

#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/styled_menu.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QScrollBar>
#include <QShortcut>

#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int padding = 20;
constexpr int spacing = 12;
constexpr int betweenButtons = 6;
constexpr double fieldEms = 30; ///< how wide and high the field is at first
constexpr double fieldLines = 9;
constexpr QSize smallestField(220, 80);
constexpr QChar endOfParagraph = QChar::ParagraphSeparator;

/// What was written, no-break blanks included, which the plain text of a field does not tell apart.
QString written(const QPlainTextEdit& field) {
    return field.document()
        ->toRawText()
        .replace(endOfParagraph, u'\n')
        .replace(QChar(QChar::LineSeparator), u'\n');
}

} // namespace

NoteEditor::NoteEditor(ThemeSource& themes, const QString& title, const QString& note, QWidget* parent)
    : QDialog(parent), m_themes(themes), m_field(new QPlainTextEdit(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(LibraryTexts::noteFor(title));
    setUpField(title, note);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(padding, padding, padding - focusRingRoom, padding - focusRingRoom);
    column->setSpacing(spacing);
    addTexts(*column, title);
    addButtons(*column);
    saveOnCtrlReturn();

    m_themeChange = themes.changed.subscribe([this] { wearTheme(); });
    wearTheme();
    resize(firstSize());
    m_field->setFocus();
}

void NoteEditor::setUpField(const QString& title, const QString& note) {
    m_field->setPlaceholderText(LibraryTexts::notePlaceholder());
    m_field->setAccessibleName(LibraryTexts::noteFor(title));
    m_field->setAccessibleDescription(LibraryTexts::notePlaceholder());
    m_field->setTabChangesFocus(true);
    m_field->setPlainText(note);
    m_field->moveCursor(QTextCursor::End);
    m_field->setMinimumSize(smallestField);
    m_field->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_field, &QPlainTextEdit::customContextMenuRequested, this, &NoteEditor::showMenu);
}

void NoteEditor::addTexts(QVBoxLayout& column, const QString& title) {
    auto* const heading = new ThemedLabel(
        m_themes, [](const TextStyles& styles) { return styles.headline; }, &Palette::primary, this);
    heading->setText(LibraryTexts::noteFor(title));
    auto* const texts = new QVBoxLayout;
    column.addLayout(texts, 1);
    texts->setContentsMargins(0, 0, focusRingRoom, 0);
    texts->setSpacing(spacing);
    texts->addWidget(heading);
    texts->addWidget(m_field, 1);
}

void NoteEditor::addButtons(QVBoxLayout& column) {
    auto* const cancel = new PlainButton(m_themes, LibraryTexts::cancel(), this);
    auto* const keep = new ProminentButton(m_themes, LibraryTexts::save(), this);
    keep->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(keep, &QPushButton::clicked, this, &NoteEditor::save);
    auto* const buttons = new QHBoxLayout;
    column.addLayout(buttons);
    buttons->setSpacing(betweenButtons);
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(keep);
}

void NoteEditor::saveOnCtrlReturn() {
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const keys = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(key)), this);
        connect(keys, &QShortcut::activated, this, &NoteEditor::save);
    }
}

/// With room in the field for a few lines of a usual length.
QSize NoteEditor::firstSize() const {
    const double width = fieldEms * pixelSize(m_themes.theme().styles.body);
    const double field = fieldLines * QFontMetricsF(m_field->font()).lineSpacing();
    const int others = sizeHint().height() - m_field->sizeHint().height();
    return {static_cast<int>(std::lround(width)), others + static_cast<int>(std::lround(field))};
}

void NoteEditor::save() {
    Q_EMIT saved(written(*m_field).trimmed());
    accept();
}

void NoteEditor::wearTheme() {
    const Palette& palette = m_themes.theme().palette;
    m_field->setFont(m_themes.theme().styles.body);
    m_field->setPalette(palette.forToolkit());
    makeThin(*m_field->verticalScrollBar(), m_themes.theme());
    const QString sheet =
        u"QPlainTextEdit { background: %1; border: 1px solid %2; border-radius: 8px; padding: 5px; }"
        "QPlainTextEdit:focus { border: 2px solid %3; padding: 4px; }"_s;
    m_field->setStyleSheet(sheet.arg(
        palette.card.name(), palette.primaryAt(0.16).name(QColor::HexArgb), palette.focusRing.name()));
}

void NoteEditor::showMenu(const QPoint& position) {
    QMenu* const menu = m_field->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    styleMenu(*menu, m_themes.theme());
    menu->popup(m_field->mapToGlobal(position));
}

} // namespace quillon
