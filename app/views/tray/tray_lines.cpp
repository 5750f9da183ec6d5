#include "tray_lines.h"

#include "tray_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>

namespace quillon {

namespace {

using Kind = TrayMenuItem::Kind;

int idOf(TrayLine line) {
    return static_cast<int>(line);
}

TrayMenuItem command(TrayLine line, const QString& label, std::optional<Key> key = {}) {
    return {.id = idOf(line), .kind = Kind::command, .label = utf8(label), .key = std::move(key)};
}

TrayMenuItem separator(TrayLine line) {
    return {.id = idOf(line), .kind = Kind::separator};
}

QString showShortcuts(const TrayFacts& facts) {
    return facts.appName ? TrayTexts::showShortcutsFor(foreignLine(*facts.appName))
                         : TrayTexts::showShortcuts();
}

TrayMenuItem holdHint(const TrayFacts& facts) {
    return {
        .id = idOf(TrayLine::holdHint),
        .kind = Kind::line,
        .label = utf8(TrayTexts::holdHint(modifierLabel(modifier(facts.trigger), facts.keyLabels)))};
}

} // namespace

std::vector<TrayMenuItem> trayLines(const TrayFacts& facts) {
    std::vector<TrayMenuItem> lines;
    if (!facts.trusted) {
        lines.push_back(command(TrayLine::allowAccessibility, TrayTexts::allowAccessibility()));
        lines.push_back(separator(TrayLine::separatorBelowAllow));
    }
    lines.push_back(command(TrayLine::showShortcuts, showShortcuts(facts)));
    lines.push_back(holdHint(facts));
    lines.push_back(separator(TrayLine::separatorBelowShortcuts));
    lines.push_back(command(TrayLine::practice, TrayTexts::practice()));
    lines.push_back(command(TrayLine::library, TrayTexts::library()));
    lines.push_back(separator(TrayLine::separatorBelowWindows));
    lines.push_back(command(TrayLine::settings, TrayTexts::settings(), Key::character(",")));
    lines.push_back(command(TrayLine::checkForUpdates, TrayTexts::checkForUpdates()));
    lines.push_back(command(TrayLine::quit, TrayTexts::quit(), Key::character("Q")));
    return lines;
}

} // namespace quillon
