#include "learned_texts.h"

#include <quillon/app/core/local_day.h>
#include <quillon/app/languages/shown_numbers.h>
#include <quillon/kit/coach/nudge_policy.h>
#include <quillon/kit/coach/time_saved.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace quillon::LearnedTexts {

using namespace Qt::StringLiterals;

namespace {

/// More titles than a line or two take are only counted.
constexpr std::size_t mostTitles = 8;
constexpr double minute = 60;
constexpr double hour = 60 * minute;

/// In one unit, whole: an estimate has no more to say.
QString length(Seconds time) {
    if (time.count() < minute)
        return QCoreApplication::translate("Learned", "%1 s").arg(std::llround(time.count()));
    if (time.count() < 2 * hour)
        return QCoreApplication::translate("Learned", "%1 min").arg(std::llround(time.count() / minute));
    return QCoreApplication::translate("Learned", "%1 h").arg(std::llround(time.count() / hour));
}

} // namespace

QString heading() {
    return QCoreApplication::translate("Learned", "What you learned");
}

QString typed() {
    return QCoreApplication::translate("Learned", "Typed");
}

QString clicked() {
    return QCoreApplication::translate("Learned", "Clicked");
}

QString weekLabel(Day monday) {
    //: The code of this language, for the names of months.
    const QLocale language(QCoreApplication::translate("Learned", "en"));
    //: A day under a chart, short: d is the day and MMM the month's short name.
    return language.toString(dateOf(monday), QCoreApplication::translate("Learned", "d MMM"));
}

QString weeksInWords(const LearnedSummary& summary) {
    QStringList weeks;
    for (const WeekBar& week : summary.weeks)
        if (week.clicked > 0 || week.typed > 0)
            weeks.append(
                QCoreApplication::translate("Learned", "Week of %1: %2 clicked, %3 typed.")
                    .arg(weekLabel(week.monday), QString::number(week.clicked), QString::number(week.typed)));
    return weeks.join(u' ');
}

QString graduated(const LearnedSummary& summary) {
    if (summary.graduated.empty())
        return QCoreApplication::translate(
                   "Learned",
                   "No shortcut has graduated yet. One does once you’ve typed it %1 times more than "
                   "you’ve clicked it.")
            .arg(defaultNudgePolicy.graduateAfter);
    QStringList titles;
    for (std::size_t i = 0; i < std::min(summary.graduated.size(), mostTitles); ++i)
        titles.append(summary.graduated[i]);
    if (summary.graduated.size() > mostTitles)
        titles.append(u"…"_s);
    return QCoreApplication::translate("Learned", "Graduated (%1): %2")
        .arg(QString::number(summary.graduated.size()), titles.join(u", "_s));
}

QString timeSaved(Count typed) {
    if (typed <= 0)
        return {};
    return QCoreApplication::translate(
               "Learned",
               "About %1 saved: %2 typed × %3 s, which two pointings and two clicks in a menu take "
               "longer than two keys.")
        .arg(
            length(quillon::timeSaved(typed)), QString::number(typed), withOneDecimal(savedByTyping.count()));
}

} // namespace quillon::LearnedTexts
