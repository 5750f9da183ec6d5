#include "update_texts.h"

#include <QCoreApplication>

namespace quillon::UpdateTexts {

namespace {

QString programName() {
    return QCoreApplication::translate("Updates", "Quillon");
}

Message upToDate(const QString& version) {
    return {
        QCoreApplication::translate("Updates", "You’re up to date"),
        QCoreApplication::translate(
            "Updates", "%1 %2 is the newest version. %1 checks for updates on its own and will let you know "
                       "when there’s a new one.")
            .arg(programName(), version)};
}

Message unreachable() {
    return {
        QCoreApplication::translate("Updates", "Couldn’t check for updates"),
        QCoreApplication::translate(
            "Updates",
            "Check your internet connection and try again. %1 also checks on its own about once a day.")
            .arg(programName())};
}

Message unreadable() {
    return {
        QCoreApplication::translate("Updates", "Couldn’t check for updates"),
        QCoreApplication::translate(
            "Updates", "What was received is no list of releases. Try again later, or in another network. %1 "
                       "also checks on its own about once a day.")
            .arg(programName())};
}

Message withSystem(const QString& version) {
    return {
        QCoreApplication::translate("Updates", "Updates come with your system’s software"),
        QCoreApplication::translate(
            "Updates",
            "%1 %2 does not look for updates by itself. A newer version comes the way this one came, "
            "as a rule with the updates of your system.")
            .arg(programName(), version)};
}

} // namespace

Message notice(UpdateNotice notice, const QString& version) {
    switch (notice) {
    case UpdateNotice::upToDate: return upToDate(version);
    case UpdateNotice::unreachable: return unreachable();
    case UpdateNotice::unreadable: return unreadable();
    case UpdateNotice::withSystem: return withSystem(version);
    }
    return {};
}

Message newer(const QString& version, const QString& ownVersion) {
    return {
        QCoreApplication::translate("Updates", "%1 %2 is available").arg(programName(), version),
        QCoreApplication::translate("Updates", "You have version %1.").arg(ownVersion)};
}

Message pageNotOpened(const QString& address) {
    return {
        QCoreApplication::translate("Updates", "Couldn’t open the page"),
        QCoreApplication::translate("Updates", "Open this address in a browser: %1").arg(address)};
}

Message centreNotOpened() {
    return {
        QCoreApplication::translate("Updates", "Couldn’t open the software centre"),
        QCoreApplication::translate("Updates", "Open it from your desktop’s menu and look for %1 there.")
            .arg(programName())};
}

QString windowTitle() {
    return programName();
}

QString ok() {
    return QCoreApplication::translate("Updates", "OK");
}

QString later() {
    return QCoreApplication::translate("Updates", "Later");
}

QString openPage() {
    return QCoreApplication::translate("Updates", "Open Download Page");
}

QString openSoftwareCentre() {
    return QCoreApplication::translate("Updates", "Open Software Centre");
}

QString openReleaseNotes() {
    return QCoreApplication::translate("Updates", "Read Release Notes");
}

QString notesName(const QString& version) {
    return QCoreApplication::translate("Updates", "What is new in %1 %2").arg(programName(), version);
}

} // namespace quillon::UpdateTexts
