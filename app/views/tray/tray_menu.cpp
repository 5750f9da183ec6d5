#include "tray_menu.h"

#include "pop_up_menu.h"
#include "tray_icon.h"
#include "tray_texts.h"

#include <quillon/app/views/components/text.h>

#include <QCursor>

#include <utility>

namespace quillon {

TrayMenu::TrayMenu(AppModel& model, Tray& tray, ThemeSource& themes, TrayActions actions)
    : m_model(model), m_tray(tray), m_themes(themes), m_actions(std::move(actions)) {
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        switch (field) {
        case ModelField::trusted:
        case ModelField::current:
        case ModelField::trigger:
        case ModelField::keyLabels: return update();
        default: return;
        }
    });
    update();
}

TrayMenu::~TrayMenu() = default;

void TrayMenu::show() {
    m_tray.show({
        .name = utf8(TrayTexts::programName()),
        .themeIcon = trayIconName,
        .draw = trayIcon,
        .chosen = [this](int id) { choose(static_cast<TrayLine>(id)); },
        .openMenu = [this] { popUp(); },
        .secondaryClick = [this] { m_actions.showOverlay(); },
    });
}

void TrayMenu::popUp() {
    if (!m_menu) {
        m_menu = std::make_unique<PopUpMenu>(m_themes, [this](int id) { choose(static_cast<TrayLine>(id)); });
        m_menu->setItems(m_lines);
    }
    m_menu->popUp(QCursor::pos());
}

void TrayMenu::update() {
    const auto& current = m_model.current();
    auto lines = trayLines({
        .trusted = m_model.trusted(),
        .appName = current ? std::optional(current->appName) : std::nullopt,
        .trigger = m_model.trigger(),
        .keyLabels = m_model.keyLabels(),
    });
    if (lines == m_lines)
        return;
    m_lines = std::move(lines);
    m_tray.setMenu(m_lines);
    if (m_menu)
        m_menu->setItems(m_lines);
}

void TrayMenu::choose(TrayLine line) const {
    switch (line) {
    case TrayLine::allowAccessibility: m_actions.openWindow(WindowName::welcome); break;
    case TrayLine::showShortcuts: m_actions.showOverlay(); break;
    case TrayLine::practice: m_actions.openWindow(WindowName::practice); break;
    case TrayLine::library: m_actions.openWindow(WindowName::library); break;
    case TrayLine::settings: m_actions.openWindow(WindowName::settings); break;
    case TrayLine::checkForUpdates: m_actions.checkForUpdates(); break;
    case TrayLine::quit: m_actions.quit(); break;
    case TrayLine::separatorBelowAllow:
    case TrayLine::holdHint:
    case TrayLine::separatorBelowShortcuts:
    case TrayLine::separatorBelowWindows: break;
    }
}

} // namespace quillon
