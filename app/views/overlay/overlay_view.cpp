#include "overlay_view.h"

#include "overlay_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/text.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int padding = 18;
constexpr int headerGap = 14;
constexpr int footerGap = 12;
/// Soon after the overlay is on the screen, before anyone can have typed.
constexpr std::chrono::milliseconds searchPreparationDelay{40};

/// Keys that edit the search wherever the keyboard is.
bool isForSearch(const QKeyEvent& event) {
    const bool isOfDesktop = event.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
    if (event.key() == Qt::Key_Backspace)
        return !isOfDesktop;
    const bool isCommand = isOfDesktop || (event.modifiers() & Qt::ControlModifier);
    return event.matches(QKeySequence::Paste)
           || (!isCommand && !event.text().isEmpty() && event.text().at(0).isPrint());
}

} // namespace

OverlayView::OverlayView(
    AppModel& model, ThemeSource& themeSource, AppIconCache& icons, Mode mode, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_mode(mode),
      m_header(new OverlayHeader(themeSource, icons, this)), m_message(new MessageView(themeSource, this)),
      m_area(new ShortcutArea(themeSource, this)), m_footer(new OverlayFooter(themeSource, this)) {
    readAs(*this, ReadAs::group);
    layOut();
    connectParts();
    for (QWidget* child : findChildren<QWidget*>())
        child->installEventFilter(this);

    m_prepareSearch.setSingleShot(true);
    m_prepareSearch.setInterval(searchPreparationDelay);
    m_prepareSearch.callOnTimeout(this, [this] { m_sheet.prepareSearch(); });
    m_modelChange = model.changed.subscribe([this](ModelField field) { modelChanged(field); });
    m_recordChange =
        model.recordChanged.subscribe([this](const RecordChange& change) { recordChanged(change); });
}

void OverlayView::layOut() {
    // The scroll bar stands in the padding, so that the cards end where the search field does. Both pages
    // always have their place, so that neither is laid out anew when it comes up.
    auto* main = new QGridLayout;
    main->setContentsMargins(padding, 0, padding - thinScrollBarWidth, 0);
    for (QWidget* page : {static_cast<QWidget*>(m_message), static_cast<QWidget*>(m_area)}) {
        QSizePolicy policy = page->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        page->setSizePolicy(policy);
        main->addWidget(page, 0, 0);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, padding, 0, padding);
    column->setSpacing(0);
    // Messages are in the middle of the panel, not of what the scroll bar leaves.
    m_message->setContentsMargins(0, 0, thinScrollBarWidth, 0);
    m_header->setContentsMargins(padding, 0, padding, 0);
    m_footer->setContentsMargins(padding, 0, padding, 0);
    column->addWidget(m_header);
    column->addSpacing(headerGap);
    column->addLayout(main, 1);
    column->addSpacing(footerGap);
    column->addWidget(m_footer);
}

void OverlayView::connectParts() {
    setTabOrder(&search(), m_area);
    connect(&search(), &SearchBox::textEdited, this, [this](const QString& text) {
        m_model.setQuery(utf8(text));
    });
    connect(&search(), &SearchBox::menuOpening, this, [this] { keepOpen(); });
    connect(
        m_message, &MessageView::actionPressed, this, [this] { m_model.requestWindow(WindowName::welcome); });
    connect(
        m_area, &ShortcutArea::pinToggled, this,
        [this](const std::string& bundleID, const std::string& entryID) {
            m_model.togglePin(bundleID, entryID);
        });
    connect(m_area, &ShortcutArea::libraryRequested, this, [this] {
        m_model.requestWindow(WindowName::library);
    });
    connect(m_area, &ShortcutArea::leftUpwards, this, [this] { search().focus(); });
    connect(m_area, &ShortcutArea::rowMenuOpening, this, [this] {
        m_area->offerLibrary(m_model.offersWindow(WindowName::library));
        keepOpen();
    });
}

QString OverlayView::triggerLabel() const {
    return modifierLabel(modifier(m_model.trigger()), m_model.keyLabels());
}

void OverlayView::modelChanged(ModelField field) {
    if (field == ModelField::current)
        m_sheet.sheetMayDiffer();
    if (!isVisible())
        return;
    if (field == ModelField::overlaySticky && m_model.overlaySticky())
        search().focus();
    refresh();
    if (field == ModelField::query)
        m_area->scrollToTop();
}

void OverlayView::recordChanged(const RecordChange& change) {
    const auto& prepared = m_sheet.prepared();
    if (!prepared || !change.concerns(prepared->bundleID))
        return;
    m_sheet.recordsMayDiffer();
    if (isVisible())
        refresh();
}

void OverlayView::refresh() {
    refreshSheet();
    refreshState();
    refreshHeader();
    refreshMain();
    refreshFooter();
}

void OverlayView::refreshSheet() {
    m_sheet.update(m_model.current() ? &*m_model.current() : nullptr, m_model.annotations(), m_model.usage());
    if (m_sheet.isSearchStale())
        m_prepareSearch.start();
}

void OverlayView::refreshState() {
    m_state = overlayState({
        .mode = m_mode,
        .trusted = m_model.trusted(),
        .hasSheet = m_model.current().has_value(),
        .hasEntries = !sheet().entries.empty(),
        .reading = m_model.reading(),
        .answered = m_model.answered(),
        .retrying = m_model.retrying(),
    });
    m_matches = m_sheet.matches(m_model.query());
}

void OverlayView::refreshHeader() {
    const std::size_t count = sheet().entries.size();
    if (!m_model.current()) {
        m_header->setNoApp();
        m_header->setCount({});
    } else {
        m_header->setApp(sheet().bundleID, sheet().appName);
        m_header->setCount(
            m_model.query().empty() ? OverlayTexts::allShortcuts(count)
                                    : OverlayTexts::someShortcuts(m_matches.size(), count));
    }
    search().setText(text(m_model.query()));
    setAccessibleName(OverlayTexts::panelName(sheet().appName));
}

void OverlayView::refreshMain() {
    if (m_state == OverlayState::shortcuts) {
        refreshShortcuts();
        return;
    }
    m_message->setMessage(
        OverlayTexts::message(m_state, sheet().appName, triggerLabel(), Vocabulary::here()));
    showInMain(m_message);
}

void OverlayView::showInMain(QWidget* page) {
    m_message->setVisible(page == m_message);
    m_area->setVisible(page == m_area);
}

void OverlayView::refreshShortcuts() {
    if (m_matches.empty()) {
        m_message->setMessage(OverlayTexts::nothingMatches(text(m_model.query())));
        showInMain(m_message);
        return;
    }
    AreaContent content = AreaContent::of(sheet(), m_matches);
    const bool isOtherApp = m_area->sheet().bundleID != sheet().bundleID;
    if (&m_area->sheet() != &sheet() || m_area->content() != content)
        m_area->setContent(m_sheet.prepared(), std::move(content));
    if (isOtherApp)
        m_area->scrollToTop();
    showInMain(m_area);
}

void OverlayView::refreshFooter() {
    m_footer->setHint(OverlayTexts::closingHint(m_model.overlaySticky(), triggerLabel()));
    if (const PreparedEntry* entry = m_sheet.mostClicked())
        m_footer->setMostClicked(OverlayFooter::MostClicked{entry->title, entry->shortcut});
    else
        m_footer->setMostClicked(std::nullopt);
}

bool OverlayView::keepOpen() {
    if (m_mode != Mode::live || m_model.overlaySticky())
        return false;
    m_model.keepOverlayOpen();
    return true;
}

void OverlayView::showEvent(QShowEvent* event) {
    refresh();
    m_area->scrollToTop();
    search().focus();
    ThemedWidget::showEvent(event);
}

void OverlayView::hideEvent(QHideEvent* event) {
    m_area->closeRowMenu();
    search().closeMenu();
    m_prepareSearch.stop();
    ThemedWidget::hideEvent(event);
}

void OverlayView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        keepOpen();
}

bool OverlayView::eventFilter(QObject* watched, QEvent* event) {
    const bool isTap = event->type() == QEvent::MouseButtonPress
                       && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (isTap)
        keepOpen();
    return ThemedWidget::eventFilter(watched, event);
}

void OverlayView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Find)) {
        search().focus();
    } else if (event->key() == Qt::Key_Down && m_state == OverlayState::shortcuts && !m_matches.empty()) {
        m_area->setFocus(Qt::TabFocusReason);
    } else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        m_area->scrollByPage(event->key() == Qt::Key_PageUp ? -1 : 1);
    } else if (isForSearch(*event) && !search().isFocused()) {
        search().type(event);
    } else {
        ThemedWidget::keyPressEvent(event);
    }
}

void OverlayView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Palette& palette = theme().palette;
    m_background.paint(painter, rect(), palette.window, palette.windowBorder);
}

} // namespace quillon
