#pragma once

#include <quillon/app/ports/app_icons.h>

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace quillon::traybus {

/// A picture of an item: (iiay), its pixels as bytes A, R, G, B.
struct Picture {
    int width = 0;
    int height = 0;
    QByteArray argb;
};
using Pictures = QList<Picture>;

Picture pictureOf(const IconPixels& pixels);

/// What an item tells when the pointer rests on it: (sa(iiay)ss).
struct Tip {
    QString iconName;
    Pictures pictures;
    QString title;
    QString text;
};

/// The key strokes of a menu line, each as its keys: aas.
using Strokes = QList<QStringList>;

/// A line of a menu and what is below it: (ia{sv}av).
struct MenuNode {
    int id = 0;
    QVariantMap properties;
    QList<MenuNode> children;
};

/// The properties of one line: (ia{sv}).
struct LineProperties {
    int id = 0;
    QVariantMap properties;
};

/// The names of properties that one line has no more: (ias).
struct LineWithout {
    int id = 0;
    QStringList names;
};

/// Something that happened to a line: (isvu).
struct LineEvent {
    int id = 0;
    QString what;
};

/// Makes these types known to the toolkit's bus. Before anything else of this folder.
void registerTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const Picture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, Picture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const Tip& tip);
const QDBusArgument& operator>>(const QDBusArgument& argument, Tip& tip);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const LineProperties& line);
const QDBusArgument& operator>>(const QDBusArgument& argument, LineProperties& line);
QDBusArgument& operator<<(QDBusArgument& argument, const LineWithout& line);
const QDBusArgument& operator>>(const QDBusArgument& argument, LineWithout& line);
QDBusArgument& operator<<(QDBusArgument& argument, const LineEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, LineEvent& event);

} // namespace quillon::traybus

Q_DECLARE_METATYPE(quillon::traybus::Picture)
Q_DECLARE_METATYPE(quillon::traybus::Tip)
Q_DECLARE_METATYPE(quillon::traybus::MenuNode)
Q_DECLARE_METATYPE(quillon::traybus::LineProperties)
Q_DECLARE_METATYPE(quillon::traybus::LineWithout)
Q_DECLARE_METATYPE(quillon::traybus::LineEvent)
