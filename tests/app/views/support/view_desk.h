#pragma once

#include <quillon/app/platform/qt/panels/qt_panel_maker.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/panels/view_panel_host.h>
#include <quillon/tests/app/core/support/model_services.h>
#include <quillon/tests/app/platform/qt/panels/support/fake_panel_windows.h>

#include <QTemporaryDir>

namespace quillon {

/// The program's model and views over a desktop that is made up. Needs a QApplication.
class ViewDesk {
  public:
    static constexpr std::int64_t ownPid = ownPidOfModel;

    /// This program; while it is in front the model keeps the sheet that it is shown.
    static RunningApp ownApp() { return {ownPid, "app.quillon.Quillon", "Quillon", {}}; }

    ViewDesk();

    /// Lets the model read menus.
    void trust();
    /// The sample application with what its user has done so far.
    void showSample();
    /// An application of which nothing is known but its menus.
    void show(AppSheet sheet);
    /// Brings another application to the front whose menus are still being read.
    void beginReading(const std::string& appName);

    /// The user clicks a command of the made-up application Sketchpad in its menu.
    void clickInMenu(const MenuEntry& entry);

    FakeDesktop desktop;
    QTemporaryDir folder;
    Settings settings{folder.filePath(QStringLiteral("settings.ini"))};
    ThemeSource themes{desktop.appearance};
    AppIconCache icons{desktop.icons};
    FakePanelWindows panelWindows;
    QtPanelMaker panels{panelWindows};
    ViewPanelHost host{panels, [this] { return overlayContent(); }, [this] { return toastContent(); }};
    AppModel model{servicesOf(desktop, host, settings)};
    std::shared_ptr<void> kept; ///< whatever else is shown on this desk; goes first

  private:
    PanelContent overlayContent();
    PanelContent toastContent();

    Subscription m_keyLabels;
};

} // namespace quillon
