#include "settings_view.h"

#include "settings_texts.h"

#include <quillon/app/views/components/content_height.h>
#include <quillon/app/views/components/scroll_pane.h>

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr QSize usualSize(560, 420);
constexpr QSize smallest(320, 240);
constexpr int tabsPadding = 8;

constexpr std::array tabOrder{SettingsTab::general, SettingsTab::coach, SettingsTab::privacy};

} // namespace

SettingsView::SettingsView(AppModel& model, ThemeSource& themeSource, const Needs& needs, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_tabs(new SymbolTabBar(themeSource, this)),
      m_stack(new QStackedWidget(this)),
      m_general(new GeneralPage(model, themeSource, needs.sessionStart, needs.launcherKey)),
      m_coach(new CoachPage(model, themeSource)),
      m_privacy(new PrivacyPage(model, themeSource, needs.dataFolder)) {
    addTab(SettingsTab::general, Symbol::gearShape, m_general);
    addTab(SettingsTab::coach, Symbol::graduationCap, m_coach);
    addTab(SettingsTab::privacy, Symbol::handRaised, m_privacy);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, tabsPadding, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs, 0, Qt::AlignHCenter);
    column->addSpacing(tabsPadding + 1);
    column->addWidget(m_stack, 1);

    showTab();
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
        m_model.setSettingsTab(tabOrder.at(static_cast<std::size_t>(index)));
    });
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field == ModelField::settingsTab)
            showTab();
    });
}

void SettingsView::addTab(SettingsTab tab, Symbol symbol, QWidget* page) {
    m_tabs->addSymbolTab(symbol, SettingsTexts::tab(tab));
    auto* scroll = new ScrollPane(themes(), m_stack);
    scroll->setAccessibleName(SettingsTexts::tab(tab));
    scroll->setWidget(page);
    m_stack->addWidget(scroll);
    m_pages.push_back(page);
}

void SettingsView::showTab() {
    const int index = static_cast<int>(std::ranges::find(tabOrder, m_model.settingsTab()) - tabOrder.begin());
    m_tabs->setCurrentIndex(index);
    m_stack->setCurrentIndex(index);
}

QSize SettingsView::sizeHint() const {
    int width = usualSize.width();
    for (const QWidget* const page : m_pages)
        width = std::max(width, page->minimumSizeHint().width());
    int height = 0;
    for (const QWidget* const page : m_pages)
        height = std::max(height, contentHeight(*page, width));
    return QSize(width, m_tabs->sizeHint().height() + 2 * tabsPadding + 1 + height).expandedTo(usualSize);
}

QSize SettingsView::minimumSizeHint() const {
    return smallest;
}

/// A line parts the tabs from what lies behind them.
void SettingsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, m_stack->y() - 1, width(), 1, theme().palette.divider);
}

} // namespace quillon
