#include "settings_page.h"

#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 20;
constexpr int topPadding = 16;
constexpr int groupGap = 14;

} // namespace

SettingsPage::SettingsPage(ThemeSource& themes, QWidget* parent)
    : QWidget(parent), m_themes(themes), m_groups(new QVBoxLayout(this)) {
    m_groups->setContentsMargins(padding, topPadding, padding, padding);
    m_groups->setSpacing(groupGap);
    m_groups->addStretch(1);
}

FormGroup* SettingsPage::addGroup() {
    auto* group = new FormGroup(m_themes, this);
    m_groups->insertWidget(m_groups->count() - 1, group);
    return group;
}

void SettingsPage::addBelow(QWidget* widget) {
    m_groups->insertWidget(m_groups->count() - 1, widget);
}

} // namespace quillon
