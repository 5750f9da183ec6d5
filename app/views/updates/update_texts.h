#pragma once

#include <quillon/app/core/updates/update_notice.h>

#include <QString>

namespace quillon {

/// The sentences of the windows about updates, whole and ready to be translated.
namespace UpdateTexts {

/// What a message says: one line, and sentences below.
struct Message {
    QString title;
    QString text;
};

/// `version` is this program's.
Message notice(UpdateNotice notice, const QString& version);
/// "Quillon 0.2.0 is available" and what to do about it.
Message newer(const QString& version, const QString& ownVersion);
/// A page that nothing on this desktop opens.
Message pageNotOpened(const QString& address);
/// No software centre came.
Message centreNotOpened();

QString windowTitle();
QString ok();
QString later();
QString openPage();
QString openSoftwareCentre();
QString openReleaseNotes();
/// "What is new in Quillon 0.2.0": names the notes for a screen reader.
QString notesName(const QString& version);

} // namespace UpdateTexts

} // namespace quillon
