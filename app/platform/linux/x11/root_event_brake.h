#pragma once

#include "flood_gate.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <cstdint>

namespace quillon {

/// Keeps a flood of changed properties of the root window from the toolkit, which asks the server anew for
/// each of them: the first few of an interval pass, and of the others one of each property at its end.
class RootEventBrake final : public QAbstractNativeEventFilter {
  public:
    /// Works as long as it lives; does nothing where the toolkit draws without X11.
    RootEventBrake();
    ~RootEventBrake() override;
    RootEventBrake(const RootEventBrake&) = delete;
    RootEventBrake& operator=(const RootEventBrake&) = delete;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  private:
    void passOnHeld();

    QTimer m_interval;
    FloodGate m_gate;
    std::uint32_t m_root = 0;      ///< 0 without X11
    std::uint32_t m_ownWindow = 0; ///< of the toolkit's connection, so that events can be sent to it
};

} // namespace quillon
