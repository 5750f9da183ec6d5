#include "coach_page.h"

#include "settings_texts.h"

#include <quillon/app/views/components/form_row.h>

namespace quillon {

CoachPage::CoachPage(AppModel& model, ThemeSource& themeSource, QWidget* parent)
    : SettingsPage(themeSource, parent), m_model(model), m_nudges(new SwitchControl(themeSource)),
      m_counting(new SwitchControl(themeSource)) {
    FormGroup* const group = addGroup();
    group->addRow(new FormRow(themeSource, SettingsTexts::nudgeMe(), m_nudges, group));
    auto* const counting = new FormRow(themeSource, SettingsTexts::countTyped(), m_counting, group);
    counting->addNote(SettingsTexts::counting());
    group->addRow(counting);
    connect(m_nudges, &QAbstractButton::clicked, this, [this](bool on) { m_model.setNudgesOn(on); });
    connect(m_counting, &QAbstractButton::clicked, this, [this](bool on) { m_model.setCountTyped(on); });
    m_modelChange = model.changed.subscribe([this](ModelField) { refresh(); });
    refresh();
}

void CoachPage::refresh() {
    m_nudges->setChecked(m_model.nudgesOn());
    m_counting->setChecked(m_model.countTyped());
}

} // namespace quillon
