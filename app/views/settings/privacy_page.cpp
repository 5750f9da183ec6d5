#include "privacy_page.h"

#include "settings_texts.h"

#include <quillon/app/views/components/form_row.h>

#include <QHBoxLayout>

namespace quillon {

PrivacyPage::PrivacyPage(
    AppModel& model, ThemeSource& themeSource, const QString& dataFolder, QWidget* parent)
    : SettingsPage(themeSource, parent), m_model(model),
      m_erase(new DestructiveButton(themeSource, SettingsTexts::eraseEverything())) {
    FormGroup* const facts = addGroup();
    facts->addRow(
        FormRow::ofText(themeSource, SettingsTexts::whatIsKept(Vocabulary::here(), dataFolder), facts));
    facts->addRow(FormRow::ofText(themeSource, SettingsTexts::goesOnline(), facts));

    auto* const line = new QWidget;
    auto* const row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(m_erase);
    addBelow(line);
    connect(m_erase, &QPushButton::clicked, this, &PrivacyPage::confirmErase);
}

void PrivacyPage::confirmErase() {
    if (m_confirmation)
        return;
    m_confirmation = new Confirmation(themes(), SettingsTexts::eraseConfirmation(), window());
    m_confirmation->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_confirmation, &QDialog::accepted, this, [this] { m_model.eraseEverything(); });
    m_confirmation->open();
}

} // namespace quillon
