#include "keyboard_view.h"

#include "lit_keys.h"
#include "practice_texts.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/ink.h>
#include <quillon/app/views/components/key_pictograms.h>
#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/key_names.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace quillon {

namespace {

constexpr double smallestUnit = 20;
constexpr double usualUnit = 28;
constexpr double largestUnit = 34;
constexpr double gapPerUnit = 0.1;
constexpr double radiusPerUnit = 0.16;
constexpr double legendPerUnit = 0.36;
constexpr double doubleLegendPerUnit = 0.31;
constexpr double paddingPerUnit = 0.1;
/// Below this share of its size a word is not written at all.
constexpr double smallestShrink = 0.6;

constexpr std::array modifierLegends{
    std::pair{ModifierKeyCodes::control, Modifiers::control},
    std::pair{ModifierKeyCodes::rightControl, Modifiers::control},
    std::pair{ModifierKeyCodes::option, Modifiers::option},
    std::pair{ModifierKeyCodes::shift, Modifiers::shift},
    std::pair{ModifierKeyCodes::rightShift, Modifiers::shift},
    std::pair{ModifierKeyCodes::command, Modifiers::command},
    std::pair{ModifierKeyCodes::rightCommand, Modifiers::command},
};

QString capital(const std::string& character) {
    const std::string upper = unicode::toUpper(character);
    return text(unicode::isOneCharacter(upper) ? upper : character);
}

/// Letters have their capital alone on their key.
bool isLetterKey(const KeyPrint& print) {
    return print.shifted.empty() || unicode::toUpper(print.plain) == unicode::toUpper(print.shifted);
}

} // namespace

KeyboardView::KeyboardView(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_printed(usualKeys()), m_plan(keyboardPlan(m_printed.shape)) {
    readAs(*this, ReadAs::text);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    name();
}

void KeyboardView::setPrinted(PrintedKeys printed) {
    if (printed == m_printed)
        return;
    m_printed = std::move(printed);
    m_plan = keyboardPlan(m_printed.shape);
    follow();
}

void KeyboardView::light(std::optional<Shortcut> answer, std::optional<Shortcut> pressed) {
    m_answer = std::move(answer);
    m_pressed = std::move(pressed);
    follow();
}

void KeyboardView::follow() {
    m_lit = m_answer ? litKeys(*m_answer, m_printed) : std::set<std::int64_t>();
    m_marked = m_pressed ? litKeys(*m_pressed, m_printed) : std::set<std::int64_t>();
    name();
    update();
}

void KeyboardView::name() {
    setAccessibleName(
        m_answer ? PracticeTexts::keyboardWith(keysText(*m_answer, theme())) : PracticeTexts::keyboard());
}

void KeyboardView::themeChanged() {
    name();
    ThemedWidget::themeChanged();
}

QSize KeyboardView::sizeHint() const {
    return (keyboardSize * usualUnit).toSize();
}

QSize KeyboardView::minimumSizeHint() const {
    return (keyboardSize * smallestUnit).toSize();
}

int KeyboardView::heightForWidth(int width) const {
    return static_cast<int>(
        std::ceil(std::min(width / keyboardSize.width(), largestUnit) * keyboardSize.height()));
}

double KeyboardView::unit() const {
    return std::min({width() / keyboardSize.width(), height() / keyboardSize.height(), largestUnit});
}

QPainterPath KeyboardView::shapeOf(const PlannedKey& key) const {
    const double radius = radiusPerUnit * unit();
    const double inset = gapPerUnit * unit() / 2;
    const auto box = [&](const QRectF& place) {
        const QRectF at(place.topLeft() * unit(), place.size() * unit());
        QPainterPath path;
        path.addRoundedRect(at.adjusted(inset, inset, -inset, -inset), radius, radius);
        return path;
    };
    const QPainterPath shape = box(key.place);
    return key.more ? shape.united(box(*key.more)) : shape;
}

void KeyboardView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - keyboardSize.width() * unit()) / 2, 0);
    for (const PlannedKey& key : m_plan)
        paintKey(painter, key);
}

void KeyboardView::paintKey(QPainter& painter, const PlannedKey& key) const {
    const Palette& palette = theme().palette;
    const bool isLit = key.code && m_lit.contains(*key.code);
    const bool isMarked = key.code && m_marked.contains(*key.code);
    painter.setBrush(isLit ? palette.accent : palette.card);
    painter.setPen(isMarked ? QPen(palette.primary, 1.5) : QPen(palette.primaryAt(isLit ? 0.3 : 0.14), 1));
    const QPainterPath shape = shapeOf(key);
    painter.drawPath(shape);
    if (key.code)
        paintLegend(
            painter, key, shape.boundingRect(),
            isLit      ? palette.onAccent
            : isMarked ? palette.primary
                       : palette.secondary);
}

void KeyboardView::paintLegend(
    QPainter& painter, const PlannedKey& key, const QRectF& room, const QColor& ink) const {
    painter.setPen(ink);
    const double padding = paddingPerUnit * unit();
    const QRectF inside = room.adjusted(padding, padding / 2, -padding, -padding / 2);
    const auto print = m_printed.keys.find(*key.code);
    if (print == m_printed.keys.end()) {
        const QString legend = legendOf(*key.code);
        if (!KeyPictograms::has(legend)) {
            painter.setFont(semibold(atSize(theme().styles.body, legendPerUnit * unit())));
            paintText(painter, inside, legend, Qt::AlignCenter);
            return;
        }
        const double ratio = painter.device()->devicePixelRatioF();
        const auto drawing = KeyPictograms::drawing(legend, legendPerUnit * unit() * ratio);
        QImage picture = Ink::ofPath(drawing.path, drawing.size, ink).image;
        picture.setDevicePixelRatio(ratio);
        painter.drawImage(
            room.center() - QPointF(drawing.size.width(), drawing.size.height()) / (2 * ratio), picture);
        return;
    }
    if (isLetterKey(print->second)) {
        painter.setFont(semibold(atSize(theme().styles.body, legendPerUnit * unit())));
        paintText(painter, inside, capital(print->second.plain), Qt::AlignCenter);
        return;
    }
    painter.setFont(semibold(atSize(theme().styles.body, doubleLegendPerUnit * unit())));
    paintText(painter, inside, text(print->second.shifted), Qt::AlignHCenter | Qt::AlignTop);
    paintText(painter, inside, text(print->second.plain), Qt::AlignHCenter | Qt::AlignBottom);
}

/// Words that are too wide for their key are written smaller.
void KeyboardView::paintText(
    QPainter& painter, const QRectF& room, const QString& legend, Qt::Alignment where) const {
    const QFont before = painter.font();
    const double wanted = QFontMetricsF(before).horizontalAdvance(legend);
    if (wanted > room.width()) {
        const double shrink = room.width() / wanted;
        if (shrink < smallestShrink)
            return;
        painter.setFont(atSize(before, std::floor(pixelSize(before) * shrink)));
    }
    painter.drawText(room, static_cast<int>(where) | Qt::TextDontClip, legend);
    painter.setFont(before);
}

/// What is on a key without characters; "" for nothing.
QString KeyboardView::legendOf(std::int64_t code) const {
    const KeyNames* const names = theme().keyNames.get();
    const auto* const modifier =
        std::ranges::find(modifierLegends, code, [](const auto& one) { return one.first; });
    if (modifier != modifierLegends.end())
        return text(names ? names->nameOf(modifier->second).shown : modifier->second.glyphs());
    const auto special = SpecialKeys::fromKeyCode(code);
    if (!special || *special == SpecialKey::space)
        return {};
    return text(names ? names->nameOf(*special).shown : std::string(glyph(*special)));
}

} // namespace quillon
