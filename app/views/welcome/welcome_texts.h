#pragma once

#include <quillon/app/core/trigger_key.h>
#include <quillon/app/views/components/vocabulary.h>

#include <QString>
#include <QStringList>

namespace quillon {

/// The sentences of the welcome, whole and ready to be translated.
namespace WelcomeTexts {

QString title();
/// Below the title.
QString promise();

QString allowTitle();
QString allowBody(const Vocabulary& vocabulary);
/// The buttons of the first step, and what stands in their place once it is done.
QString allowAccessibility();
QString openSystemSettings();
QString allowed();

/// "Hold ⌘ in any app"; here and below `trigger` is how the key is shown.
QString holdTitle(const QString& trigger);
QString holdBody(TriggerKey key, const QString& trigger);

/// Where the desktop uses the trigger key alone, and the button that takes another.
QString opensLauncher(const QString& trigger);
QString useInstead(const QString& other);

/// Names the applications that were open before the permission was given.
QString restart(const QStringList& apps);
/// How to reach the program on a desktop that shows no icon of it.
QString withoutTray();

QString privacyTitle(const Vocabulary& vocabulary);
QString privacyBody(const Vocabulary& vocabulary);

/// What screen readers call a step's marker.
QString step(int number);
QString stepDone(int number);

QString later();
QString done();

} // namespace WelcomeTexts

} // namespace quillon
