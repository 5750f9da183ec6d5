#include "cap_pictures.h"
#include "scenes.h"
#include "symbol_pictures.h"
#include "tray_pictures.h"

#include <quillon/app/languages/translations.h>
#include <quillon/app/views/components/text.h>
#include <quillon/app/views/tray/pop_up_menu.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLinearGradient>
#include <QPainter>
#include <QTextStream>
#include <QWidget>

#include <algorithm>
#include <iterator>
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
    if (!panel.mask().isEmpty())
        painter.setClipRegion(panel.mask().translated(margin, margin));
    painter.drawPixmap(QPointF(margin, margin), panel.grab());
    return picture;
}

bool draw(const Scene& scene, const Look& look, KeyLabels keys, const QString& path) {
    ViewDesk desk; // gives the toolkit the look
    desk.desktop.appearance.set(look);
    desk.settings.setKeyLabels(keys);
    QWidget* const shown = scene.show(desk);
    QApplication::processEvents();
    QApplication::processEvents(); // what a window does about its new parts it does a moment later
    return shown && onDesktop(*shown, look.scheme).save(path);
}

std::vector<Scene> allScenes() {
    std::vector<Scene> all;
    for (auto scenes :
         {overlayScenes(), toastScenes(), updateScenes(), libraryScenes(), practiceScenes(), settingsScenes(),
          welcomeScenes(), trayMenuScenes()})
        std::ranges::move(scenes, std::back_inserter(all));
    return all;
}

int drawAll(const QString& folder, const QString& only, KeyLabels keys, Look look) {
    const std::vector<Scene> scenes = allScenes();
    for (const ColourScheme scheme : {ColourScheme::light, ColourScheme::dark}) {
        look.scheme = scheme;
        const QString suffix = scheme == ColourScheme::dark ? u"-dark"_s : u"-light"_s;
        for (const Scene& scene : scenes) {
            if (!scene.name.contains(only))
                continue;
            const QString path = QDir(folder).filePath(scene.name + suffix + u".png"_s);
            if (!draw(scene, look, keys, path)) {
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

int drawTrayIcons(const QString& folder) {
    const QString path = QDir(folder).filePath(u"tray-icons.png"_s);
    if (trayIconPicture(4).save(path))
        return 0;
    QTextStream(stderr) << "cannot draw " << path << Qt::endl;
    return 1;
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
    const QCommandLineOption keys(u"keys"_s, u"How keys are shown."_s, u"symbols|names"_s, u"symbols"_s);
    const QCommandLineOption language(u"language"_s, u"What is spoken: de."_s, u"language"_s, u"en"_s);
    const QCommandLineOption caps(u"caps"_s, u"Only the key caps, enlarged, at four scales."_s);
    const QCommandLineOption symbols(u"symbols"_s, u"Only the symbols, enlarged, at two scales."_s);
    const QCommandLineOption trayIcons(u"tray-icons"_s, u"Only the tray's icon, enlarged, at all sizes."_s);
    parser.addOptions({only, family, points, keys, language, caps, symbols, trayIcons});
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || !QDir().mkpath(parser.positionalArguments().first()))
        parser.showHelp(2);

    const Translations translations({parser.value(language)});
    Look look;
    if (parser.isSet(family))
        look.fontFamily = utf8(parser.value(family));
    if (parser.isSet(points))
        look.fontPoints = parser.value(points).toDouble();
    if (parser.isSet(caps))
        return drawCaps(parser.positionalArguments().first(), look);
    if (parser.isSet(symbols))
        return drawSymbols(parser.positionalArguments().first(), look);
    if (parser.isSet(trayIcons))
        return drawTrayIcons(parser.positionalArguments().first());
    return drawAll(
        parser.positionalArguments().first(), parser.value(only),
        parser.value(keys) == "names"_L1 ? KeyLabels::names : KeyLabels::symbols, look);
}
