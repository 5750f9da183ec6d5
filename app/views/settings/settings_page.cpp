#include "settings_page.h"

#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/themed_button.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 20;
constexpr int topPadding = 16;
constexpr int groupGap = 14;

} // namespace

SettingsPage::SettingsPage(ThemeSource& themes, QWidget* parent)
    : QWidget(parent), m_themes(themes), m_groups(new QVBoxLayout(this)) {
    m_groups->setContentsMargins(padding - focusRingRoom, topPadding, padding - focusRingRoom, padding);
    m_groups->setSpacing(groupGap);
    m_groups->addStretch(1);
}

FormGroup* SettingsPage::addGroup() {
    auto* group = new FormGroup(m_themes, this);
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(focusRingRoom, 0, focusRingRoom, 0);
    line->addWidget(group);
    m_groups->insertLayout(m_groups->count() - 1, line);
    return group;
}

void SettingsPage::addBelow(QWidget* widget) {
    m_groups->insertWidget(m_groups->count() - 1, widget);
}

} // namespace quillon
