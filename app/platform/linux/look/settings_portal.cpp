#include "settings_portal.h"

#include <quillon/app/platform/linux/base/dbus_call.h>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QMap>

#include <utility>

namespace quillon {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

const QString serviceName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");

/// The first call may have to start the portal and what it asks in turn.
constexpr int callTimeout = 10'000; ///< milliseconds

/// The portal wraps some values twice.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

std::optional<std::string> textOf(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QString>() ? std::optional(value.toString().toStdString())
                                                              : std::nullopt;
}

void put(DesktopSettings& settings, const QString& nameSpace, const QString& key, const QVariant& wrapped) {
    const QVariant value = unwrapped(wrapped);
    if (nameSpace == appearance && key == QStringLiteral("color-scheme")) {
        bool isNumber = false;
        const auto scheme = value.toUInt(&isNumber);
        settings.colourScheme = isNumber ? std::optional<std::uint32_t>(scheme) : std::nullopt;
    } else if (nameSpace == gnomeInterface && key == QStringLiteral("gtk-theme")) {
        settings.gtkTheme = textOf(value);
    } else if (nameSpace == gnomeInterface && key == QStringLiteral("font-name")) {
        settings.font = textOf(value);
    } else if (nameSpace == gnomeInterface && key == QStringLiteral("text-scaling-factor")) {
        bool isNumber = false;
        const double scale = value.toDouble(&isNumber);
        settings.textScale = isNumber ? std::optional(scale) : std::nullopt;
    }
}

} // namespace

SettingsPortal::SettingsPortal(QDBusConnection bus) : m_bus(std::move(bus)) {
    if (!m_bus.isConnected())
        return;
    qDBusRegisterMetaType<SettingGroups>();
    qRegisterMetaType<QDBusVariant>(); // else the slot's argument has no type before something else names it
    // Of no named sender: with a name the connection would wait for the bus to tell its owner.
    m_bus.connect(
        QString(), objectPath, settingsInterface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    readAll();
}

void SettingsPortal::readAll() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(serviceName, objectPath, settingsInterface, QStringLiteral("ReadAll"));
    question << QStringList{appearance, gnomeInterface};
    whenFinished(this, m_bus.asyncCall(question, callTimeout), [this](const QDBusPendingCall& finished) {
        const QDBusPendingReply<SettingGroups> reply = finished;
        if (!reply.isValid())
            return;
        DesktopSettings settings;
        const SettingGroups groups = reply.value();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            for (auto value = group->begin(); value != group->end(); ++value)
                put(settings, group.key(), value.key(), *value);
        }
        adopt(settings);
    });
}

void SettingsPortal::settingChanged(const QString& nameSpace, const QString& key, const QDBusVariant& value) {
    DesktopSettings settings = m_settings;
    put(settings, nameSpace, key, value.variant());
    adopt(settings);
}

void SettingsPortal::adopt(const DesktopSettings& settings) {
    if (m_settings == settings)
        return;
    m_settings = settings;
    m_changed.emit();
}

} // namespace quillon
