#include "open_menus.h"

#include "accessibility_bus.h"
#include "app_windows.h"
#include "application_search.h"
#include "item_facts.h"
#include "menu_bar_memory.h"
#include "menu_bar_search.h"
#include "open_menu_search.h"

#include <quillon/app/platform/linux/atspi/key_binding/key_binding.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quillon::atspi {
namespace {

/// Longer than anyone keeps a menu open.
constexpr std::chrono::minutes longestSession{10};

BusConnection connect(const ReadLimits& limits, const std::stop_token& stop) {
    const auto address = accessibilityBusAddress(limits, CallPipeline::Clock::now() + limits.whole, stop);
    return address ? BusConnection::at(*address) : BusConnection();
}

} // namespace

/// What lasts from the first question about these menus to the last.
class OpenMenus::Session {
  public:
    Session(
        const RunningApp& app, MenuBarMemory& memory, const ReadLimits& limits, const std::stop_token& stop)
        : m_pipeline(connect(limits, stop), limits, CallPipeline::Clock::now() + longestSession, stop),
          m_calls(m_pipeline, limits) {
        auto menuBar = recalledMenuBar(app, memory);
        if (!menuBar)
            menuBar = searchedMenuBar(app, memory);
        if (!menuBar)
            return;
        m_family = menuBar->family;
        m_search = makeOpenMenuSearch(m_calls, menuBar->object, m_family);
    }

    /// Whether the application, or the bus, did not answer; then nothing is asked any more.
    bool hasEnded() const { return m_pipeline.hasEnded(); }

    std::optional<Rect> prepare(const MenuPlace& place) {
        return m_search ? m_search->prepare(place) : std::nullopt;
    }

    std::optional<MenuItemFacts> itemAt(const MenuPlace& place) {
        const auto found = m_search ? m_search->find(place) : std::nullopt;
        return found ? describe(*found) : std::nullopt;
    }

  private:
    /// Names of connections are used again once the bus was started anew.
    std::optional<KnownMenuBar> recalledMenuBar(const RunningApp& app, const MenuBarMemory& memory) {
        auto menuBar = memory.recall(app);
        if (!menuBar)
            return std::nullopt;
        bool isIts = false;
        bool isMenuBar = false;
        m_calls.processId(menuBar->object.busName, [&](std::optional<std::int64_t> pid) {
            isIts = pid == menuBar->busPid;
        });
        m_calls.role(menuBar->object, [&](std::optional<Role> role) { isMenuBar = role == Role::menuBar; });
        m_pipeline.run();
        return isIts && isMenuBar ? std::move(menuBar) : std::nullopt;
    }

    std::optional<KnownMenuBar> searchedMenuBar(const RunningApp& app, MenuBarMemory& memory) {
        const auto applications = applicationsOnBus(m_calls);
        if (!applications)
            return std::nullopt;
        const auto windows = windowsOfApp(m_calls, *applications, app);
        if (!windows)
            return std::nullopt;
        for (const BusWindow& window : *windows)
            if (auto object = findMenuBar(m_calls, window.object)) {
                const KnownMenuBar menuBar{*object, window.toolkit, processOf(*applications, *object)};
                memory.remember(app, menuBar);
                return menuBar;
            }
        return std::nullopt;
    }

    static std::int64_t processOf(const std::vector<BusApplication>& applications, const ObjectRef& object) {
        const auto its = std::ranges::find_if(applications, [&object](const BusApplication& one) {
            return one.root.busName == object.busName;
        });
        return its == applications.end() ? 0 : its->pid;
    }

    std::optional<MenuItemFacts> describe(const FoundItem& found) {
        std::vector<std::optional<std::string>> titles(found.menus.size());
        for (std::size_t i = 0; i < titles.size(); ++i)
            title(found.menus[i], titles[i]);
        RawMenuItem item;
        std::optional<std::string> name;
        std::string binding;
        m_calls.name(found.object, [&name](std::optional<std::string> text) { name = std::move(text); });
        m_calls.keyBinding(found.object, [&binding](std::optional<std::string> text) {
            binding = std::move(text).value_or(std::string());
        });
        m_calls.states(found.object, [&item](std::optional<StateSet> states) {
            item.enabled = !states || states->isUsable();
        });
        m_pipeline.run();
        if (!name || m_pipeline.hasEnded())
            return std::nullopt;
        item.title = *std::move(name);
        addEquivalent(found.object, binding, item);
        std::vector<std::string> known;
        for (auto& text : titles) {
            if (!text)
                return std::nullopt;
            known.push_back(*std::move(text));
        }
        MenuItemFacts facts = factsOf(known, item);
        facts.frame = found.frame;
        return facts;
    }

    void title(const ObjectRef& menu, std::optional<std::string>& title) {
        const auto known = m_titles.find(menu);
        if (known != m_titles.end()) {
            title = known->second;
            return;
        }
        m_calls.name(menu, [this, &menu, &title](std::optional<std::string> text) {
            if (text)
                m_titles.insert_or_assign(menu, *text);
            title = std::move(text);
        });
    }

    /// What holds others has no key equivalent, whatever it tells.
    void addEquivalent(const ObjectRef& object, const std::string& binding, RawMenuItem& item) {
        const AxKeyEquivalent equivalent = keyEquivalent({binding, m_family, item.title});
        if (!equivalent.modifiers)
            return;
        bool isCommand = false;
        m_calls.children(object, [&isCommand](std::optional<std::vector<ObjectRef>> children) {
            isCommand = !children || children->empty();
        });
        m_pipeline.run();
        if (!isCommand)
            return;
        item.cmdChar = equivalent.character;
        item.cmdModifiers = equivalent.modifiers;
        item.cmdGlyph = equivalent.glyph;
        item.cmdVirtualKey = equivalent.virtualKey;
    }

    CallPipeline m_pipeline;
    AccessibilityCalls m_calls;
    ToolkitFamily m_family = ToolkitFamily::other;
    std::unique_ptr<OpenMenuSearch> m_search; ///< nullptr when there is nothing to search
    std::unordered_map<ObjectRef, std::string> m_titles;
};

std::shared_ptr<MenuBarMemory> makeMenuBarMemory() {
    return std::make_shared<MenuBarMemory>();
}

OpenMenus::OpenMenus(RunningApp app, std::shared_ptr<MenuBarMemory> memory, const ReadLimits& limits)
    : m_app(std::move(app)), m_memory(std::move(memory)), m_limits(limits) {}

OpenMenus::~OpenMenus() = default;

OpenMenus::Session& OpenMenus::session() {
    if (!m_session)
        m_session = std::make_unique<Session>(m_app, *m_memory, m_limits, m_stop.get_token());
    return *m_session;
}

void OpenMenus::begin(const std::stop_token& stop) {
    const std::stop_callback giveUp(stop, [this] { m_stop.request_stop(); });
    session();
}

std::optional<Rect> OpenMenus::prepare(const MenuPlace& place, const std::stop_token& stop) {
    const std::stop_callback giveUp(stop, [this] { m_stop.request_stop(); });
    return session().prepare(place);
}

std::optional<MenuItemFacts> OpenMenus::itemAt(const MenuPlace& place, const std::stop_token& stop) {
    const std::stop_callback giveUp(stop, [this] { m_stop.request_stop(); });
    if (m_session && m_session->hasEnded())
        m_session.reset();
    return session().itemAt(place);
}

ReadLimits OpenMenus::patience() {
    using namespace std::chrono_literals;
    ReadLimits limits;
    limits.call = 800ms;
    limits.silence = 800ms;
    limits.whole = 1000ms;
    return limits;
}

} // namespace quillon::atspi
