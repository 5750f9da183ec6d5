#include "release_notes_view.h"

#include <quillon/app/views/components/text.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QScrollBar>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 10;

} // namespace

ReleaseNotesView::ReleaseNotesView(ThemeSource& themes, const std::string& notes, QWidget* parent)
    : QTextBrowser(parent), m_themes(themes), m_notes(text(notes)) {
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_subscription = themes.changed.subscribe([this] { wearTheme(); });
    wearTheme();
}

void ReleaseNotesView::wearTheme() {
    const Theme& theme = m_themes.theme();
    QPalette colours = theme.palette.forToolkit();
    colours.setColor(QPalette::Base, theme.palette.card);
    setPalette(colours);
    // The frame of a group of rows.
    const QString frame =
        u"QTextBrowser { background: %1; border: 1px solid %2; border-radius: 10px; padding: 3px; }"_s;
    setStyleSheet(frame.arg(theme.palette.card.name(), theme.palette.cardBorder.name(QColor::HexArgb)));
    // Links take their colour from the whole program's palette otherwise, which may still be another one.
    document()->setDefaultStyleSheet(u"a { color: %1; }"_s.arg(colours.color(QPalette::Link).name()));
    document()->setDefaultFont(theme.styles.body);
    document()->setDocumentMargin(margin);
    setHtml(m_notes);
    makeThin(*verticalScrollBar(), theme);
}

} // namespace quillon
