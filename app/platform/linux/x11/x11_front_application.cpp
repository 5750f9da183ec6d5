#include "x11_front_application.h"

#include "window_icon.h"
#include "x11_property.h"

#include <algorithm>
#include <ranges>
#include <span>
#include <utility>

namespace quillon {

namespace {

/// Dialogs of dialogs; the chain is written by the application and might be a ring.
constexpr std::size_t longestOwnerChain = 8;
/// The windows that are looked at when the program starts, the topmost ones.
constexpr std::uint32_t seedLimit = 64;
/// The windows of one application that are told.
constexpr std::size_t windowLimit = 32;

} // namespace

X11FrontApplication::X11FrontApplication(
    std::shared_ptr<X11Connection> x11, AppIdentifier& identifier, NoteIcon noteIcon)
    : m_x11(std::move(x11)), m_identifier(identifier), m_noteIcon(std::move(noteIcon)), m_active(m_x11) {
    seedHistory();
    m_changes = m_active.onChanged([this] {
        m_isToldOf = false;
        activeChanged();
    });
    m_entries = m_identifier.onRead([this] { activeChanged(); });
    m_caughtUp = m_x11->onCaughtUp([this] { activeChanged(); });
    activeChanged();
}

/// Which windows were active before the program started is unknown; the higher one lies, the later it was.
void X11FrontApplication::seedHistory() {
    auto list =
        X11Property::ask(*m_x11, m_x11->root(), m_x11->atom(X11Name::netClientListStacking), 4 * 1024);
    list.receive(*m_x11);
    const auto windows = list.numbers();
    const auto skipped = windows.size() > seedLimit ? windows.size() - seedLimit : 0;
    for (const xcb_window_t window : std::span(windows).subspan(skipped))
        m_history.activated(window);
}

void X11FrontApplication::activeChanged() {
    if (m_isToldOf || m_x11->isLate())
        return;
    if (m_active.current() == XCB_NONE) {
        m_last.reset();
        return;
    }
    m_history.activated(m_active.current());
    auto app = describe();
    if (!app)
        return;
    m_last = *app;
    m_isToldOf = true;
    noteIconOf(*app);
    m_activated.emit(*app);
}

std::optional<RunningApp> X11FrontApplication::current() const {
    if (m_active.current() == XCB_NONE)
        return std::nullopt;
    if (auto app = m_x11->isLate() ? std::nullopt : describe())
        m_last = std::move(app);
    return m_last;
}

std::vector<X11FrontApplication::Named>
X11FrontApplication::name(const std::vector<xcb_window_t>& windows) const {
    std::vector<Named> result;
    for (SurveyedWindow& window : surveyWindows(*m_x11, windows)) {
        if (auto app = m_identifier.identify(window.facts))
            result.push_back({std::move(window), *std::move(app)});
    }
    return result;
}

std::vector<X11FrontApplication::Named> X11FrontApplication::ownersOf(const SurveyedWindow& window) const {
    std::vector<Named> chain;
    xcb_window_t next = window.transientFor;
    while (next != XCB_NONE && next != window.id && chain.size() < longestOwnerChain
           && std::ranges::none_of(chain, [next](const Named& owner) { return owner.window.id == next; })) {
        auto owner = name({next});
        if (owner.empty())
            break;
        next = owner.front().window.transientFor;
        chain.push_back(std::move(owner.front()));
    }
    return chain;
}

/// Windows of another process that it belongs to (a file chooser's caller) do not tell whose it is.
AppIdentity X11FrontApplication::identityOf(const Named& window, const std::vector<Named>& owners) const {
    std::vector<AppIdentity> identities;
    for (const Named& owner : owners)
        if (owner.window.facts.pid == window.window.facts.pid)
            identities.push_back(owner.app);
    const auto entries = m_identifier.entries();
    return entries ? entries->identifyOwned(window.app, identities) : window.app;
}

std::optional<RunningApp> X11FrontApplication::describe() const {
    const auto active = name({m_active.current()});
    if (active.empty())
        return std::nullopt;
    const SurveyedWindow& window = active.front().window;
    const std::vector<Named> owners = ownersOf(window);
    const AppIdentity app = identityOf(active.front(), owners);
    RunningApp result{window.facts.pid, app.bundleID, app.name, {{window.id, window.title}}};
    const auto add = [&result](const SurveyedWindow& other) {
        const bool known = std::ranges::any_of(
            result.windows, [&other](const AppWindow& listed) { return listed.id == other.id; });
        if (!known && result.windows.size() < windowLimit)
            result.windows.push_back({other.id, other.title});
    };
    for (const Named& owner : owners)
        add(owner.window);
    for (const Named& other : name(m_history.windows())) {
        if (other.window.facts.pid == result.pid && other.app.bundleID == result.bundleID)
            add(other.window);
    }
    if (m_x11->isLate())
        return std::nullopt;
    return result;
}

void X11FrontApplication::noteIconOf(const RunningApp& app) {
    const auto entries = m_identifier.entries();
    if (!m_noteIcon || app.bundleID.empty() || (entries && entries->byID(app.bundleID) != nullptr))
        return;
    if (auto icon = windowIcon(*m_x11, m_active.current()))
        m_noteIcon(app.bundleID, *std::move(icon));
}

Subscription X11FrontApplication::onActivated(std::function<void(const RunningApp&)> callback) {
    return m_activated.subscribe(std::move(callback));
}

} // namespace quillon
