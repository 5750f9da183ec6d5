#include "welcome_view.h"

#include "product_mark.h"
#include "welcome_step.h"
#include "welcome_texts.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int markSize = 64;
constexpr int sidePadding = 36;
constexpr int topPadding = 28;
constexpr int bottomPadding = 24;
constexpr int headerGap = 6;
constexpr int stepGap = 24;
constexpr int footerPadding = 20;
constexpr int buttonGap = 8;
constexpr int allowedGap = 6;
constexpr int narrowest = 320;
constexpr int lowest = 240;

/// As wide as lines are read easily, in any size of the font.
int readableWidth(const Theme& theme) {
    constexpr double ems = 43;
    return std::max(560, static_cast<int>(std::lround(ems * pixelSize(theme.styles.body))));
}

QHBoxLayout* row(QWidget* parent, int gap) {
    auto* layout = new QHBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    return layout;
}

/// What became visible or not since the last event is in the layouts' own reckoning only after the next.
int heightOf(const QWidget& content, int width) {
    for (QLayout* const layout : content.findChildren<QLayout*>())
        layout->invalidate();
    return content.heightForWidth(width);
}

} // namespace

WelcomeView::WelcomeView(AppModel& model, ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_scroll(new QScrollArea(this)) {
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidget(makeSteps());
    // To be scrolled by the keyboard there has to be something to scroll.
    const auto followRange = [this](int, int highest) {
        m_scroll->setFocusPolicy(highest > 0 ? Qt::StrongFocus : Qt::NoFocus);
    };
    connect(m_scroll->verticalScrollBar(), &QScrollBar::rangeChanged, this, followRange);
    followRange(0, 0);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scroll, 1);
    column->addWidget(makeFooter());

    m_modelChange = model.changed.subscribe([this](ModelField field) { modelChanged(field); });
    trustChanged();
    triggerChanged();
    themeChanged();
    (m_model.trusted() ? static_cast<QWidget*>(m_done) : m_ask)->setFocus();
}

QWidget* WelcomeView::makeSteps() {
    auto* content = new QWidget(m_scroll);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(sidePadding, topPadding, sidePadding, bottomPadding);
    column->setSpacing(stepGap);
    column->addWidget(makeHeader());
    const auto addStep = [&](int number) {
        auto* step = new WelcomeStep(themes(), number, content);
        column->addWidget(step);
        return step;
    };
    m_allow = addStep(1);
    m_hold = addStep(2);
    m_privacy = addStep(3);
    column->addStretch(1);

    const Vocabulary& vocabulary = Vocabulary::here();
    m_allow->setText(WelcomeTexts::allowTitle(), WelcomeTexts::allowBody(vocabulary));
    m_allow->addPart(makePermission());
    m_privacy->setText(WelcomeTexts::privacyTitle(vocabulary), WelcomeTexts::privacyBody(vocabulary));
    return content;
}

QWidget* WelcomeView::makeHeader() {
    auto* header = new QWidget(this);
    auto* column = new QVBoxLayout(header);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(headerGap);
    const auto addLine = [&](const QString& text, ThemedLabel::FontChoice font, QColor Palette::*colour) {
        auto* label = new ThemedLabel(themes(), std::move(font), colour, header);
        label->setText(text);
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
        column->addWidget(label);
    };
    column->addWidget(new ProductMark(themes(), markSize, header), 0, Qt::AlignHCenter);
    addLine(
        WelcomeTexts::title(), [](const TextStyles& styles) { return bold(styles.largeTitle); },
        &Palette::primary);
    addLine(
        WelcomeTexts::promise(), [](const TextStyles& styles) { return styles.title; }, &Palette::secondary);
    return header;
}

/// The buttons that ask for the permission, and what takes their place when it was given.
QWidget* WelcomeView::makePermission() {
    auto* permission = new QWidget(this);
    m_permissionButtons = new QWidget(permission);
    QHBoxLayout* const buttons = row(m_permissionButtons, buttonGap);
    m_ask = new ProminentButton(themes(), WelcomeTexts::allowAccessibility(), m_permissionButtons);
    m_openSettings = new PlainButton(themes(), WelcomeTexts::openSystemSettings(), m_permissionButtons);
    buttons->addWidget(m_ask);
    buttons->addWidget(m_openSettings);
    buttons->addStretch(1);
    connect(m_ask, &QPushButton::clicked, this, [this] { m_model.askForAccessibility(); });
    connect(m_openSettings, &QPushButton::clicked, this, [this] {
        if (!m_model.openAccessibilitySettings())
            m_openSettings->hide();
    });

    m_allowed = new QWidget(permission);
    QHBoxLayout* const allowed = row(m_allowed, allowedGap);
    auto* label = new ThemedLabel(
        themes(), [](const TextStyles& styles) { return styles.headline; }, &Palette::primary, m_allowed);
    label->setText(WelcomeTexts::allowed());
    allowed->addWidget(new SymbolView(
        themes(), Symbol::checkmarkCircleFill, theme().symbolSize() + 2, &Palette::accent, m_allowed));
    allowed->addWidget(label, 1);

    QHBoxLayout* const either = row(permission, 0);
    either->addWidget(m_permissionButtons);
    either->addWidget(m_allowed);
    return permission;
}

QWidget* WelcomeView::makeFooter() {
    m_footer = new QWidget(this);
    QHBoxLayout* const buttons = row(m_footer, buttonGap);
    buttons->setContentsMargins(footerPadding, footerPadding, footerPadding, footerPadding);
    m_later = new PlainButton(themes(), WelcomeTexts::later(), m_footer);
    m_done = new ProminentButton(themes(), WelcomeTexts::done(), m_footer);
    buttons->addStretch(1);
    buttons->addWidget(m_later);
    buttons->addWidget(m_done);
    connect(m_later, &QPushButton::clicked, this, &WelcomeView::close);
    connect(m_done, &QPushButton::clicked, this, &WelcomeView::finish);
    return m_footer;
}

void WelcomeView::modelChanged(ModelField field) {
    if (field == ModelField::trusted)
        trustChanged();
    else if (field == ModelField::trigger)
        triggerChanged();
}

void WelcomeView::trustChanged() {
    const bool trusted = m_model.trusted();
    const bool hadKeyboard = m_permissionButtons->isAncestorOf(focusWidget());
    m_permissionButtons->setVisible(!trusted);
    m_allowed->setVisible(trusted);
    m_allow->setDone(trusted);
    if (trusted && hadKeyboard)
        m_done->setFocus();
}

void WelcomeView::triggerChanged() {
    m_hold->setText(WelcomeTexts::holdTitle(m_model.trigger()), WelcomeTexts::holdBody(m_model.trigger()));
}

void WelcomeView::finish() {
    m_model.setOnboarded(true);
    close();
}

void WelcomeView::close() {
    window()->close();
}

QSize WelcomeView::sizeHint() const {
    const int width = readableWidth(theme());
    return {width, heightOf(*m_scroll->widget(), width) + m_footer->sizeHint().height()};
}

QSize WelcomeView::minimumSizeHint() const {
    return {narrowest, lowest};
}

void WelcomeView::themeChanged() {
    makeThin(*m_scroll->verticalScrollBar(), theme());
    updateGeometry();
    ThemedWidget::themeChanged();
}

/// A line parts the footer from what is scrolled above it.
void WelcomeView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, m_footer->y(), width(), 1, theme().palette.divider);
}

} // namespace quillon
