#include "accessible_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

namespace quillon {

namespace {

constexpr const char* roleProperty = "quillonReadAs";

/// Decoration: there, but nothing to read.
class HiddenAccessible : public QAccessibleWidget {
  public:
    explicit HiddenAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.invisible = true;
        state.offscreen = true;
        return state;
    }
    QString text(QAccessible::Text) const override { return {}; }
    int childCount() const override { return 0; }
};

/// The element inside of it that has the focus is the one that tells so.
class GroupAccessible : public QAccessibleWidget {
  public:
    explicit GroupAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Grouping) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = false;
        state.focusable = false;
        return state;
    }
};

class PanelAccessible : public QAccessibleWidget {
  public:
    explicit PanelAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Dialog) {}

    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        const QAccessibleInterface* content = childCount() > 0 ? child(0) : nullptr;
        return own.isEmpty() && content ? content->text(kind) : own;
    }
};

class NoticeAccessible : public QAccessibleWidget {
  public:
    explicit NoticeAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Notification) {}

    int childCount() const override { return 0; }
};

QAccessibleInterface* accessibleFor(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    if (!role.isValid())
        return nullptr;
    switch (static_cast<ReadAs>(role.toInt())) {
    case ReadAs::text: return new QAccessibleWidget(widget, QAccessible::StaticText);
    case ReadAs::decoration: return new HiddenAccessible(widget);
    case ReadAs::group: return new GroupAccessible(widget);
    case ReadAs::panel: return new PanelAccessible(widget);
    case ReadAs::notice: return new NoticeAccessible(widget);
    }
    Q_UNREACHABLE();
}

} // namespace

void readAs(QWidget& widget, ReadAs role) {
    QAccessible::installFactory(accessibleFor); // more than once does no harm
    widget.setProperty(roleProperty, static_cast<int>(role));
}

} // namespace quillon
