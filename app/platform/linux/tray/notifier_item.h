#pragma once

#include "bus_values.h"
#include "served_object.h"
#include "tray_look.h"

#include <quillon/app/ports/tray.h>

#include <functional>
#include <optional>

namespace quillon {

/// What a tray tells of clicks on an item. The menu itself it shows, where it can.
struct NotifierClicks {
    std::function<void()> openMenu;  ///< at the pointer
    std::function<void()> secondary; ///< the middle button
};

/// The program's item as trays on the session bus see it: `org.kde.StatusNotifierItem`.
class NotifierItem final : public ServedObject {
  public:
    static constexpr const char* path = "/StatusNotifierItem";

    NotifierItem(const QDBusConnection& bus, TrayPresence presence, NotifierClicks clicks, TrayLook look);

    /// Tells the trays of a new icon.
    void setLook(TrayLook look);

  protected:
    QVariantMap properties() const override;
    std::optional<QVariantList> call(const QDBusMessage& message) override;

  private:
    const traybus::Pictures& pictures() const;
    QString iconName() const;

    TrayPresence m_presence;
    NotifierClicks m_clicks;
    TrayLook m_look;
    mutable std::optional<traybus::Pictures> m_pictures; ///< in `m_look`; absent before they are asked for
};

} // namespace quillon
