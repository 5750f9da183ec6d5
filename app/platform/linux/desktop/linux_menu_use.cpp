#include "linux_menu_use.h"

#include "logged_app.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <chrono>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// Moving along a menu bar closes a menu and opens the next.
constexpr auto farewell = 2s;
/// How far the pointer moves between two looks at it while it lingers.
constexpr double lingering = 8;
/// How far from each other two places are surely on one item.
constexpr double oneItem = 3;

/// How often a place is asked about while the pointer rests there.
constexpr int mostAttempts = 2;

bool areWithin(Point a, Point b, double distance) {
    return std::abs(a.x - b.x) <= distance && std::abs(a.y - b.y) <= distance;
}

bool isSamePlace(const atspi::MenuPlace& a, const atspi::MenuPlace& b) {
    return a.opening == b.opening && areWithin(a.at, b.at, oneItem);
}

} // namespace

struct LinuxMenuUse::Browsing {
    RunningApp app;
    Lookup lookup;
    PointedItems items{};
    MenuItemNumber pointed = 0;    ///< what was told last
    std::optional<Look> running{}; ///< what is being asked
    std::optional<Look> wanted{};  ///< what is asked next
    Subscription job{};
    std::optional<Look> fruitless{}; ///< the last one that found nothing
    int attempts = 0;                ///< how many at its place
    std::optional<Point> lastSeen{};
    bool isPressed = false;
};

LinuxMenuUse::LinuxMenuUse(std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input, Needs needs)
    : m_x11(std::move(x11)), m_input(std::move(input)), m_needs(std::move(needs)),
      m_self(std::make_shared<LinuxMenuUse*>(this)) {
    m_farewell.setSingleShot(true);
    m_farewell.setInterval(farewell);
    m_farewell.callOnTimeout([this] { m_browsing.reset(); });
}

LinuxMenuUse::~LinuxMenuUse() = default;

Subscription LinuxMenuUse::onEvidence(std::function<void(const MenuEvidence&)> callback) {
    if (m_listeners++ == 0)
        begin();
    auto inner = std::make_shared<Subscription>(m_evidence.subscribe(std::move(callback)));
    return Subscription([inner = std::move(inner), self = std::weak_ptr<LinuxMenuUse*>(m_self)] {
        inner->reset();
        const auto alive = self.lock();
        if (alive && --(*alive)->m_listeners == 0)
            (*alive)->end();
    });
}

void LinuxMenuUse::begin() {
    if (!m_popups)
        m_popups = std::make_unique<MenuPopups>(
            m_x11, m_input, m_needs.front, static_cast<MenuPopupsObserver&>(*this));
}

/// Who listens may end that while it is told something.
void LinuxMenuUse::end() {
    m_farewell.stop();
    m_browsing.reset();
    m_popups->stop();
    QMetaObject::invokeMethod(
        &m_farewell, [ended = std::shared_ptr<MenuPopups>(std::move(m_popups))] {}, Qt::QueuedConnection);
}

void LinuxMenuUse::menusOpened(const RunningApp& app) {
    qCDebug(logMenus).noquote() << "a menu opened of" << logged(app);
    m_farewell.stop();
    if (!m_browsing || !isSameApp(m_browsing->app, app) || m_browsing->app.windows != app.windows)
        m_browsing = std::make_unique<Browsing>(Browsing{app, m_needs.makeLookup(app)});
    m_browsing->pointed = 0;
    m_browsing->lastSeen.reset();
    m_evidence.emit(menu_use::Opened{app});
}

void LinuxMenuUse::menusClosed() {
    qCDebug(logMenus) << "no menu is open any more";
    if (m_browsing)
        m_farewell.start();
    m_evidence.emit(menu_use::Closed{});
}

void LinuxMenuUse::pointerPressed(Point at) {
    if (!m_browsing)
        return;
    m_browsing->isPressed = true;
    const auto place = placeOf(at);
    if (!place)
        return tellPointed(0);
    // Keys can have scrolled the menu, so what is known of the place is asked again, while there is time.
    const auto* known = m_browsing->items.at(place->opening, at);
    ask({++m_lastNumber, *place, known ? std::optional(known->facts) : std::nullopt});
}

void LinuxMenuUse::pointerSeen(Point at) {
    if (!m_browsing)
        return;
    const bool lingers = m_browsing->lastSeen && areWithin(*m_browsing->lastSeen, at, lingering);
    m_browsing->lastSeen = at;
    point(at, lingers || m_browsing->isPressed);
}

void LinuxMenuUse::leftButtonReleased(Point at) {
    if (!m_browsing)
        return;
    m_browsing->isPressed = false;
    point(at, true); // where the menu was slow to open, nothing was asked before
    m_evidence.emit(menu_use::Released{at});
}

/// The topmost menu that is there.
std::optional<atspi::MenuPlace> LinuxMenuUse::placeOf(Point at) const {
    const auto& popups = m_popups->popups();
    for (std::size_t level = popups.size(); level-- > 0;)
        if (popups[level].frame.contains(at))
            return atspi::MenuPlace{popups[level].opening, level, popups[level].frame, at};
    return std::nullopt;
}

/// Tells what is pointed at, as far as it is known or `isToBeAsked`.
void LinuxMenuUse::point(Point at, bool isToBeAsked) {
    const auto place = placeOf(at);
    if (!place)
        return tellPointed(0);
    for (const auto* look : {&m_browsing->wanted, &m_browsing->running})
        if (*look && isSamePlace((*look)->place, *place))
            return tellPointed((*look)->number);
    if (const auto* known = m_browsing->items.at(place->opening, at))
        return tellPointed(known->number);
    if (!isToBeAsked || isFruitless(*place))
        return tellPointed(0);
    ask({++m_lastNumber, *place, std::nullopt});
}

void LinuxMenuUse::tellPointed(MenuItemNumber number) {
    if (std::exchange(m_browsing->pointed, number) != number)
        m_evidence.emit(menu_use::Pointed{number});
}

void LinuxMenuUse::ask(Look look) {
    tellPointed(look.number);
    if (!m_browsing)
        return;
    m_browsing->wanted = std::move(look);
    askNext();
}

void LinuxMenuUse::askNext() {
    if (!m_browsing || m_browsing->running || !m_browsing->wanted)
        return;
    Browsing& browsing = *m_browsing;
    browsing.running = std::exchange(browsing.wanted, std::nullopt);
    browsing.job = m_needs.background.run(
        [this, lookup = browsing.lookup, look = *browsing.running](const std::stop_token& stop) {
            auto facts = lookup(look.place, stop);
            return [this, look, facts = std::move(facts)] { answered(look, facts); };
        });
}

void LinuxMenuUse::answered(const Look& look, const std::optional<MenuItemFacts>& facts) {
    m_browsing->running.reset();
    if (!facts)
        noteFruitless(look);
    if (const auto& known = facts ? facts : look.otherwise)
        tellAll(look, *known);
    askNext();
}

/// Nothing is there, and what tells nothing may be an arrow that scrolls the menu; or the application has not
/// followed the pointer yet.
void LinuxMenuUse::noteFruitless(const Look& look) {
    Browsing& browsing = *m_browsing;
    browsing.items.forget(look.place.opening);
    const bool isAgain = browsing.fruitless && isSamePlace(browsing.fruitless->place, look.place);
    browsing.attempts = isAgain ? browsing.attempts + 1 : 1;
    browsing.fruitless = look;
}

bool LinuxMenuUse::isFruitless(const atspi::MenuPlace& place) const {
    return m_browsing->fruitless && isSamePlace(m_browsing->fruitless->place, place)
           && m_browsing->attempts >= mostAttempts;
}

/// Of this look, and of the next one where that is at the same item.
void LinuxMenuUse::tellAll(const Look& look, const MenuItemFacts& facts) {
    const auto next = m_browsing->wanted;
    tellOf(look, facts);
    const bool isSameItem = next && next->place.opening == look.place.opening && facts.frame
                            && facts.frame->contains(next->place.at);
    if (!m_browsing || !isSameItem)
        return;
    m_browsing->wanted.reset();
    tellOf(*next, facts);
}

void LinuxMenuUse::tellOf(const Look& look, const MenuItemFacts& facts) {
    m_browsing->items.learn({look.number, look.place.opening, facts});
    qCDebug(logMenus).nospace() << "item " << look.number << ": " << facts.path.size() << " titles, "
                                << (facts.shortcut ? "a shortcut" : "no shortcut")
                                << (facts.enabled ? "" : ", cannot be used");
    m_evidence.emit(menu_use::Told{look.number, facts});
}

} // namespace quillon
