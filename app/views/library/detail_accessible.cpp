#include "detail_accessible.h"

#include "library_detail.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <array>
#include <vector>

namespace quillon {

namespace {

constexpr int buttonsOfRow = static_cast<int>(allRowButtons.size());

/// What a row and its buttons have in common. Invalid as soon as the list shows other rows.
class PartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    PartAccessible(LibraryDetail* detail, int row)
        : m_detail(detail), m_row(row), m_generation(detail->generation()) {}

    bool isValid() const override { return m_detail && m_detail->generation() == m_generation; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? m_detail->window()->windowHandle() : nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int at = 0; at < childCount(); ++at)
            if (QAccessibleInterface* const part = child(at); part->rect().contains(x, y))
                return part;
        return nullptr;
    }

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect local = localRect();
        return {m_detail->viewport()->mapToGlobal(local.topLeft()), local.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.offscreen = !localRect().intersects(m_detail->viewport()->rect());
        state.invisible = !m_detail->isVisible();
        state.focusable = true;
        const bool isCurrent = m_detail->hasFocus() && m_detail->currentIndex().row() == m_row;
        state.focused = isCurrent && m_detail->currentButton() == button();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    void doAction(const QString& name) override {
        if (isValid() && name == setFocusAction())
            m_detail->goTo(m_row, button());
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  protected:
    /// Absent for the row itself.
    virtual std::optional<RowButton> button() const = 0;
    /// In the viewport.
    virtual QRect localRect() const = 0;

    LibraryDetail& detail() const { return *m_detail; }
    QAccessibleInterface* list() const { return QAccessible::queryAccessibleInterface(m_detail.data()); }
    int rowNumber() const { return m_row; }
    QModelIndex index() const { return m_detail->rows().index(m_row); }
    const LibraryRow& row() const { return m_detail->rows().row(index()); }

  private:
    QPointer<LibraryDetail> m_detail;
    int m_row;
    int m_generation;
};

class ButtonAccessible : public PartAccessible {
  public:
    ButtonAccessible(LibraryDetail* detail, int row, RowButton button)
        : PartAccessible(detail, row), m_button(button) {}

    QAccessibleInterface* parent() const override { return isValid() ? list()->child(rowNumber()) : nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return nameOf(m_button, row());
        return kind == QAccessible::Description ? helpOf(m_button, row()) : QString();
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction())
            detail().press(rowNumber(), m_button);
        else
            PartAccessible::doAction(name);
    }

  protected:
    std::optional<RowButton> button() const override { return m_button; }
    QRect localRect() const override { return detail().buttonRect(rowNumber(), m_button); }

  private:
    RowButton m_button;
};

class RowAccessible : public PartAccessible {
  public:
    using PartAccessible::PartAccessible;
    ~RowAccessible() override {
        for (const QAccessible::Id id : m_buttons)
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
    }

    QAccessibleInterface* parent() const override { return isValid() ? list() : nullptr; }
    int childCount() const override {
        return isValid() && detail().rows().hasButtons(index()) ? buttonsOfRow : 0;
    }
    QAccessibleInterface* child(int at) const override {
        if (at < 0 || at >= childCount())
            return nullptr;
        const auto position = static_cast<std::size_t>(at);
        QAccessible::Id& id = m_buttons[position];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(
                new ButtonAccessible(&detail(), rowNumber(), allRowButtons[position]));
        return QAccessible::accessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const QAccessible::Id id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
        const auto found = std::ranges::find(m_buttons, id);
        return found == m_buttons.end() ? -1 : static_cast<int>(found - m_buttons.begin());
    }
    QAccessible::Role role() const override {
        return isValid() && row().kind == LibraryRow::Kind::heading ? QAccessible::Heading
                                                                    : QAccessible::ListItem;
    }
    QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? index().data(Qt::AccessibleTextRole).toString()
                                                      : QString();
    }
    QStringList actionNames() const override { return {setFocusAction()}; }

    /// Those that somebody asked for.
    std::vector<QAccessibleInterface*> knownButtons() const {
        std::vector<QAccessibleInterface*> known;
        for (const QAccessible::Id id : m_buttons)
            if (id != 0)
                known.push_back(QAccessible::accessibleInterface(id));
        return known;
    }

  protected:
    std::optional<RowButton> button() const override { return std::nullopt; }
    QRect localRect() const override { return detail().visualRect(index()); }

  private:
    mutable std::array<QAccessible::Id, allRowButtons.size()> m_buttons{}; ///< 0 before it is asked for
};

/// The list with its rows; its viewport and scroll bars are no part of it.
class DetailAccessible : public QAccessibleWidget {
  public:
    explicit DetailAccessible(LibraryDetail* detail)
        : QAccessibleWidget(detail, QAccessible::List), m_detail(detail) {}
    ~DetailAccessible() override { forget(); }

    int childCount() const override { return m_detail->rows().rowCount(); }
    QAccessibleInterface* child(int at) const override {
        if (at < 0 || at >= childCount())
            return nullptr;
        QAccessible::Id& id = ids()[static_cast<std::size_t>(at)];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new RowAccessible(m_detail, at));
        return QAccessible::accessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const QAccessible::Id id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
        const auto found = std::ranges::find(ids(), id);
        return found == m_ids.end() ? -1 : static_cast<int>(found - m_ids.begin());
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return child(m_detail->indexAt(m_detail->viewport()->mapFromGlobal(QPoint(x, y))).row());
    }
    /// The focus is told by the part that has it.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && !m_detail->currentIndex().isValid();
        return state;
    }
    QAccessibleInterface* focusChild() const override {
        if (!m_detail->hasFocus())
            return nullptr;
        QAccessibleInterface* const row = child(m_detail->currentIndex().row());
        const auto button = m_detail->currentButton();
        return row && button ? row->child(static_cast<int>(positionOf(*button))) : row;
    }

    /// Null where nobody asked for it.
    const RowAccessible* knownRow(int row) const {
        const QAccessible::Id id = ids()[static_cast<std::size_t>(row)];
        return id == 0 ? nullptr : static_cast<RowAccessible*>(QAccessible::accessibleInterface(id));
    }

  private:
    std::vector<QAccessible::Id>& ids() const {
        if (m_generation != m_detail->generation()) {
            forget();
            m_generation = m_detail->generation();
            m_ids.assign(static_cast<std::size_t>(childCount()), 0);
        }
        return m_ids;
    }
    void forget() const {
        for (const QAccessible::Id id : m_ids)
            if (id != 0)
                QAccessible::deleteAccessibleInterface(id);
        m_ids.clear();
    }

    LibraryDetail* m_detail;
    mutable int m_generation = -1;
    mutable std::vector<QAccessible::Id> m_ids; ///< 0 for a row that nobody asked for yet
};

QAccessibleInterface* accessibleFor(const QString& className, QObject* object) {
    if (className != QLatin1StringView(LibraryDetail::staticMetaObject.className()))
        return nullptr;
    auto* const detail = qobject_cast<LibraryDetail*>(object);
    return detail ? new DetailAccessible(detail) : nullptr;
}

const DetailAccessible* accessibleOf(LibraryDetail& detail) {
    if (!QAccessible::isActive())
        return nullptr;
    return dynamic_cast<const DetailAccessible*>(QAccessible::queryAccessibleInterface(&detail));
}

void tell(QAccessibleInterface* about, QAccessible::Event what) {
    QAccessibleEvent event(about, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installDetailAccessible() {
    QAccessible::installFactory(accessibleFor);
}

void tellRowsReplaced(LibraryDetail& detail) {
    if (!QAccessible::isActive() || !detail.isVisible())
        return;
    // Readers keep an element's children until the element itself comes anew.
    for (const auto kind : {QAccessible::ObjectDestroyed, QAccessible::ObjectCreated}) {
        QAccessibleEvent event(&detail, kind);
        QAccessible::updateAccessibility(&event);
    }
}

void tellRowChanged(LibraryDetail& detail, int row) {
    const DetailAccessible* const list = accessibleOf(detail);
    const RowAccessible* const known = list ? list->knownRow(row) : nullptr;
    if (!known)
        return;
    tell(list->child(row), QAccessible::NameChanged);
    for (QAccessibleInterface* const button : known->knownButtons()) {
        tell(button, QAccessible::NameChanged);
        tell(button, QAccessible::DescriptionChanged);
    }
}

void tellFocus(LibraryDetail& detail) {
    const DetailAccessible* const list = accessibleOf(detail);
    if (QAccessibleInterface* const part = list ? list->focusChild() : nullptr)
        tell(part, QAccessible::Focus);
}

} // namespace quillon
