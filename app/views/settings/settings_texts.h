#pragma once

#include <quillon/app/core/settings.h>
#include <quillon/app/views/components/confirmation.h>
#include <quillon/app/views/components/vocabulary.h>

#include <QString>

namespace quillon {

/// The sentences of the settings, whole and ready to be translated.
namespace SettingsTexts {

/// On the tab.
QString tab(SettingsTab tab);

QString holdThisKey();
/// "Command", "Option" or "Control".
QString name(TriggerKey key);
/// "Using the key in a shortcut (⌘-click) never opens the overlay."
QString usingTheKey(const QString& key);
/// That the desktop uses the key alone as well.
QString opensLauncher(const QString& key);
/// The button that takes another key instead.
QString useInstead(const QString& key);

QString holdTime();
/// "0.8 s"
QString seconds(double number);

QString showKeysAs();
QString name(KeyLabels labels);

QString startWithSession();
QString startNotChanged();

QString accessibility();
QString allowed();
QString allow();

QString nudgeMe();
QString countTyped();
/// What is looked at to count; `command` and `control` are how these keys are shown.
QString counting(const QString& command, const QString& control);

/// What is learned, and where it is: in `dataFolder`, or nowhere when that is empty.
QString whatIsKept(const Vocabulary& vocabulary, const QString& dataFolder);
QString goesOnline();
QString eraseEverything();
ConfirmationWords eraseConfirmation();

} // namespace SettingsTexts

} // namespace quillon
