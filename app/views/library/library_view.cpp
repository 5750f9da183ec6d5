#include "library_view.h"

#include "app_list.h"
#include "library_detail.h"
#include "library_texts.h"
#include "note_editor.h"
#include "sheet_export.h"
#include "toolbar_button.h"

#include <quillon/app/core/trigger_key.h>
#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/message_view.h>
#include <quillon/app/views/components/styled_menu.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/records/annotations.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int narrowestSidebar = 190;
constexpr int firstSidebar = 230;
constexpr int firstPane = 650;
constexpr int narrowestPane = 520;
constexpr int margin = 12;
constexpr int toolSpacing = 2;
constexpr int searchGap = 4; ///< above the list
constexpr int messagePadding = 20;

QFont headline(const TextStyles& styles) {
    return bold(styles.title2);
}

} // namespace

LibraryView::LibraryView(AppModel& model, ThemeSource& themeSource, const Needs& needs, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_sidebar(new QStackedWidget),
      m_list(new AppList(themeSource, needs.icons)),
      m_noApps(new MessageView(themeSource, headline, messagePadding)),
      m_search(new SearchBox(themeSource, LibraryTexts::searchPrompt())),
      m_practice(new ToolbarButton(themeSource, Symbol::graduationCap, LibraryTexts::practice())),
      m_cheatSheet(new ToolbarButton(themeSource, Symbol::printer, LibraryTexts::cheatSheet())),
      m_sheetMenu(new QMenu(this)), m_export(new SheetExport(model, themeSource, needs.exports, *this)),
      m_pane(new QStackedWidget), m_noChoice(new MessageView(themeSource, headline, messagePadding)),
      m_detail(new LibraryDetail(model, themeSource, needs.clock)) {
    auto* const halves = new QSplitter;
    halves->addWidget(makeSidebar());
    halves->addWidget(makePane());
    halves->setHandleWidth(1);
    halves->setStretchFactor(1, 1);
    halves->setSizes({firstSidebar, firstPane});
    halves->setChildrenCollapsible(false);
    for (int side = 0; side < halves->count(); ++side)
        readAs(*halves->handle(side), ReadAs::decoration); // for the pointer alone
    auto* const all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(halves);

    m_noChoice->setMessage({.symbol = Symbol::sidebarLeft, .title = LibraryTexts::pickAnApp()});
    connect(m_list, &AppList::chosen, this, &LibraryView::select);
    connect(m_search, &SearchBox::textEdited, this, &LibraryView::search);
    connect(m_practice, &QPushButton::clicked, this, [this] { m_model.openPractice(m_selection); });
    connect(m_detail, &LibraryDetail::noteWanted, this, &LibraryView::editNote);
    auto* const find = new QShortcut(QKeySequence(QKeySequence::Find), this);
    connect(find, &QShortcut::activated, m_search, &SearchBox::focus);
    m_modelChange = model.changed.subscribe([this](ModelField field) { modelChanged(field); });
    wearTheme();
    refresh();
}

QWidget* LibraryView::makeSidebar() {
    m_sidebar->addWidget(m_noApps);
    m_sidebar->addWidget(m_list);
    m_sidebar->setMinimumWidth(narrowestSidebar);
    return m_sidebar;
}

QWidget* LibraryView::makePane() {
    auto* const pane = new QWidget;
    pane->setMinimumWidth(narrowestPane);
    m_pane->addWidget(m_noChoice);
    m_pane->addWidget(m_detail);
    auto* const searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(margin, margin, margin - focusRingRoom, searchGap);
    searchRow->setSpacing(toolSpacing);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_practice);
    searchRow->addWidget(m_cheatSheet);
    m_practice->setToolTip(LibraryTexts::practiceHelp());
    m_cheatSheet->setToolTip(LibraryTexts::cheatSheetHelp());
    makeSheetMenu();
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(searchRow);
    column->addWidget(m_pane, 1);
    return pane;
}

void LibraryView::makeSheetMenu() {
    m_sheetMenu->addAction(LibraryTexts::saveAsPdf(), m_export, &SheetExport::saveAsPdf);
    m_sheetMenu->addAction(LibraryTexts::print(), m_export, &SheetExport::print);
    m_sheetMenu->addAction(LibraryTexts::copyAsMarkdown(), m_export, &SheetExport::copyAsMarkdown);
    m_cheatSheet->setMenu(m_sheetMenu);
}

void LibraryView::modelChanged(ModelField field) {
    if (field == ModelField::sheets || field == ModelField::trigger || field == ModelField::keyLabels)
        refresh();
}

void LibraryView::refresh() {
    m_noApps->setMessage(
        {.symbol = Symbol::keyboard,
         .title = LibraryTexts::noAppsTitle(),
         .body = LibraryTexts::noAppsText(modifierLabel(modifier(m_model.trigger()), m_model.keyLabels()))});
    m_list->setApps(libraryApps(m_model.sheets()), m_selection);
    const bool isEmpty = m_model.sheets().empty();
    m_sidebar->setCurrentWidget(isEmpty ? static_cast<QWidget*>(m_noApps) : m_list);
    setFocusProxy(isEmpty ? static_cast<QWidget*>(m_search) : m_list);
    showSelection();
}

void LibraryView::select(const std::string& bundleID) {
    m_selection = bundleID;
    showSelection();
}

/// An application of which there is no sheet is none; it is shown again when there is one.
void LibraryView::showSelection() {
    const bool isKnown = m_model.sheets().contains(m_selection);
    m_detail->setApp(m_selection);
    m_export->setApp(m_selection);
    m_practice->setEnabled(isKnown);
    m_cheatSheet->setEnabled(isKnown);
    if (m_noteEditor && !isKnown)
        m_noteEditor->reject();
    m_pane->setCurrentWidget(isKnown ? static_cast<QWidget*>(m_detail) : m_noChoice);
}

void LibraryView::search(const QString& query) {
    m_detail->setQuery(utf8(query));
}

void LibraryView::editNote(const std::string& entryID, const QString& title) {
    if (m_noteEditor)
        return;
    const std::string bundleID = m_detail->app();
    const Annotation said = m_model.annotations().get(bundleID, entryID);
    m_noteEditor = new NoteEditor(themes(), title, text(said.note), window());
    connect(m_noteEditor, &NoteEditor::saved, this, [this, bundleID, entryID](const QString& note) {
        m_model.setNote(bundleID, entryID, utf8(note));
    });
    m_noteEditor->open();
}

/// Esc takes back a search before it closes the window.
void LibraryView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->setText({});
        search({});
    } else {
        ThemedWidget::keyPressEvent(event);
    }
}

void LibraryView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), theme().palette.window);
}

void LibraryView::wearTheme() {
    setPalette(theme().palette.forToolkit());
    styleMenu(*m_sheetMenu, theme());
}

void LibraryView::themeChanged() {
    wearTheme();
    ThemedWidget::themeChanged();
}

} // namespace quillon
