#pragma once

#include "pointed_items.h"

#include <quillon/app/platform/linux/atspi/menu_lookup.h>
#include <quillon/app/platform/linux/x11/menu_popups.h>
#include <quillon/app/ports/background.h>
#include <quillon/app/ports/menu_use.h>

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// How menus are used on an X server. The server tells when menus are open and where the pointer is; the
/// application is asked, off the main thread, about the item that a button goes down on or is let go over.
/// While menus are only browsed it is asked next to nothing, and it is never listened to: an application that
/// has listeners tells of every change, and of every key.
class LinuxMenuUse final : public MenuUse, private MenuPopupsObserver {
  public:
    /// A look-up in the menus that an application has open now. Never null.
    using MakeLookup = std::function<std::shared_ptr<atspi::MenuLookup>(const RunningApp&)>;

    struct Needs {
        FrontApplication& front;
        Background& background;
        MakeLookup makeLookup;
    };
    /// What `needs` refers to outlives it.
    LinuxMenuUse(std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input, Needs needs);
    ~LinuxMenuUse() override;

    Subscription onEvidence(std::function<void(const MenuEvidence&)> callback) override;

  private:
    struct Look {
        MenuItemNumber number;
        atspi::MenuPlace place;
        std::optional<MenuItemFacts> otherwise; ///< what is told when the application has no answer
    };
    /// From the opening of the first menu until shortly after the last one closed.
    struct Browsing;

    void menusOpened(const RunningApp& app) override;
    void pointerPressed(Point at) override;
    void pointerSeen(Point at, bool isHeld) override;
    void leftButtonReleased(Point at) override;
    void menusClosed() override;

    void begin();
    void beginBrowsing(const RunningApp& app);
    void end();
    std::optional<atspi::MenuPlace> placeOf(Point at) const;
    void prepare(const atspi::MenuPlace& place);
    void prepared(const atspi::MenuPlace& place, const std::optional<Rect>& area);
    void tellReleasedOver(Point at);
    void tellPointed(MenuItemNumber number);
    void ask(Look look);
    void workOn();
    void answered(const Look& look, const std::optional<MenuItemFacts>& facts);
    void tellAll(const Look& look, const MenuItemFacts& facts);
    void tellOf(const Look& look, const MenuItemFacts& facts);

    std::shared_ptr<X11Connection> m_x11;
    std::shared_ptr<RawInput> m_input;
    Needs m_needs;
    Event<const MenuEvidence&> m_evidence;
    std::shared_ptr<LinuxMenuUse*> m_self; ///< for handles that end later than this
    std::size_t m_listeners = 0;
    MenuItemNumber m_lastNumber = 0;
    std::unique_ptr<MenuPopups> m_popups; ///< while somebody listens
    std::unique_ptr<Browsing> m_browsing;
    QTimer m_farewell; ///< runs after the menus were closed, while the next may be opened
};

} // namespace quillon
