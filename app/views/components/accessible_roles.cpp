#include "accessible_roles.h"

#include "app_icon_view.h"
#include "keys_view.h"
#include "symbol_view.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace quillon {

namespace {

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

QAccessibleInterface* accessibleFor(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    const auto isClass = [&](const QMetaObject& meta) {
        return className == QLatin1StringView(meta.className());
    };
    if (isClass(KeysView::staticMetaObject))
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    if (isClass(SymbolView::staticMetaObject) || isClass(AppIconView::staticMetaObject))
        return new HiddenAccessible(widget);
    return nullptr;
}

} // namespace

void installAccessibleRoles() {
    QAccessible::installFactory(accessibleFor);
}

} // namespace quillon
