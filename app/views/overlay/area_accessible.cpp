#include "area_accessible.h"

#include "shortcut_area.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <vector>

namespace quillon {

namespace {

enum class ItemKind { heading, row };

/// An element of the area: a position in the layout's headings or rows.
struct Item {
    ItemKind kind = ItemKind::row;
    std::size_t position = 0;
};

double topOf(const AreaLayout& layout, const Item& item) {
    return item.kind == ItemKind::heading ? layout.headings[item.position].rect.top()
                                          : layout.rows[item.position].rect.top();
}

/// Card by card: its headings and rows from the top.
std::vector<Item> itemsOf(const AreaLayout& layout) {
    std::vector<Item> items;
    items.reserve(layout.headings.size() + layout.rows.size());
    std::size_t heading = 0;
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        const RowBox& box = layout.rows[row];
        while (heading < layout.headings.size()
               && (layout.headings[heading].card < box.card
                   || (layout.headings[heading].card == box.card
                       && layout.headings[heading].rect.top() <= topOf(layout, {ItemKind::row, row}))))
            items.push_back({ItemKind::heading, heading++});
        items.push_back({ItemKind::row, row});
    }
    return items;
}

/// One heading or row. Invalid as soon as the area shows something else.
class ItemAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    ItemAccessible(ShortcutArea* area, Item item)
        : m_area(area), m_item(item), m_generation(area->generation()) {}

    bool isValid() const override { return m_area && m_area->generation() == m_generation; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? m_area->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_area.data());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QString text(QAccessible::Text kind) const override {
        if (!isValid() || kind != QAccessible::Name)
            return {};
        if (m_item.kind == ItemKind::row)
            return m_area->spokenRow(m_item.position);
        return m_area->layout().headings[m_item.position].text(m_area->content());
    }
    void setText(QAccessible::Text, const QString&) override {}

    QAccessible::Role role() const override {
        return m_item.kind == ItemKind::row ? QAccessible::ListItem : QAccessible::Heading;
    }

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect local = m_area->visualRect(box());
        return {m_area->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.offscreen = !m_area->visualRect(box()).intersects(m_area->viewport()->rect());
        state.invisible = !m_area->isVisible();
        if (m_item.kind == ItemKind::row) {
            state.focusable = true;
            state.focused = m_area->hasFocus() && m_area->currentRow() == m_item.position;
            state.disabled = !m_area->isEnabledRow(m_item.position);
        }
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface && m_item.kind == ItemKind::row
                   ? static_cast<QAccessibleActionInterface*>(this)
                   : nullptr;
    }
    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (!isValid())
            return;
        if (name == showMenuAction()) {
            m_area->openRowMenu(m_item.position);
        } else if (name == setFocusAction()) {
            m_area->setFocus(Qt::OtherFocusReason);
            m_area->setCurrentRow(m_item.position);
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QRectF box() const {
        return m_item.kind == ItemKind::row ? m_area->layout().rows[m_item.position].rect
                                            : m_area->layout().headings[m_item.position].rect;
    }

    QPointer<ShortcutArea> m_area;
    Item m_item;
    int m_generation;
};

/// The area as a list of its headings and rows; its viewport and scroll bars are no part of it.
class AreaAccessible : public QAccessibleWidget {
  public:
    explicit AreaAccessible(ShortcutArea* area) : QAccessibleWidget(area, QAccessible::List), m_area(area) {}
    ~AreaAccessible() override { forget(); }

    int childCount() const override { return static_cast<int>(items().size()); }

    /// The focus is told by the row that has it.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && !m_area->currentRow();
        return state;
    }

    QAccessibleInterface* child(int index) const override {
        const std::vector<Item>& all = items();
        if (index < 0 || static_cast<std::size_t>(index) >= all.size())
            return nullptr;
        const auto at = static_cast<std::size_t>(index);
        if (m_ids[at] == 0)
            m_ids[at] = QAccessible::registerAccessibleInterface(new ItemAccessible(m_area, all[at]));
        return QAccessible::accessibleInterface(m_ids[at]);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        items();
        const QAccessible::Id id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
        const auto found = std::ranges::find(m_ids, id);
        return found == m_ids.end() ? -1 : static_cast<int>(found - m_ids.begin());
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = 0; index < childCount(); ++index) {
            QAccessibleInterface* item = child(index);
            if (item && item->rect().contains(x, y))
                return item;
        }
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override {
        if (!m_area->hasFocus() || !m_area->currentRow())
            return nullptr;
        return child(indexOfRow(*m_area->currentRow()));
    }

    int indexOfRow(std::size_t row) const {
        const auto found = std::ranges::find_if(
            items(), [row](const Item& item) { return item.kind == ItemKind::row && item.position == row; });
        return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
    }

  private:
    const std::vector<Item>& items() const {
        if (m_generation != m_area->generation()) {
            forget();
            m_generation = m_area->generation();
            m_items = itemsOf(m_area->layout());
            m_ids.assign(m_items.size(), 0);
        }
        return m_items;
    }

    void forget() const {
        for (const QAccessible::Id id : m_ids) {
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
        }
        m_ids.clear();
        m_items.clear();
    }

    ShortcutArea* m_area;
    mutable int m_generation = -1;
    mutable std::vector<Item> m_items;
    mutable std::vector<QAccessible::Id> m_ids; ///< 0 for an element that nobody asked for yet
};

QAccessibleInterface* accessibleFor(const QString& className, QObject* object) {
    if (className != QLatin1StringView(ShortcutArea::staticMetaObject.className()))
        return nullptr;
    auto* area = qobject_cast<ShortcutArea*>(object);
    return area ? new AreaAccessible(area) : nullptr;
}

} // namespace

void installAreaAccessible() {
    QAccessible::installFactory(accessibleFor);
}

void tellAreaReplaced(ShortcutArea& area) {
    if (!QAccessible::isActive() || !area.isVisible())
        return;
    // Readers keep an element's children until the element itself comes anew.
    for (const auto kind : {QAccessible::ObjectDestroyed, QAccessible::ObjectCreated}) {
        QAccessibleEvent event(&area, kind);
        QAccessible::updateAccessibility(&event);
    }
}

void tellRowFocused(ShortcutArea& area, std::size_t row) {
    if (!QAccessible::isActive())
        return;
    const auto* list = dynamic_cast<AreaAccessible*>(QAccessible::queryAccessibleInterface(&area));
    if (!list)
        return;
    QAccessibleEvent event(&area, QAccessible::Focus);
    event.setChild(list->indexOfRow(row));
    QAccessible::updateAccessibility(&event);
}

} // namespace quillon
