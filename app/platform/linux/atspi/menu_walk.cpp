#include "menu_walk.h"

#include "hidden_items.h"

#include <quillon/app/platform/linux/atspi/key_binding/key_binding.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace quillon::atspi {
namespace {

/// Whether an untitled child of a menu item is no item but the menu that holds its items: Qt's popup menus,
/// or the only child of its kind.
bool isLayerRole(Role role, bool isOnlyChild) {
    return role == Role::popupMenu || (role == Role::menu && isOnlyChild);
}

/// Whether only items that matter are asked for more than name and children: those that would be commands and
/// those that hold others. Where each item costs its own request for whether it is hidden, that saves as
/// much.
constexpr bool asksLate(ToolkitFamily family) {
    return tellsHiddenBySize(family);
}

} // namespace

MenuWalk::MenuWalk(AccessibilityCalls& calls, ToolkitFamily family, const MenuOutline* outline)
    : m_calls(calls), m_limits(calls.limits()), m_family(family), m_outline(outline) {}

void MenuWalk::start(const ObjectRef& menuBar) {
    Node& root = m_nodes.emplace_back();
    root.object = menuBar;
    root.depth = -1;
    m_calls.children(menuBar, [this, &root](auto objects) {
        if (objects)
            addChildren(root, *objects);
    });
}

/// Makes nodes of a child list. An object that holds itself is left out, so cycles end.
void MenuWalk::addChildren(Node& node, const std::vector<ObjectRef>& objects) {
    const auto isAncestor = [&node](const ObjectRef& object) {
        for (const Node* at = &node; at; at = at->parent)
            if (at->object == object)
                return true;
        return false;
    };
    for (const ObjectRef& object : objects) {
        if (m_nodes.size() > m_limits.itemsAtMost) {
            m_isCut = true;
            return;
        }
        if (isAncestor(object))
            continue;
        Node& child = m_nodes.emplace_back();
        child.object = object;
        child.parent = &node;
        child.depth = node.isLayer ? node.depth : node.depth + 1;
        child.isOnlyChild = objects.size() == 1;
        node.children.push_back(&child);
        ++m_itemCount;
        learn(child);
    }
}

void MenuWalk::learn(Node& node) {
    const bool isOutlined = m_outline && m_outline->all.contains(node.object);
    if (isOutlined)
        learnFromOutline(node);
    if (node.isHidden) {
        --m_itemCount; // it will not be shown
        return;
    }
    askName(node);
    const bool mayHaveChildren = !isOutlined || m_outline->menus.contains(node.object);
    if (mayHaveChildren && mayOpen(node)) {
        askChildren(node);
    } else {
        node.unopened.emplace();
        settle(node);
    }
}

void MenuWalk::learnFromOutline(Node& node) {
    node.isHidden = m_outline->hidden.contains(node.object);
    node.states.emplace();
    if (m_outline->usable.contains(node.object)) {
        node.states->insert(State::enabled);
        node.states->insert(State::sensitive);
    }
}

void MenuWalk::askName(Node& node) {
    m_calls.name(node.object, [this, &node](std::optional<std::string> name) {
        if (!name) {
            --m_itemCount; // it will not be shown
            return;
        }
        node.name = std::move(name);
        if (!node.states && !asksLate(m_family) && (tellsHiddenByState(m_family) || !node.name->empty()))
            askStates(node);
        settle(node);
    });
}

void MenuWalk::askStates(Node& node) {
    m_calls.states(node.object, [this, &node](std::optional<StateSet> states) {
        node.states = states;
        node.isHidden = states && tellsHiddenByState(m_family) && !states->has(State::visible);
    });
}

void MenuWalk::askStatesAndSize(Node& node) {
    if (!node.name->empty())
        askStates(node);
    m_calls.size(node.object, [&node](std::optional<Size> size) { node.isHidden = size && size->isEmpty(); });
}

/// Whether the item's children may be read: it is not too deep, and the budget has something left.
bool MenuWalk::mayOpen(const Node& node) {
    if (isTooDeep(node))
        return false;
    const bool hasBudget = m_itemCount < m_limits.items;
    m_isCut = m_isCut || !hasBudget;
    return hasBudget;
}

void MenuWalk::askChildren(Node& node) {
    m_calls.children(node.object, [this, &node](std::optional<std::vector<ObjectRef>> objects) {
        node.unopened = objects ? std::move(*objects) : std::vector<ObjectRef>();
        settle(node);
    });
}

void MenuWalk::askBinding(Node& node) {
    if (node.name->empty())
        return;
    m_calls.keyBinding(node.object, [this, &node](std::optional<std::string> binding) {
        if (binding)
            node.equivalent = keyEquivalent({*binding, m_family, *node.name});
        if (node.equivalent.modifiers && asksLate(m_family))
            askStatesAndSize(node);
    });
}

/// Goes on with a node of which both the name and the children are known.
void MenuWalk::settle(Node& node) {
    if (!node.name || !node.unopened)
        return;
    if (node.name->empty() && node.depth > 0 && (isTooDeep(node) || !node.unopened->empty())) {
        m_calls.role(node.object, [this, &node](auto role) { settleUnnamed(node, role); });
        return;
    }
    const std::vector<ObjectRef> children = *std::exchange(node.unopened, std::nullopt);
    if (children.empty()) {
        askBinding(node);
        return;
    }
    if (asksLate(m_family))
        askStatesAndSize(node);
    addChildren(node, children);
}

void MenuWalk::settleUnnamed(Node& node, std::optional<Role> role) {
    const bool isLayer = role && isLayerRole(*role, node.isOnlyChild) && !node.parent->isLayer;
    if (isLayer) {
        node.isLayer = true;
        --m_itemCount;
    }
    auto children = std::exchange(node.unopened, std::nullopt);
    if (children && !children->empty()) {
        addChildren(node, *children);
    } else if (isLayer) {
        openDeepLayer(node);
    }
}

/// Reads a layer that counted as too deep before it was known to be one.
void MenuWalk::openDeepLayer(Node& node) {
    if (m_itemCount >= m_limits.items) {
        m_isCut = true;
        return;
    }
    m_calls.children(node.object, [this, &node](auto objects) {
        if (objects)
            addChildren(node, *objects);
    });
}

bool MenuWalk::agreesWithOutline() const {
    if (!m_outline)
        return true;
    enum class Mark : std::uint8_t { unmet, met, shutMenu };
    std::vector<Mark> marks(m_outline->all.size(), Mark::unmet);
    for (const Node& node : m_nodes)
        if (const auto place = m_outline->all.find(node.object); place != m_outline->all.end())
            marks[place->second] =
                staysShut(node) && m_outline->menus.contains(node.object) ? Mark::shutMenu : Mark::met;
    // What was met had all of its children met too, unless it stayed shut. So unmet objects are below the
    // last one that was met before them.
    bool mayBeUnmet = false;
    for (const Mark mark : marks) {
        if (mark == Mark::unmet && !mayBeUnmet)
            return false;
        if (mark != Mark::unmet)
            mayBeUnmet = mark == Mark::shutMenu;
    }
    return true;
}

std::vector<RawMenuItem> MenuWalk::menuBar() const {
    std::vector<RawMenuItem> items;
    if (m_nodes.empty())
        return items;
    const std::vector<Node*>& menus = m_nodes.front().children;
    const bool isDrawn = std::ranges::any_of(menus, [](const Node* menu) { return !menu->isHidden; });
    for (const Node* menu : menus)
        if (menu->name && (!menu->isHidden || !isDrawn))
            items.push_back(item(*menu));
    return items;
}

RawMenuItem MenuWalk::item(const Node& node) {
    RawMenuItem item;
    item.title = *node.name;
    const bool isTitled = !item.title.empty(); // of the others only their place is known
    item.cmdChar = node.equivalent.character;
    item.cmdModifiers = node.equivalent.modifiers;
    item.cmdGlyph = node.equivalent.glyph;
    item.cmdVirtualKey = node.equivalent.virtualKey;
    item.enabled = !isTitled || !node.states || node.states->isUsable();
    appendItems(node, item.children);
    return item;
}

/// The items of a menu, those of layers in place of the layer. What told no name is left out.
void MenuWalk::appendItems(const Node& node, std::vector<RawMenuItem>& items) {
    for (const Node* child : node.children) {
        if (child->isLayer)
            appendItems(*child, items);
        else if (child->name && !child->isHidden)
            items.push_back(item(*child));
    }
}

} // namespace quillon::atspi
