#include "cap_pictures.h"

#include <quillon/app/views/components/key_caps.h>
#include <quillon/app/views/components/text.h>

#include <QPainter>

#include <vector>

namespace quillon {

namespace {

constexpr double margin = 8;
constexpr double width = 420;
constexpr double lineGap = 6;

const Modifiers everyModifier{Modifiers::command, Modifiers::shift, Modifiers::option, Modifiers::control};

std::vector<Shortcut> everyCap() {
    std::vector<Shortcut> caps{{everyModifier, Key::character("A")}};
    for (const SpecialKey key : allSpecialKeys)
        caps.push_back({{}, Key::special(key)});
    for (const char character :
         std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789,.;:'\"`^~-_=+*/\\|<>()[]{}?!@#$%&"))
        caps.push_back({{}, Key::character(std::string(1, character))});
    for (const char* const character : {"Ä", "É", "ß", "Ж", "あ"})
        caps.push_back({{}, Key::character(character)});
    return caps;
}

/// Draws caps line by line; returns where the last line ends.
double drawLines(QPainter& painter, const Theme& theme, const std::vector<Shortcut>& shortcuts) {
    const KeyCaps caps(theme, theme.keySize());
    QPointF at(margin, margin);
    for (const Shortcut& shortcut : shortcuts) {
        if (at.x() + caps.width(shortcut) > width - margin)
            at = {margin, at.y() + caps.height() + lineGap};
        caps.paint(painter, at, shortcut);
        at.rx() += caps.width(shortcut) + 3;
    }
    const Shortcut beside{{Modifiers::shift, Modifiers::command}, Key::character("S")};
    at = {margin, at.y() + caps.height() + lineGap};
    painter.setFont(theme.styles.body);
    painter.setPen(theme.palette.primary);
    painter.drawText(QPointF(at.x(), at.y() + caps.baseline()), QStringLiteral("Save As and more beside"));
    caps.paint(painter, at + QPointF(170, 0), beside);
    return at.y() + caps.height() + margin;
}

} // namespace

QImage capPicture(const Theme& theme, double ratio, int enlarged) {
    QImage image(QSizeF(width * ratio, 400 * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(theme.palette.card);
    QPainter painter(&image);
    const double height = drawLines(painter, theme, everyCap());
    painter.end();
    image = image.copy(0, 0, image.width(), static_cast<int>(height * ratio));
    image.setDevicePixelRatio(1);
    return image.scaled(image.size() * enlarged, Qt::KeepAspectRatio, Qt::FastTransformation);
}

} // namespace quillon
