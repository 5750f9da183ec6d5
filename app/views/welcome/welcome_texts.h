#pragma once

#include <quillon/app/core/trigger_key.h>
#include <quillon/app/views/components/vocabulary.h>

#include <QString>

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

/// "Hold ⌘ in any app"
QString holdTitle(TriggerKey trigger);
QString holdBody(TriggerKey trigger);

QString privacyTitle(const Vocabulary& vocabulary);
QString privacyBody(const Vocabulary& vocabulary);

/// What screen readers call a step's marker.
QString step(int number);
QString stepDone(int number);

QString later();
QString done();

} // namespace WelcomeTexts

} // namespace quillon
