#include "tray_menu.h"

#include "tray_texts.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// In a menu an ampersand marks the next letter; two stand for one.
QString menuText(QString text) {
    return text.replace(u'&', u"&&"_s);
}

} // namespace

TrayMenu::TrayMenu(AppModel& model, ThemeSource& themes, std::function<void()> quit)
    : m_model(model), m_quit(std::move(quit)),
      m_item(
          m_menu, themes,
          {.openMenu = [this](QPoint place) { popUp(place); },
           .showOverlay = [this] { m_model.showOverlay(Stickiness::sticky); }}) {
    build();
    m_modelChange = model.changed.subscribe([this](ModelField) { modelChanged(); });
    modelChanged();
}

TrayMenu::~TrayMenu() = default;

void TrayMenu::build() {
    m_allow = addWindowItem(TrayTexts::allowAccessibility(), WindowName::welcome);
    m_allowSeparator = m_menu.addSeparator();
    m_show = m_menu.addAction(QString(), this, [this] { m_model.showOverlay(Stickiness::sticky); });
    m_hint = m_menu.addAction(QString());
    m_hint->setEnabled(false);
    m_menu.addSeparator();
    QAction* const quit = m_menu.addAction(TrayTexts::quit(), this, [this] { m_quit(); });
    quit->setShortcut(QKeySequence::Quit);
}

QAction* TrayMenu::addWindowItem(const QString& label, WindowName window) {
    return m_menu.addAction(label, this, [this, window] { m_model.requestWindow(window); });
}

void TrayMenu::modelChanged() {
    m_allow->setVisible(!m_model.trusted());
    m_allowSeparator->setVisible(!m_model.trusted());
    const auto& current = m_model.current();
    m_show->setText(
        current ? TrayTexts::showShortcutsFor(menuText(foreignLine(current->appName)))
                : TrayTexts::showShortcuts());
    m_hint->setText(TrayTexts::holdHint(text(glyph(m_model.trigger()))));
}

} // namespace quillon
