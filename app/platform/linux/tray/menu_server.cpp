#include "menu_server.h"

#include <QDBusVariant>
#include <QLocale>

#include <algorithm>
#include <set>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace traybus;

namespace {

const QString menuInterface = u"com.canonical.dbusmenu"_s;

const QString description = uR"xml(<interface name="com.canonical.dbusmenu">
  <property name="Version" type="u" access="read"/>
  <property name="TextDirection" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="IconThemePath" type="as" access="read"/>
  <method name="GetLayout">
    <arg type="i" direction="in"/><arg type="i" direction="in"/><arg type="as" direction="in"/>
    <arg type="u" direction="out"/><arg type="(ia{sv}av)" direction="out"/>
  </method>
  <method name="GetGroupProperties">
    <arg type="ai" direction="in"/><arg type="as" direction="in"/><arg type="a(ia{sv})" direction="out"/>
  </method>
  <method name="GetProperty">
    <arg type="i" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
  <method name="Event">
    <arg type="i" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="in"/>
    <arg type="u" direction="in"/>
  </method>
  <method name="EventGroup"><arg type="a(isvu)" direction="in"/><arg type="ai" direction="out"/></method>
  <method name="AboutToShow"><arg type="i" direction="in"/><arg type="b" direction="out"/></method>
  <method name="AboutToShowGroup">
    <arg type="ai" direction="in"/><arg type="ai" direction="out"/><arg type="ai" direction="out"/>
  </method>
  <signal name="ItemsPropertiesUpdated"><arg type="a(ia{sv})"/><arg type="a(ias)"/></signal>
  <signal name="LayoutUpdated"><arg type="u"/><arg type="i"/></signal>
  <signal name="ItemActivationRequested"><arg type="i"/><arg type="u"/></signal>
</interface>
)xml"_s;

/// In a label an underscore marks the next letter; two stand for one.
QString menuLabel(const std::string& label) {
    return QString::fromStdString(label).replace(u'_', u"__"_s);
}

/// Keys are named as GTK names them.
QString keyName(const std::string& character) {
    return character == "," ? u"comma"_s : QString::fromStdString(character).toLower();
}

/// Those of the properties that are asked for; all when no name is given.
QVariantMap chosenFrom(const QVariantMap& all, const QStringList& names) {
    if (names.isEmpty())
        return all;
    QVariantMap chosen;
    for (auto property = all.begin(); property != all.end(); ++property)
        if (names.contains(property.key()))
            chosen.insert(property.key(), *property);
    return chosen;
}

/// What a line told by `after` has, and what it has no more.
void addDifferences(
    int id, const QVariantMap& before, const QVariantMap& after, QList<LineProperties>& updated,
    QList<LineWithout>& removed) {
    LineWithout lost{.id = id, .names = {}};
    for (auto property = before.begin(); property != before.end(); ++property)
        if (!after.contains(property.key()))
            lost.names.append(property.key());
    if (!after.isEmpty())
        updated.append({.id = id, .properties = after});
    if (!lost.names.isEmpty())
        removed.append(lost);
}

} // namespace

QVariantMap menuLineProperties(const TrayMenuItem& item) {
    if (item.kind == TrayMenuItem::Kind::separator)
        return {{u"type"_s, u"separator"_s}};
    QVariantMap properties{{u"label"_s, menuLabel(item.label)}};
    if (item.kind == TrayMenuItem::Kind::line)
        properties.insert(u"enabled"_s, false);
    if (const std::string* const character = item.key ? item.key->asCharacter() : nullptr)
        properties.insert(u"shortcut"_s, QVariant::fromValue(Strokes{{u"Control"_s, keyName(*character)}}));
    return properties;
}

MenuServer::MenuServer(const QDBusConnection& bus, std::function<void(int)> chosen)
    : ServedObject(bus, QLatin1StringView(path), menuInterface, description), m_chosen(std::move(chosen)) {}

const TrayMenuItem* MenuServer::find(int id) const {
    const auto found = std::ranges::find(m_items, id, &TrayMenuItem::id);
    return found == m_items.end() ? nullptr : &*found;
}

std::optional<QVariantMap> MenuServer::propertiesOf(int id) const {
    if (id == rootId)
        return QVariantMap{{u"children-display"_s, u"submenu"_s}};
    const TrayMenuItem* const item = find(id);
    return item ? std::optional(menuLineProperties(*item)) : std::nullopt;
}

void MenuServer::setItems(std::vector<TrayMenuItem> items) {
    const auto before = std::exchange(m_items, std::move(items));
    tellChanges(before);
}

void MenuServer::tellChanges(const std::vector<TrayMenuItem>& before) {
    QList<LineProperties> updated;
    QList<LineWithout> removed;
    for (const TrayMenuItem& item : m_items) {
        const auto old = std::ranges::find(before, item.id, &TrayMenuItem::id);
        if (old != before.end() && *old != item)
            addDifferences(item.id, menuLineProperties(*old), menuLineProperties(item), updated, removed);
    }
    if (!std::ranges::equal(before, m_items, {}, &TrayMenuItem::id, &TrayMenuItem::id))
        emitSignal(u"LayoutUpdated"_s, {++m_revision, rootId});
    if (!updated.isEmpty() || !removed.isEmpty())
        emitSignal(u"ItemsPropertiesUpdated"_s, {QVariant::fromValue(updated), QVariant::fromValue(removed)});
}

QVariantMap MenuServer::properties() const {
    return {
        {u"Version"_s, 3U},
        {u"TextDirection"_s, QLocale().textDirection() == Qt::RightToLeft ? u"rtl"_s : u"ltr"_s},
        {u"Status"_s, u"normal"_s},
        {u"IconThemePath"_s, QStringList()},
    };
}

std::optional<QVariantList> MenuServer::call(const QDBusMessage& message) {
    const QString call = message.member() + u'(' + message.signature() + u')';
    if (call == "GetLayout(iias)"_L1)
        return layout(message);
    if (call == "GetGroupProperties(aias)"_L1)
        return groupProperties(message);
    if (call == "GetProperty(is)"_L1)
        return property(message);
    const QVariantList& arguments = message.arguments();
    if (call == "Event(isvu)"_L1) {
        const LineEvent event{arguments.at(0).toInt(), arguments.at(1).toString()};
        return happened(event) ? std::optional(QVariantList()) : std::nullopt;
    }
    if (call == "EventGroup(a(isvu))"_L1)
        return events(message);
    if (call == "AboutToShow(i)"_L1)
        return propertiesOf(arguments.at(0).toInt()) ? std::optional(QVariantList{false}) : std::nullopt;
    if (call == "AboutToShowGroup(ai)"_L1)
        return aboutToShowGroup(message);
    return std::nullopt;
}

std::optional<QVariantList> MenuServer::layout(const QDBusMessage& message) const {
    const int id = message.arguments().at(0).toInt();
    const int depth = message.arguments().at(1).toInt();
    const QStringList names = message.arguments().at(2).toStringList();
    const auto own = propertiesOf(id);
    if (!own)
        return std::nullopt;
    MenuNode node{.id = id, .properties = chosenFrom(*own, names), .children = {}};
    if (id == rootId && depth != 0)
        for (const TrayMenuItem& item : m_items)
            node.children.append(
                {.id = item.id, .properties = chosenFrom(menuLineProperties(item), names), .children = {}});
    return QVariantList{m_revision, QVariant::fromValue(node)};
}

// No more lines than there are, however many the tray asks for.
QVariantList MenuServer::groupProperties(const QDBusMessage& message) const {
    const auto asked = qdbus_cast<QList<int>>(message.arguments().at(0));
    const std::set<int> wanted(asked.begin(), asked.end());
    const QStringList names = message.arguments().at(1).toStringList();
    QList<LineProperties> lines;
    if (wanted.contains(rootId))
        lines.append({.id = rootId, .properties = chosenFrom(*propertiesOf(rootId), names)});
    for (const TrayMenuItem& item : m_items)
        if (wanted.empty() || wanted.contains(item.id))
            lines.append({.id = item.id, .properties = chosenFrom(menuLineProperties(item), names)});
    return {QVariant::fromValue(lines)};
}

std::optional<QVariantList> MenuServer::property(const QDBusMessage& message) const {
    const auto all = propertiesOf(message.arguments().at(0).toInt());
    const QVariant value = all ? all->value(message.arguments().at(1).toString()) : QVariant();
    if (!value.isValid())
        return std::nullopt;
    return QVariantList{QVariant::fromValue(QDBusVariant(value))};
}

QVariantList MenuServer::events(const QDBusMessage& message) {
    QList<int> unknown;
    for (const LineEvent& event : qdbus_cast<QList<LineEvent>>(message.arguments().at(0)))
        if (!happened(event))
            unknown.append(event.id);
    return {QVariant::fromValue(unknown)};
}

QVariantList MenuServer::aboutToShowGroup(const QDBusMessage& message) const {
    QList<int> unknown;
    for (const int id : qdbus_cast<QList<int>>(message.arguments().at(0)))
        if (!propertiesOf(id))
            unknown.append(id);
    return {QVariant::fromValue(QList<int>()), QVariant::fromValue(unknown)};
}

bool MenuServer::happened(const LineEvent& event) {
    const TrayMenuItem* const item = find(event.id);
    if (item && item->kind == TrayMenuItem::Kind::command && event.what == "clicked"_L1)
        QMetaObject::invokeMethod(
            this, [this, id = item->id] { m_chosen(id); }, Qt::QueuedConnection);
    return item || event.id == rootId;
}

} // namespace quillon
