#include "bus_values.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QtEndian>

namespace quillon::traybus {

Picture pictureOf(const IconPixels& pixels) {
    Picture picture{.width = pixels.width, .height = pixels.height, .argb = {}};
    picture.argb.resize(static_cast<qsizetype>(pixels.argb.size() * sizeof(std::uint32_t)));
    qToBigEndian<std::uint32_t>(
        pixels.argb.data(), static_cast<qsizetype>(pixels.argb.size()), picture.argb.data());
    return picture;
}

void registerTypes() {
    qDBusRegisterMetaType<Picture>();
    qDBusRegisterMetaType<Pictures>();
    qDBusRegisterMetaType<Tip>();
    qDBusRegisterMetaType<Strokes>();
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<LineProperties>();
    qDBusRegisterMetaType<QList<LineProperties>>();
    qDBusRegisterMetaType<LineWithout>();
    qDBusRegisterMetaType<QList<LineWithout>>();
    qDBusRegisterMetaType<LineEvent>();
    qDBusRegisterMetaType<QList<LineEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const Picture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Picture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.argb;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const Tip& tip) {
    argument.beginStructure();
    argument << tip.iconName << tip.pictures << tip.title << tip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Tip& tip) {
    argument.beginStructure();
    argument >> tip.iconName >> tip.pictures >> tip.title >> tip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node) {
    argument.beginStructure();
    argument << node.id << node.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuNode& child : node.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node) {
    argument.beginStructure();
    argument >> node.id >> node.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        node.children.append(qdbus_cast<MenuNode>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const LineProperties& line) {
    argument.beginStructure();
    argument << line.id << line.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, LineProperties& line) {
    argument.beginStructure();
    argument >> line.id >> line.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const LineWithout& line) {
    argument.beginStructure();
    argument << line.id << line.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, LineWithout& line) {
    argument.beginStructure();
    argument >> line.id >> line.names;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const LineEvent& event) {
    argument.beginStructure();
    argument << event.id << event.what << QDBusVariant(QVariant(0)) << 0U;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, LineEvent& event) {
    QDBusVariant data;
    uint timestamp = 0;
    argument.beginStructure();
    argument >> event.id >> event.what >> data >> timestamp;
    argument.endStructure();
    return argument;
}

} // namespace quillon::traybus
