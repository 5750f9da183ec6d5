#include "notifier_item.h"

#include "menu_server.h"

#include <QDBusObjectPath>
#include <QIcon>

#include <array>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace traybus;

namespace {

const QString itemInterface = u"org.kde.StatusNotifierItem"_s;

const QString description = uR"xml(<interface name="org.kde.StatusNotifierItem">
  <property name="Category" type="s" access="read"/>
  <property name="Id" type="s" access="read"/>
  <property name="Title" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="WindowId" type="i" access="read"/>
  <property name="IconThemePath" type="s" access="read"/>
  <property name="IconName" type="s" access="read"/>
  <property name="IconPixmap" type="a(iiay)" access="read"/>
  <property name="IconAccessibleDesc" type="s" access="read"/>
  <property name="OverlayIconName" type="s" access="read"/>
  <property name="OverlayIconPixmap" type="a(iiay)" access="read"/>
  <property name="AttentionIconName" type="s" access="read"/>
  <property name="AttentionIconPixmap" type="a(iiay)" access="read"/>
  <property name="AttentionMovieName" type="s" access="read"/>
  <property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
  <property name="ItemIsMenu" type="b" access="read"/>
  <property name="Menu" type="o" access="read"/>
  <method name="Activate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="SecondaryActivate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="ContextMenu"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="Scroll"><arg type="i" direction="in"/><arg type="s" direction="in"/></method>
  <method name="ProvideXdgActivationToken"><arg type="s" direction="in"/></method>
  <signal name="NewTitle"/>
  <signal name="NewIcon"/>
  <signal name="NewAttentionIcon"/>
  <signal name="NewOverlayIcon"/>
  <signal name="NewToolTip"/>
  <signal name="NewStatus"><arg type="s"/></signal>
</interface>
)xml"_s;

/// What trays draw at, with one and with two device pixels for each of theirs.
constexpr std::array pictureSizes{16, 22, 24, 32, 44, 48, 64};

/// Once the call that told of the click is answered.
void later(QObject* context, const std::function<void()>& act) {
    QMetaObject::invokeMethod(context, act, Qt::QueuedConnection);
}

} // namespace

NotifierItem::NotifierItem(
    const QDBusConnection& bus, TrayPresence presence, NotifierClicks clicks, TrayLook look)
    : ServedObject(bus, QLatin1StringView(path), itemInterface, description), m_presence(std::move(presence)),
      m_clicks(std::move(clicks)), m_look(look) {}

void NotifierItem::setLook(TrayLook look) {
    if (look == m_look)
        return;
    m_look = look;
    m_pictures.reset();
    emitSignal(u"NewIcon"_s);
}

const Pictures& NotifierItem::pictures() const {
    if (!m_pictures) {
        m_pictures.emplace();
        for (const int size : pictureSizes)
            m_pictures->append(pictureOf(m_presence.draw(m_look.scheme, size)));
    }
    return *m_pictures;
}

QString NotifierItem::iconName() const {
    const QString name = QString::fromStdString(m_presence.themeIcon);
    return m_look.coloursNamedIcons && QIcon::hasThemeIcon(name) ? name : QString();
}

QVariantMap NotifierItem::properties() const {
    const QString name = QString::fromStdString(m_presence.name);
    const auto none = QVariant::fromValue(Pictures());
    return {
        {u"Category"_s, u"ApplicationStatus"_s},
        {u"Id"_s, u"app.quillon.Quillon"_s},
        {u"Title"_s, name},
        {u"Status"_s, u"Active"_s},
        {u"WindowId"_s, 0},
        {u"IconThemePath"_s, QString()},
        {u"IconName"_s, iconName()},
        {u"IconPixmap"_s, QVariant::fromValue(pictures())},
        {u"IconAccessibleDesc"_s, name},
        {u"OverlayIconName"_s, QString()},
        {u"OverlayIconPixmap"_s, none},
        {u"AttentionIconName"_s, QString()},
        {u"AttentionIconPixmap"_s, none},
        {u"AttentionMovieName"_s, QString()},
        {u"ToolTip"_s, QVariant::fromValue(Tip{.iconName = {}, .pictures = {}, .title = name, .text = {}})},
        {u"ItemIsMenu"_s, true},
        {u"Menu"_s, QVariant::fromValue(QDBusObjectPath(QLatin1StringView(MenuServer::path)))},
    };
}

std::optional<QVariantList> NotifierItem::call(const QDBusMessage& message) {
    const QString call = message.member() + u'(' + message.signature() + u')';
    if (call == "Activate(ii)"_L1 || call == "ContextMenu(ii)"_L1)
        later(this, m_clicks.openMenu);
    else if (call == "SecondaryActivate(ii)"_L1)
        later(this, m_clicks.secondary);
    else if (call != "Scroll(is)"_L1 && call != "ProvideXdgActivationToken(s)"_L1)
        return std::nullopt;
    return QVariantList();
}

} // namespace quillon
