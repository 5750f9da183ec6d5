#include "x11_typed_keys.h"

#include "followed_keymap.h"

#include <bitset>
#include <utility>

namespace quillon {

namespace {

bool mayBeShortcut(Modifiers held) {
    return held.contains(Modifiers::command) || held.contains(Modifiers::control);
}

} // namespace

class X11TypedKeys::Watch {
  public:
    explicit Watch(X11TypedKeys& owner)
        : m_owner(owner), m_keymap(owner.m_needs.keyboard, owner.m_needs.background, owner.m_needs.display),
          m_modifiers(keyboard().onModifiersChanged([this](Modifiers held) { select(held); })) {
        select(keyboard().modifiers());
    }

  private:
    const X11Keyboard& keyboard() const { return m_owner.m_needs.keyboard; }
    X11Keyboard& keyboard() { return m_owner.m_needs.keyboard; }

    void select(Modifiers held) {
        if (!mayBeShortcut(held)) {
            m_presses.reset();
            m_releases.reset();
            m_down.reset();
        } else if (!m_presses) {
            m_presses = m_owner.m_input->onKeyPress([this](const RawPress& press) { pressed(press); });
            m_releases = m_owner.m_input->onKeyRelease(
                [this](const RawPress& release) { m_down.reset(release.detail % m_down.size()); });
        }
    }

    /// Repeated presses come unmarked where a remote viewer makes them, and not at all where the server does.
    bool isRepeat(const RawPress& press) {
        const std::size_t key = press.detail % m_down.size();
        const bool wasDown = m_down.test(key);
        m_down.set(key);
        return wasDown || press.isRepeat;
    }

    void pressed(const RawPress& press) {
        const KeyState state = keyboard().keyState();
        // The server may have sent another before it was told that no more are wanted.
        if (!mayBeShortcut(state.modifiers) || isRepeat(press) || m_owner.m_needs.hasOwnFocus())
            return;
        const Keymap* const keymap = m_keymap.keymap();
        if (const auto stroke = keymap ? keymap->stroke(press.detail, state) : std::nullopt)
            m_owner.m_stroke.emit(*stroke);
    }

    X11TypedKeys& m_owner;
    FollowedKeymap m_keymap;
    Subscription m_modifiers;
    std::bitset<256> m_down; ///< the keys that were pressed and not let go since a modifier is held
    Subscription m_presses;
    Subscription m_releases;
};

X11TypedKeys::X11TypedKeys(Needs needs, std::shared_ptr<RawInput> input)
    : m_needs(std::move(needs)), m_input(std::move(input)) {}

X11TypedKeys::~X11TypedKeys() = default;

Subscription X11TypedKeys::onKeyStroke(std::function<void(const KeyStroke&)> callback) {
    auto watch = m_watch.lock();
    if (!watch) {
        watch = std::make_shared<Watch>(*this);
        m_watch = watch;
    }
    auto inner = std::make_shared<Subscription>(m_stroke.subscribe(std::move(callback)));
    return Subscription([inner = std::move(inner), watch = std::move(watch)]() mutable {
        inner->reset();
        watch.reset();
    });
}

} // namespace quillon
