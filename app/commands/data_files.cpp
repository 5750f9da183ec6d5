#include "data_files.h"

#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/learned_files.h>
#include <quillon/kit/records/usage.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace quillon {

namespace {

namespace fs = std::filesystem;

std::string said(const QString& text) {
    return text.toStdString();
}

std::string subject() {
    return said(QCoreApplication::translate("Doctor", "Learned data"));
}

/// A file that is gone, or a link to one that is still to be written, is no failure.
template <class Value>
std::optional<LoadFailure> failureOf(const fs::path& file) {
    const auto loaded = JSONFile<Value>(file).tryLoad();
    const LoadFailure* const failure = loaded.failure();
    return failure && failure->kind != LoadFailure::Kind::absent ? std::optional(*failure) : std::nullopt;
}

/// A kind of file by its name, and what becomes of it when it is read.
struct Kind {
    std::string_view name;
    std::optional<LoadFailure> (*failureOf)(const fs::path& file);
};

constexpr std::array kinds{
    Kind{LearnedFiles::usage, failureOf<UsageBook>},
    Kind{LearnedFiles::notes, failureOf<AnnotationBook>},
    Kind{LearnedFiles::menus, failureOf<SheetMap>},
    Kind{LearnedFiles::weeks, failureOf<WeekBook>},
};

Check checkOf(const fs::path& file, const LoadFailure& failure, bool isSetAside) {
    const QString remedy =
        isSetAside
            ? QCoreApplication::translate(
                "Doctor", "Quillon keeps it as it was and began a new one. Mend it and put it back "
                          "while Quillon does not run, or remove it.")
            : QCoreApplication::translate(
                "Doctor", "Mend or remove it while Quillon does not run; until then it counts as empty.");
    return {subject(), Check::Result::limited, file.string() + ": " + failure.message(), said(remedy)};
}

std::vector<fs::path> filesIn(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        files.push_back(at->path());
    std::ranges::sort(files);
    return files;
}

} // namespace

std::vector<Check> checkDataFiles(const fs::path& folder) {
    if (folder.empty())
        return {
            {subject(), Check::Result::limited,
             said(QCoreApplication::translate("Doctor", "there is no home folder to keep it in")),
             said(QCoreApplication::translate("Doctor", "Set HOME."))}};
    std::vector<Check> checks;
    for (const fs::path& file : filesIn(folder)) {
        const std::string name = file.filename().string();
        const auto kind =
            std::ranges::find_if(kinds, [&](const Kind& one) { return name.starts_with(one.name); });
        if (kind == kinds.end())
            continue;
        const std::string_view rest = std::string_view(name).substr(kind->name.size());
        const bool isSetAside = rest.starts_with(LearnedFiles::setAsideMark);
        if (!rest.empty() && !isSetAside)
            continue;
        if (const auto failure = kind->failureOf(file))
            checks.push_back(checkOf(file, *failure, isSetAside));
    }
    if (checks.empty())
        checks.push_back(
            {subject(), Check::Result::good,
             said(
                 QCoreApplication::translate("Doctor", "in %1").arg(QString::fromStdString(folder.string()))),
             ""});
    return checks;
}

} // namespace quillon
