#include "program.h"

#include "overlay_content.h"
#include "showcase.h"
#include "this_platform.h"
#include "toast_content.h"

#include <quillon/app/views/settings/shown_path.h>

#include <QApplication>
#include <QDir>

#include <utility>

#include <unistd.h>

namespace quillon {

namespace {

constexpr Seconds patienceForTrust{0.5};

} // namespace

Program::Program(Platform& platform)
    : m_background(returnFreedMemory), m_desktop(platform.openDesktop(m_background, m_clock)),
      m_settings(QString::fromStdString(platform.settingsFile().string())), m_themes(m_desktop->appearance()),
      m_icons(m_desktop->icons()),
      m_panels(
          m_desktop->panels(),
          [this] { return overlayContent(m_model, m_themes, m_icons, OverlayMode::live); },
          [this] { return toastContent(m_model, m_themes); }),
      m_windows(m_desktop->foreground()), m_model({
                                              .frontApplication = m_desktop->frontApplication(),
                                              .menuReader = m_desktop->menuReader(),
                                              .accessibility = m_desktop->accessibility(),
                                              .keyboard = m_desktop->keyboard(),
                                              .menuUse = m_desktop->menuUse(),
                                              .typedKeys = m_desktop->typedKeys(),
                                              .clock = m_clock,
                                              .timers = m_timers,
                                              .background = m_background,
                                              .panels = m_panels,
                                              .windows = m_windows,
                                              .settings = m_settings,
                                              .dataFolder = platform.dataFolder(),
                                              .ownPid = getpid(),
                                          }),
      m_updates({
          .clock = m_clock,
          .timers = m_timers,
          .background = m_background,
          .themes = m_themes,
          .foreground = m_desktop->foreground(),
          .pages = m_desktop->softwarePages(),
          .settingsFile = QString::fromStdString(platform.settingsFile().string()),
      }),
      m_tray(
          m_model, m_desktop->tray(), m_themes,
          {.showOverlay = [this] { m_model.showOverlay(Stickiness::sticky); },
           .openWindow = [this](WindowName name) { m_model.requestWindow(name); },
           .checkForUpdates = [this] { m_updates.checkForUpdates(); },
           .quit = [] { QApplication::quit(); }}),
      m_windowOffers(offerWindows(
          m_windows, {m_model, m_themes, m_icons, *m_desktop, m_timers, m_clock, m_exports,
                      shownPath(platform.dataFolder(), QDir::homePath().toStdString())})),
      m_trustForFirstShow(m_model, m_timers), m_welcome(m_model, m_timers) {
    const auto applyKeyLabels = [this] { m_themes.setKeyLabels(m_settings.keyLabels()); };
    applyKeyLabels();
    m_keyLabels = m_settings.changed.subscribe([applyKeyLabels](Setting setting) {
        if (setting == Setting::keyLabels)
            applyKeyLabels();
    });
}

Program::~Program() {
    m_model.savePending();
    // Readings under way use the desktop, which ends before the threads that they run on.
    m_background.finish();
}

InstanceRequests Program::requests() {
    return {
        .activate = [this] { activate(); },
        .showOverlay = [this] { showOverlay(); },
        .showSample = [this] { showSample(); },
        .openWindow = [this](WindowName name) { return openWindow(name); },
        .openPractice = [this](const std::string& bundleID) { openPractice(bundleID); },
        .expectActivation = [this](std::string token) { m_desktop->foreground().expect(std::move(token)); },
        .quit = [] { QApplication::quit(); },
        .watching = [this] { return m_model.watching(); },
        .isInTray = [this] { return m_desktop->tray().isShown(); },
    };
}

void Program::start(const ProgramWish& wish) {
    m_model.start();
    m_tray.show();
    m_updates.start();
    // The first hold should not have to wait for what can be made while nobody waits.
    m_preparation = m_timers.after(Seconds(0), [this] { m_model.preparePanels(); });
    const auto window = windowOf(wish.request);
    if (!wish.practiceApp.empty())
        onceTrustIsKnown([this, app = wish.practiceApp] { openPractice(app); });
    else if (window && m_windows.offers(*window))
        onceTrustIsKnown([this, name = *window] { openWindow(name); });
    else if (wish.request == ProgramRequest::showOverlay)
        onceTrustIsKnown([this] { showOverlay(); });
    else if (wish.request == ProgramRequest::showSample)
        showSample();
    else if (wish.request == ProgramRequest::serve)
        m_isToldWhatFor = false;
    else
        m_welcome.begin();
}

bool Program::openWindow(WindowName name) {
    askedFor([this, name] { m_model.requestWindow(name); });
    return m_model.offersWindow(name);
}

/// Shown at once, but by a program that has only just begun.
void Program::askedFor(std::function<void()> show) {
    const bool isNew = !std::exchange(m_isToldWhatFor, true) || m_welcome.isDue();
    m_welcome.giveWay();
    if (isNew)
        onceTrustIsKnown(std::move(show));
    else
        show();
}

void Program::openPractice(const std::string& bundleID) {
    askedFor([this, bundleID] { m_model.openPractice(bundleID); });
}

void Program::onceTrustIsKnown(std::function<void()> show) {
    m_trustForFirstShow.wait(patienceForTrust, std::move(show));
}

/// The first time for the session bus this is the start itself.
void Program::activate() {
    if (std::exchange(m_isToldWhatFor, true))
        askedFor([this] { comeUp(); });
    else
        m_welcome.begin();
}

/// Whoever has not completed the welcome, or cannot be served, is shown what is missing.
void Program::comeUp() {
    if (m_model.onboarded() && m_model.trusted())
        m_tray.popUp();
    else
        m_model.requestWindow(WindowName::welcome);
}

void Program::showOverlay() {
    askedFor([this] { m_model.showOverlay(Stickiness::sticky); });
}

void Program::showSample() {
    m_isToldWhatFor = true;
    m_welcome.giveWay();
    if (!m_showcase)
        m_showcase = std::make_unique<Showcase>(
            m_clock, m_timers, m_background, m_themes, m_icons, m_desktop->panels(), m_settings);
    m_showcase->show();
}

} // namespace quillon
