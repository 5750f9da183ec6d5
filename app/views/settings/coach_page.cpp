#include "coach_page.h"

#include "settings_texts.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/app/views/components/form_row.h>
#include <quillon/kit/shortcut/modifiers.h>

namespace quillon {

CoachPage::CoachPage(AppModel& model, ThemeSource& themeSource, QWidget* parent)
    : SettingsPage(themeSource, parent), m_model(model), m_nudges(new SwitchControl(themeSource)),
      m_counting(new SwitchControl(themeSource)) {
    FormGroup* const group = addGroup();
    group->addRow(new FormRow(themeSource, SettingsTexts::nudgeMe(), m_nudges, group));
    auto* const counting = new FormRow(themeSource, SettingsTexts::countTyped(), m_counting, group);
    m_explanation = counting->addNote({});
    group->addRow(counting);
    connect(m_nudges, &QAbstractButton::clicked, this, [this](bool on) { m_model.setNudgesOn(on); });
    connect(m_counting, &QAbstractButton::clicked, this, [this](bool on) { m_model.setCountTyped(on); });
    m_modelChange = model.changed.subscribe([this](ModelField) { refresh(); });
    refresh();
}

void CoachPage::refresh() {
    m_nudges->setChecked(m_model.nudgesOn());
    m_counting->setChecked(m_model.countTyped());
    m_explanation->setText(SettingsTexts::counting(
        modifierLabel(Modifiers::command, m_model.keyLabels()),
        modifierLabel(Modifiers::control, m_model.keyLabels())));
}

} // namespace quillon
