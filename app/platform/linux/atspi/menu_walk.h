#pragma once

#include "accessibility_calls.h"
#include "menu_outline.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>
#include <quillon/kit/menu/raw_menu_item.h>

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quillon::atspi {

/// Reads the items of one menu bar, all levels at once: whatever is known to be needed is asked without
/// waiting for the rest. What an application leaves unanswered is missing from the result, nothing else.
class MenuWalk {
  public:
    /// `outline` may be nullptr. All referred objects must outlive the walk, and the walk must outlive the
    /// pipeline's run.
    MenuWalk(AccessibilityCalls& calls, ToolkitFamily family, const MenuOutline* outline);

    /// Asks for the first items; running the calls' pipeline does the rest.
    void start(const ObjectRef& menuBar);

    /// The top-level menus, as far as they were read, without what the application hides and all that is
    /// below it. Untitled items (separators) have nothing but children, and those that hold others have no
    /// key equivalent: neither can be a command. Qt's items that have no key equivalent and hold no others
    /// count as enabled and not hidden, whatever they are; where all menus of a Qt bar are hidden, it is
    /// drawn by something else, and none counts as hidden.
    std::vector<RawMenuItem> menuBar() const;
    /// Whether every object of the outline was met, but for those below menus that are hidden or too deep to
    /// be read. When not, some object has children without being a menu. True without an outline.
    bool agreesWithOutline() const;
    /// Whether the limits left anything out.
    bool isCut() const { return m_isCut; }

  private:
    /// An item, or a layer between an item and the items of its submenu.
    struct Node {
        ObjectRef object;
        Node* parent = nullptr;
        int depth = 0; ///< of an item; a layer stands at the depth of its items
        bool isLayer = false;
        bool isHidden = false;
        std::optional<std::string> name;
        std::optional<StateSet> states;
        AxKeyEquivalent equivalent;
        /// Absent while they are not known and after they were looked at.
        std::optional<std::vector<ObjectRef>> unopened;
        bool isOnlyChild = false;
        std::vector<Node*> children;
    };

    void addChildren(Node& node, const std::vector<ObjectRef>& objects);
    void learn(Node& node);
    void learnFromOutline(Node& node);
    void askName(Node& node);
    void askStates(Node& node);
    void askStatesAndSize(Node& node);
    bool isTooDeep(const Node& node) const { return node.depth > m_limits.depth; }
    bool staysShut(const Node& node) const { return node.isHidden || isTooDeep(node); }
    bool mayOpen(const Node& node);
    void askChildren(Node& node);
    void askBinding(Node& node);
    void settle(Node& node);
    void settleUnnamed(Node& node, std::optional<Role> role);
    void openDeepLayer(Node& node);
    static RawMenuItem item(const Node& node);
    static void appendItems(const Node& node, std::vector<RawMenuItem>& items);

    AccessibilityCalls& m_calls;
    ReadLimits m_limits;
    ToolkitFamily m_family;
    const MenuOutline* m_outline;
    std::deque<Node> m_nodes; ///< stable addresses; the menu bar first
    std::size_t m_itemCount = 0;
    bool m_isCut = false;
};

} // namespace quillon::atspi
