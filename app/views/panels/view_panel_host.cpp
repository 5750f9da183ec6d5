#include "view_panel_host.h"

#include <quillon/app/views/components/accessible_roles.h>

#include <QWidget>

#include <utility>

namespace quillon {

ViewPanelHost::ViewPanelHost(PanelMaker& maker, MakeContent overlay, MakeContent toast)
    : m_maker(maker), m_overlay(std::move(overlay)), m_toast(std::move(toast)) {}

std::vector<Screen> ViewPanelHost::screens() const {
    return m_maker.screens();
}

Subscription ViewPanelHost::onScreensChanged(std::function<void()> callback) {
    return m_maker.onScreensChanged(std::move(callback));
}

Point ViewPanelHost::pointer() const {
    return m_maker.pointer();
}

std::unique_ptr<FloatingPanel> ViewPanelHost::makeOverlayPanel() {
    PanelContent content = m_overlay();
    const auto widget = content.widget;
    auto panel = m_maker.makePanel(std::move(content));
    readAs(*widget->window(), ReadAs::panel);
    return panel;
}

std::unique_ptr<FloatingPanel> ViewPanelHost::makeToastPanel() {
    return m_maker.makePanel(m_toast());
}

} // namespace quillon
