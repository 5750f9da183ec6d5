#include "cap_pictures.h"
#include "scenes.h"
#include "symbol_pictures.h"
#include "window_scenes.h"

#include <quillon/app/views/components/text.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLinearGradient>
#include <QPainter>
#include <QTextStream>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <vector>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

/// How much of a made-up desktop is seen around the panel.
constexpr int margin = 24;

QPixmap onDesktop(QWidget& panel, ColourScheme scheme) {
    const double ratio = panel.devicePixelRatioF();
    QPixmap picture((panel.size() + QSize(2 * margin, 2 * margin)) * ratio);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    QLinearGradient wallpaper(0, 0, panel.width(), panel.height());
    const bool dark = scheme == ColourScheme::dark;
    wallpaper.setColorAt(0, dark ? QColor(0x31, 0x3b, 0x48) : QColor(0xa9, 0xbf, 0xcf));
    wallpaper.setColorAt(1, dark ? QColor(0x45, 0x35, 0x48) : QColor(0xd9, 0xc4, 0xbb));
    painter.fillRect(QRect(QPoint(0, 0), panel.size() + QSize(2 * margin, 2 * margin)), wallpaper);
    painter.drawPixmap(QPointF(margin, margin), panel.grab());
    return picture;
}

bool draw(const Scene& scene, const Look& look, const QString& path) {
    ViewDesk desk;
    desk.desktop.appearance.set(look);
    scene.show(desk);
    QApplication::processEvents();
    QWidget* panel = shownPanel();
    return panel && onDesktop(*panel, look.scheme).save(path);
}

bool draw(const WindowScene& scene, const Look& look, const QString& path) {
    ViewDesk desk;
    desk.desktop.appearance.set(look);
    const std::unique_ptr<QWidget> window = scene.show(desk);
    QApplication::processEvents();
    QWidget* const part = scene.part ? scene.part(*window) : window.get();
    return part && onDesktop(*part, look.scheme).save(path);
}

/// Any picture, by its name.
struct Picture {
    QString name;
    std::function<bool(const Look& look, const QString& path)> draw;
};

std::vector<Picture> allPictures() {
    std::vector<Picture> pictures;
    const auto add = [&pictures](const auto& scenes) {
        for (const auto& scene : scenes)
            pictures.push_back({scene.name, [scene](const Look& look, const QString& path) {
                                    return draw(scene, look, path);
                                }});
    };
    add(overlayScenes());
    add(toastScenes());
    add(welcomeScenes());
    return pictures;
}

int drawAll(const QString& folder, const QString& only, Look look) {
    const std::vector<Picture> scenes = allPictures();
    for (const ColourScheme scheme : {ColourScheme::light, ColourScheme::dark}) {
        look.scheme = scheme;
        const QString suffix = scheme == ColourScheme::dark ? u"-dark"_s : u"-light"_s;
        for (const Picture& scene : scenes) {
            if (!scene.name.contains(only))
                continue;
            const QString path = QDir(folder).filePath(scene.name + suffix + u".png"_s);
            if (!scene.draw(look, path)) {
                QTextStream(stderr) << "cannot draw " << path << Qt::endl;
                return 1;
            }
        }
    }
    return 0;
}

int drawCaps(const QString& folder, const Look& look) {
    const Theme theme = Theme::fromLook(look, QApplication::font());
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const QString path = QDir(folder).filePath(u"key-caps-%1x.png"_s.arg(ratio));
        if (!capPicture(theme, ratio, 4).save(path)) {
            QTextStream(stderr) << "cannot draw " << path << Qt::endl;
            return 1;
        }
    }
    return 0;
}

/// The symbols from left to right in light colours, and from right to left in dark ones.
int drawSymbols(const QString& folder, Look look) {
    for (const ColourScheme scheme : {ColourScheme::light, ColourScheme::dark}) {
        look.scheme = scheme;
        const Theme theme = Theme::fromLook(look, QApplication::font());
        const bool dark = scheme == ColourScheme::dark;
        for (const int ratio : {1, 2}) {
            const QString path =
                QDir(folder).filePath(u"symbols-%1-%2x.png"_s.arg(dark ? u"dark"_s : u"light"_s).arg(ratio));
            const Qt::LayoutDirection direction = dark ? Qt::RightToLeft : Qt::LeftToRight;
            if (!symbolPicture(theme, ratio, 4 / ratio, direction).save(path)) {
                QTextStream(stderr) << "cannot draw " << path << Qt::endl;
                return 1;
            }
        }
    }
    return 0;
}

} // namespace

} // namespace quillon

int main(int argc, char** argv) {
    using namespace quillon;
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Draws every state of the program's windows into a folder."_s);
    parser.addPositionalArgument(u"folder"_s, u"Where the pictures go; made when it is missing."_s);
    const QCommandLineOption only(u"only"_s, u"Only pictures whose name contains this."_s, u"text"_s);
    const QCommandLineOption family(u"font"_s, u"The desktop's interface font."_s, u"family"_s);
    const QCommandLineOption points(u"points"_s, u"Its size."_s, u"points"_s);
    const QCommandLineOption caps(u"caps"_s, u"Only the key caps, enlarged, at four scales."_s);
    const QCommandLineOption symbols(u"symbols"_s, u"Only the symbols, enlarged, at two scales."_s);
    parser.addOptions({only, family, points, caps, symbols});
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || !QDir().mkpath(parser.positionalArguments().first()))
        parser.showHelp(2);

    Look look;
    if (parser.isSet(family))
        look.fontFamily = utf8(parser.value(family));
    if (parser.isSet(points))
        look.fontPoints = parser.value(points).toDouble();
    if (parser.isSet(caps))
        return drawCaps(parser.positionalArguments().first(), look);
    if (parser.isSet(symbols))
        return drawSymbols(parser.positionalArguments().first(), look);
    return drawAll(parser.positionalArguments().first(), parser.value(only), look);
}
