#include "linux_menu_use.h"

#include "logged_app.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// Moving along a menu bar closes a menu and opens the next.
constexpr auto farewell = 2s;
/// How far the pointer may move from one glance at it to the next and still rest.
constexpr double resting = 3;
/// How many glances at a resting pointer make it likely that a click follows, and not another item.
constexpr int glancesAtRest = 3;
/// How far from each other two places are surely on one item.
constexpr double oneItem = 3;
constexpr std::size_t mostPrepared = 256;
/// How often a place is tried at once at which nothing was found.
constexpr int mostAttempts = 2;
/// After that a busy application may still answer: how many glances at a resting pointer lie between two
/// more.
constexpr int glancesBetween = 20;
constexpr int mostPatientAttempts = 5;
/// How often a menu is tried, wherever the pointer is in it, in which nothing was found yet.
constexpr int mostEntries = 4;

bool areWithin(Point a, Point b, double distance) {
    return std::abs(a.x - b.x) <= distance && std::abs(a.y - b.y) <= distance;
}

bool isSamePlace(const atspi::MenuPlace& a, const atspi::MenuPlace& b) {
    return a.opening == b.opening && areWithin(a.at, b.at, oneItem);
}

} // namespace

struct LinuxMenuUse::Browsing {
    struct Prepared {
        std::uint64_t opening;
        Rect area;
    };

    RunningApp app;
    std::shared_ptr<atspi::MenuLookup> lookup;
    PointedItems items{};
    std::vector<Prepared> prepared{};
    MenuItemNumber pointed = 0;                     ///< what was told last
    std::optional<Look> running{};                  ///< what is being asked
    std::optional<Look> wanted{};                   ///< what is asked next
    std::optional<atspi::MenuPlace> toBePrepared{}; ///< when nothing is to be asked
    std::optional<atspi::MenuPlace> fruitless{};    ///< where there was nothing to prepare
    int attempts = 0;                               ///< how often there was nothing
    std::uint64_t entered = 0;                      ///< the opening that nothing was found in last
    int entries = 0;                                ///< how often there was nothing in it
    Subscription job{};
    bool isBusy = false; ///< the job runs
    std::optional<Point> lastSeen{};
    int glances = 0; ///< since the pointer rests

    bool isPrepared(const atspi::MenuPlace& place) const {
        return std::ranges::any_of(prepared, [&place](const Prepared& one) {
            return one.opening == place.opening && one.area.contains(place.at);
        });
    }
    bool isHopeless(const atspi::MenuPlace& place) const {
        const bool isGivenUp =
            attempts >= mostPatientAttempts || glances < (attempts - mostAttempts + 1) * glancesBetween;
        return attempts >= mostAttempts && isGivenUp && fruitless && isSamePlace(*fruitless, place);
    }
    /// Whether it is worth while to learn which menu it is before the pointer rests on an item.
    bool isNew(std::uint64_t opening) const {
        return std::ranges::find(prepared, opening, &Prepared::opening) == prepared.end()
               && (entered != opening || entries < mostEntries);
    }
    void foundNothing(const atspi::MenuPlace& place) {
        attempts = fruitless && isSamePlace(*fruitless, place) ? attempts + 1 : 1;
        fruitless = place;
        entries = entered == place.opening ? entries + 1 : 1;
        entered = place.opening;
    }
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
        beginBrowsing(app);
    m_browsing->pointed = 0;
    m_browsing->lastSeen.reset();
    m_evidence.emit(menu_use::Opened{app});
}

void LinuxMenuUse::beginBrowsing(const RunningApp& app) {
    m_browsing = std::make_unique<Browsing>(Browsing{app, m_needs.makeLookup(app)});
    m_browsing->isBusy = true;
    m_browsing->job =
        m_needs.background.run([this, lookup = m_browsing->lookup](const std::stop_token& stop) {
            lookup->begin(stop);
            return [this] {
                m_browsing->isBusy = false;
                workOn();
            };
        });
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
    const auto place = placeOf(at);
    if (!place)
        return tellPointed(0);
    // Keys can have scrolled the menu, so what is known of the place is asked again, while there is time.
    const auto* known = m_browsing->items.at(place->opening, at);
    ask({++m_lastNumber, *place, known ? std::optional(known->facts) : std::nullopt});
}

void LinuxMenuUse::pointerSeen(Point at, bool isHeld) {
    if (!m_browsing)
        return;
    Browsing& browsing = *m_browsing;
    const auto last = std::exchange(browsing.lastSeen, at);
    browsing.glances = last && areWithin(*last, at, resting) ? browsing.glances + 1 : 0;
    const auto place = placeOf(at);
    if (!place)
        return tellPointed(0);
    // A button that is held down may be let go at once, and what menu it is takes the longest to learn.
    const bool isUrgent = isHeld || browsing.glances >= glancesAtRest || browsing.isNew(place->opening);
    if (isUrgent && !browsing.isPrepared(*place) && !browsing.isHopeless(*place))
        prepare(*place);
}

void LinuxMenuUse::leftButtonReleased(Point at) {
    if (!m_browsing)
        return;
    tellReleasedOver(at);
    m_evidence.emit(menu_use::Released{at});
}

/// What was pressed is known or is being asked about; where a button that was held down came from elsewhere,
/// neither.
void LinuxMenuUse::tellReleasedOver(Point at) {
    const auto place = placeOf(at);
    if (!place)
        return tellPointed(0);
    for (const auto* look : {&m_browsing->wanted, &m_browsing->running})
        if (*look && isSamePlace((*look)->place, *place))
            return tellPointed((*look)->number);
    if (const auto* known = m_browsing->items.at(place->opening, at))
        return tellPointed(known->number);
    ask({++m_lastNumber, *place, std::nullopt});
}

/// The topmost menu that is there.
std::optional<atspi::MenuPlace> LinuxMenuUse::placeOf(Point at) const {
    const auto& popups = m_popups->popups();
    for (std::size_t level = popups.size(); level-- > 0;)
        if (popups[level].frame.contains(at))
            return atspi::MenuPlace{
                popups[level].opening, level, popups[level].frame, at, popups[level].openedFrom};
    return std::nullopt;
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
    workOn();
}

void LinuxMenuUse::prepare(const atspi::MenuPlace& place) {
    m_browsing->toBePrepared = place;
    workOn();
}

/// One question after the other: of the item that is pressed, or else of a place that may be.
void LinuxMenuUse::workOn() {
    if (!m_browsing || m_browsing->isBusy)
        return;
    Browsing& browsing = *m_browsing;
    if (auto look = std::exchange(browsing.wanted, std::nullopt)) {
        browsing.isBusy = true;
        browsing.running = look;
        browsing.job = m_needs.background.run(
            [this, lookup = browsing.lookup, look = *std::move(look)](const std::stop_token& stop) {
                auto facts = lookup->itemAt(look.place, stop);
                return [this, look, facts = std::move(facts)] { answered(look, facts); };
            });
    } else if (const auto place = std::exchange(browsing.toBePrepared, std::nullopt);
               place && !browsing.isPrepared(*place) && !browsing.isHopeless(*place)) {
        browsing.isBusy = true;
        browsing.job = m_needs.background.run(
            [this, lookup = browsing.lookup, place = *place](const std::stop_token& stop) {
                const auto area = lookup->prepare(place, stop);
                return [this, place, area] { prepared(place, area); };
            });
    }
}

void LinuxMenuUse::prepared(const atspi::MenuPlace& place, const std::optional<Rect>& area) {
    Browsing& browsing = *m_browsing;
    browsing.isBusy = false;
    if (area) {
        qCDebug(logMenus).nospace() << "ready for a click in " << area->x << ", " << area->y << ", "
                                    << area->width << " x " << area->height;
        browsing.prepared.push_back({place.opening, *area});
        browsing.attempts = 0;
    } else {
        browsing.foundNothing(place);
    }
    if (browsing.prepared.size() > mostPrepared)
        browsing.prepared.erase(browsing.prepared.begin());
    workOn();
}

void LinuxMenuUse::answered(const Look& look, const std::optional<MenuItemFacts>& facts) {
    m_browsing->isBusy = false;
    m_browsing->running.reset();
    if (!facts)
        m_browsing->items.forget(look.place.opening); // where no item is, it may have scrolled
    if (const auto& known = facts ? facts : look.otherwise)
        tellAll(look, *known);
    workOn();
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
