#include "menu_parser.h"

#include <quillon/kit/base/unicode.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace quillon::MenuParser {

namespace {

/// An item's title as it stands in a path: well-formed, no-break spaces made plain, trimmed.
std::string itemTitle(std::string_view title) {
    static constexpr std::string_view noBreakSpace = "\u00a0";
    const std::string repaired = unicode::repaired(title);
    std::string plain;
    std::size_t from = 0;
    for (auto at = repaired.find(noBreakSpace); at != std::string::npos;
         at = repaired.find(noBreakSpace, from)) {
        plain.append(repaired, from, at - from).push_back(' ');
        from = at + noBreakSpace.size();
    }
    plain.append(repaired, from);
    return std::string(unicode::trimmed(plain, unicode::Trim::whitespace));
}

/// Collects the entries of one menu bar, keeping the path to where it is.
class Walk {
  public:
    explicit Walk(int maxDepth) : m_maxDepth(maxDepth) {}

    void menu(const RawMenuItem& menu) {
        const std::string repaired = unicode::repaired(menu.title);
        const std::string_view title = unicode::trimmed(repaired, unicode::Trim::blanks);
        if (title.empty())
            return;
        m_path.emplace_back(title);
        children(menu, 1);
        m_path.pop_back();
    }

    std::vector<MenuEntry> take() { return std::move(m_entries); }

  private:
    void children(const RawMenuItem& parent, int depth) {
        for (const RawMenuItem& child : parent.children) {
            std::string title = itemTitle(child.title);
            if (title.empty())
                continue;
            m_path.push_back(std::move(title));
            if (child.children.empty())
                leaf(child);
            else if (depth < m_maxDepth)
                children(child, depth + 1);
            m_path.pop_back();
        }
    }

    void leaf(const RawMenuItem& item) {
        std::optional<Shortcut> shortcut = item.shortcut();
        if (!shortcut)
            return;
        MenuEntry entry{m_path, *std::move(shortcut), item.enabled};
        if (m_seen.insert(entry.id()).second)
            m_entries.push_back(std::move(entry));
    }

    int m_maxDepth;
    std::vector<std::string> m_path;
    std::unordered_set<std::string> m_seen;
    std::vector<MenuEntry> m_entries;
};

bool isSystemMenu(const RawMenuItem& firstMenu) {
    return firstMenu.title.empty() || firstMenu.title == "Apple";
}

} // namespace

std::vector<MenuEntry> entries(std::span<const RawMenuItem> menuBar, int maxDepth) {
    if (!menuBar.empty() && isSystemMenu(menuBar.front()))
        menuBar = menuBar.subspan(1);
    Walk walk(maxDepth);
    for (const RawMenuItem& menu : menuBar)
        walk.menu(menu);
    return walk.take();
}

} // namespace quillon::MenuParser
