#pragma once

#include <quillon/app/ports/floating_panel.h>

#include <memory>
#include <utility>

namespace quillon {

/// What happened to a panel so far; outlives the panel.
struct PanelRecord {
    Rect frame;
    bool visible = false;
    bool hasKeyboard = false;
    int timesPrepared = 0;
    int timesShown = 0;
    Seconds fadedIn{0};  ///< how long the last showing took to be opaque
    Seconds fadedOut{0}; ///< how long the last fading out takes; 0 when the panel was not faded out since
};

class FakePanel final : public FloatingPanel {
  public:
    explicit FakePanel(std::shared_ptr<PanelRecord> record) : m_record(std::move(record)) {}

    void prepare() override { ++m_record->timesPrepared; }
    void setFrame(Rect frame) override { m_record->frame = frame; }
    void orderFront() override {
        m_record->visible = true;
        ++m_record->timesShown;
    }
    void fadeIn(Seconds time) override {
        orderFront();
        m_record->fadedIn = time;
        m_record->fadedOut = Seconds(0);
    }
    /// The panel stays visible: no time passes here.
    void fadeOut(Seconds time) override { m_record->fadedOut = time; }
    void makeKey() override { m_record->hasKeyboard = true; }
    void orderOut() override {
        m_record->visible = false;
        m_record->hasKeyboard = false;
    }
    bool isVisible() const override { return m_record->visible; }

  private:
    std::shared_ptr<PanelRecord> m_record;
};

} // namespace quillon
