#pragma once

#include "bus_values.h"
#include "served_object.h"

#include <quillon/app/ports/tray.h>

#include <functional>
#include <vector>

namespace quillon {

/// The properties that a line of a menu has on the bus, `com.canonical.dbusmenu`.
QVariantMap menuLineProperties(const TrayMenuItem& item);

/// The tray's menu for the tray to show: `com.canonical.dbusmenu`, one level below its root.
class MenuServer final : public ServedObject {
  public:
    static constexpr const char* path = "/MenuBar";

    /// `chosen` is called with the id of a command, after the tray's call was answered.
    MenuServer(const QDBusConnection& bus, std::function<void(int id)> chosen);

    /// Tells the trays that have the menu what changed.
    void setItems(std::vector<TrayMenuItem> items);

  protected:
    QVariantMap properties() const override;
    std::optional<QVariantList> call(const QDBusMessage& message) override;

  private:
    static constexpr int rootId = 0;

    const TrayMenuItem* find(int id) const;
    std::optional<QVariantMap> propertiesOf(int id) const;
    std::optional<QVariantList> layout(const QDBusMessage& message) const;
    QVariantList groupProperties(const QDBusMessage& message) const;
    std::optional<QVariantList> property(const QDBusMessage& message) const;
    QVariantList events(const QDBusMessage& message);
    QVariantList aboutToShowGroup(const QDBusMessage& message) const;
    /// False for a line that is not there.
    bool happened(const traybus::LineEvent& event);
    void tellChanges(const std::vector<TrayMenuItem>& before);

    std::function<void(int)> m_chosen;
    std::vector<TrayMenuItem> m_items;
    uint m_revision = 1; ///< of the layout
};

} // namespace quillon
