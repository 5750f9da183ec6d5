#pragma once

#include <quillon/app/ports/windows.h>

#include <optional>
#include <set>
#include <vector>

namespace quillon {

/// Windows of which only is noted what was asked for. All of them are on offer at first.
class FakeWindows final : public Windows {
  public:
    void open(WindowName name) override {
        if (offers(name))
            m_opened.push_back(name);
    }
    bool offers(WindowName name) const override { return !m_withheld.contains(name); }
    bool hasKeyboard(WindowName name) const override { return m_keyboardOwner == name; }

    /// What was opened, in order.
    const std::vector<WindowName>& opened() const { return m_opened; }
    /// Takes a window out of the offer.
    void withhold(WindowName name) { m_withheld.insert(name); }
    /// Lets a window be the one that is typed into; absent for none.
    void giveKeyboard(std::optional<WindowName> name) { m_keyboardOwner = name; }

  private:
    std::vector<WindowName> m_opened;
    std::set<WindowName> m_withheld;
    std::optional<WindowName> m_keyboardOwner;
};

} // namespace quillon
