#include "pop_up_menu.h"

#include "tray_texts.h"

#include <quillon/app/views/components/styled_menu.h>

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// In a menu an ampersand marks the next letter; two stand for one.
QString menuText(const std::string& label) {
    return QString::fromStdString(label).replace(u'&', u"&&"_s);
}

/// With the toolkit's "Ctrl", which it takes for ⌘ on macOS.
QKeySequence keysOf(const std::optional<Key>& key) {
    const std::string* const character = key ? key->asCharacter() : nullptr;
    return character ? QKeySequence(u"Ctrl+"_s + QString::fromStdString(*character)) : QKeySequence();
}

void describe(QAction& action, const TrayMenuItem& item) {
    action.setSeparator(item.kind == TrayMenuItem::Kind::separator);
    action.setEnabled(item.kind == TrayMenuItem::Kind::command);
    action.setText(menuText(item.label));
    action.setShortcut(keysOf(item.key));
    action.setMenuRole(QAction::NoRole);
}

std::vector<int> idsOf(const std::vector<TrayMenuItem>& items) {
    std::vector<int> ids;
    for (const TrayMenuItem& item : items)
        ids.push_back(item.id);
    return ids;
}

/// While it is open the keys that it shows beside its lines choose them.
class KeyedMenu final : public QMenu {
  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const QKeySequence pressed(event->keyCombination());
        for (QAction* const action : actions()) {
            if (pressed.isEmpty() || action->shortcut() != pressed)
                continue;
            close();
            action->trigger();
            return;
        }
        QMenu::keyPressEvent(event);
    }
};

} // namespace

PopUpMenu::PopUpMenu(ThemeSource& themes, std::function<void(int)> chosen)
    : m_chosen(std::move(chosen)), m_menu(std::make_unique<KeyedMenu>()) {
    m_menu->setAccessibleName(TrayTexts::programName());
    const auto wear = [this, &themes] { styleMenu(*m_menu, themes.theme()); };
    wear();
    m_themeChange = themes.changed.subscribe(wear);
}

QAction& PopUpMenu::actionOf(const TrayMenuItem& item) {
    QAction*& action = m_actions[item.id];
    if (action == nullptr) {
        action = new QAction(m_menu.get());
        // Not for the menu, which ends what connects it with an action that is taken out.
        QObject::connect(action, &QAction::triggered, action, [this, id = item.id] { m_chosen(id); });
    }
    return *action;
}

void PopUpMenu::setItems(const std::vector<TrayMenuItem>& items) {
    for (const TrayMenuItem& item : items)
        describe(actionOf(item), item);
    if (idsOf(items) != m_order)
        arrange(items);
    // An open menu does not grow by itself.
    if (m_menu->isVisible())
        m_menu->resize(m_menu->sizeHint());
}

void PopUpMenu::arrange(const std::vector<TrayMenuItem>& items) {
    QAction* const highlighted = m_menu->activeAction();
    for (QAction* const action : m_menu->actions())
        m_menu->removeAction(action);
    for (const TrayMenuItem& item : items)
        m_menu->addAction(m_actions.at(item.id));
    m_order = idsOf(items);
    if (highlighted != nullptr && m_menu->actions().contains(highlighted))
        m_menu->setActiveAction(highlighted);
}

void PopUpMenu::popUp(QPoint place) {
    m_menu->popup(place);
}

} // namespace quillon
