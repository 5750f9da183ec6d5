#include "objects.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <map>

namespace quillon::fake_app {
namespace {

constexpr std::string_view pathRoot = "/org/a11y/atspi/accessible/";

std::uint32_t roleNamed(const std::string& name) {
    static const std::map<std::string, std::uint32_t> table{
        {"check menu item", role::checkMenuItem},
        {"menu", role::menu},
        {"menu item", role::menuItem},
        {"popup menu", role::popupMenu},
        {"radio menu item", role::radioMenuItem},
        {"separator", role::separator},
        {"tear off menu item", role::tearOffMenuItem}};
    return table.at(name);
}

} // namespace

std::uint64_t Object::stateBits() const {
    const auto bit = [](int number, bool isSet) { return std::uint64_t{isSet} << number; };
    return bit(1, active) | bit(8, enabled) | bit(12, focused) | bit(24, sensitive) | bit(25, showing)
           | bit(30, visible);
}

std::optional<Objects> Objects::make(const Options& options) {
    Objects objects;
    objects.m_toolkit = options.toolkit;
    objects.m_toolkitVersion = "3.24.38";
    objects.add(nullptr, role::application, options.name);
    for (const std::string& title : options.dialogs)
        objects.addWindow(title, role::dialog);
    for (const std::string& title : options.windows) {
        Object& window = objects.addWindow(title, role::frame);
        if (options.hasImaginedBar)
            objects.addImaginedBar(window);
        const bool isQt = objects.m_toolkit == "Qt";
        Object& parent = isQt ? window : objects.add(&window, role::filler, "");
        Object& menuBar = objects.add(&parent, role::menuBar, "");
        menuBar.showing = menuBar.isInMenus = true;
        if (options.recording.empty())
            objects.addMadeUp(menuBar, title, options);
        else if (!objects.addRecording(menuBar, options.recording))
            return std::nullopt;
        objects.spoil(menuBar, options);
        if (!options.pointedAt.empty() && !objects.open(menuBar, options.pointedAt))
            return std::nullopt;
    }
    objects.root().children.back()->active = true;
    return objects;
}

Object* Objects::find(std::string_view path) {
    const auto found = m_byPath.find(std::string(path));
    return found == m_byPath.end() ? nullptr : found->second;
}

Object& Objects::add(Object* parent, std::uint32_t role, std::string name) {
    Object& object = m_all.emplace_back();
    object.path = std::string(pathRoot) + (parent ? std::to_string(m_all.size()) : "root");
    object.parent = parent;
    object.role = object.claimedRole = role;
    object.name = std::move(name);
    object.isInMenus = parent && parent->isInMenus;
    m_byPath.emplace(object.path, &object);
    if (parent)
        parent->children.push_back(&object);
    return object;
}

Object& Objects::addWindow(const std::string& title, std::uint32_t role) {
    Object& window = add(&root(), role, title);
    window.showing = true;
    return window;
}

/// A menu bar nearer to the window than the window's own, which nobody draws.
void Objects::addImaginedBar(Object& window) {
    Object& menuBar = add(&window, role::menuBar, "");
    menuBar.showing = menuBar.isInMenus = true;
    menuBar.height = 0;
    add(&add(&menuBar, role::menu, "Imagined"), role::menuItem, "Imagined item").keyBinding = ";;<Primary>z";
}

bool Objects::addRecording(Object& menuBar, const std::string& file) {
    std::ifstream stream(file);
    const auto recording = nlohmann::json::parse(stream, nullptr, false);
    if (recording.is_discarded())
        return false;
    m_toolkit = recording.at("toolkit");
    m_toolkitVersion = recording.at("toolkitVersion");
    const auto addItems = [this](auto& self, Object& parent, const nlohmann::json& items) -> void {
        for (const auto& item : items) {
            Object& object = add(&parent, roleNamed(item.at("role")), item.at("name"));
            object.keyBinding = item.at("keyBinding");
            object.actions = item.at("actions");
            object.enabled = item.at("enabled");
            object.sensitive = item.at("sensitive");
            object.visible = item.at("visible");
            object.width = item.at("size").at(0);
            object.height = item.at("size").at(1);
            self(self, object, item.at("children"));
        }
    };
    addItems(addItems, menuBar, recording.at("menuBar"));
    return true;
}

/// Menus of 200 items each, every tenth of them a submenu that holds the nine that follow.
void Objects::addMadeUp(Object& menuBar, const std::string& window, const Options& options) {
    constexpr std::size_t itemsOfMenu = 200;
    constexpr std::size_t itemsOfSubmenu = 10;
    // Qt puts a layer between an item and its submenu; readers of whole menus need it less than who points.
    const bool isLayered = options.toolkit == "Qt" && !options.pointedAt.empty();
    const auto holder = [this, isLayered](Object& titled) {
        return isLayered ? &add(&titled, role::popupMenu, "") : &titled;
    };
    Object* menu = nullptr;
    Object* submenu = nullptr;
    for (std::size_t made = 0; made < options.items; ++made) {
        const std::size_t place = options.isFlat ? made : made % itemsOfMenu;
        if (place == 0) {
            menu = holder(
                add(&menuBar, role::menu, made == 0 ? "Menu of " + window : "Menu " + std::to_string(made)));
            submenu = nullptr;
        } else if (!options.isFlat && place % itemsOfSubmenu == 0) {
            submenu = holder(add(menu, role::menu, "Submenu " + std::to_string(made)));
        } else {
            addItem(submenu ? *submenu : *menu, made);
        }
    }
}

void Objects::addItem(Object& menu, std::size_t number) {
    Object& item = add(&menu, role::menuItem, "Item " + std::to_string(number));
    item.enabled = item.sensitive = number % 4 != 0;
    item.actions = item.enabled ? 1 : 0;
    item.keyBinding = "i;<Alt>m:i;";
    if (number % 2 == 1)
        item.keyBinding += "<Primary><Shift>" + std::string(1, static_cast<char>('a' + number % 26));
}

/// Opens the menus that these names lead through and points at the last one's item.
bool Objects::open(Object& menuBar, const std::vector<std::string>& names) {
    Object* menu = &menuBar;
    for (std::size_t level = 0; level < names.size(); ++level) {
        const auto item = std::ranges::find(menu->children, names[level], &Object::name);
        if (item == menu->children.end())
            return false;
        (*item)->focused = true;
        menu->selectedChild = *item;
        const bool isLayered =
            !(*item)->children.empty() && (*item)->children.front()->role == role::popupMenu;
        menu = isLayered ? (*item)->children.front() : *item;
        if (!menu->children.empty())
            layOut(*menu, static_cast<int>(level));
    }
    return true;
}

/// Puts an open menu's items on the screen, one below the other, and its layer around them.
void Objects::layOut(Object& menu, int level) {
    int top = 20;
    for (Object* item : menu.children) {
        item->x = 10 + 200 * level;
        item->y = top;
        item->width = 200;
        item->height = 20;
        item->showing = true;
        top += 20;
    }
    if (menu.role != role::popupMenu)
        return;
    menu.x = 10 + 200 * level;
    menu.y = 20;
    menu.width = 200;
    menu.height = top - 20;
}

void Objects::spoil(Object& menuBar, const Options& options) {
    if (menuBar.children.empty())
        return;
    Object& menu = *menuBar.children.front();
    if (options.hasStaleRole)
        for (Object* child : menu.children)
            if (!child->children.empty())
                child->claimedRole = role::menuItem;
    const auto first =
        std::ranges::find_if(menu.children, [](const Object* item) { return !item->name.empty(); });
    if (first != menu.children.end() && !options.title.empty())
        (*first)->name = options.title;
    if (first != menu.children.end() && options.titleBytes > 0)
        (*first)->name.assign(options.titleBytes, 'x');
    if (first != menu.children.end() && options.hasBrokenText)
        (*first)->name = "broken \xff\xfe text";
    if (options.hasCycle) {
        menu.children.push_back(&menu);
        menu.children.push_back(&menuBar);
    }
}

} // namespace quillon::fake_app
