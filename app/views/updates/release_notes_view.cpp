#include "release_notes_view.h"

#include <quillon/app/views/components/text.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QScrollBar>

namespace quillon {

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
    colours.setColor(QPalette::Link, theme.palette.primary);
    setPalette(colours);
    document()->setDefaultFont(theme.styles.body);
    document()->setDocumentMargin(margin);
    setHtml(m_notes);
    makeThin(*verticalScrollBar(), theme);
}

} // namespace quillon
