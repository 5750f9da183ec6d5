#include "data_folder.h"

#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/learned_files.h>

#include <optional>
#include <system_error>
#include <utility>

namespace quillon {

namespace fs = std::filesystem;

namespace {

/// Whoever wants to look into a broken file finds these; one more is written over.
constexpr int mostSetAside = 9;

std::optional<fs::path> freeName(const fs::path& path) {
    for (int number = 1; number <= mostSetAside; ++number) {
        fs::path name = path;
        name += LearnedFiles::setAsideMark;
        if (number > 1)
            name += "-" + std::to_string(number);
        std::error_code error;
        if (fs::symlink_status(name, error).type() == fs::file_type::not_found)
            return name;
    }
    return std::nullopt;
}

} // namespace

DataFolder::DataFolder(fs::path folder) : m_folder(std::move(folder)) {}

LearnedData DataFolder::load() {
    if (m_folder.empty())
        return {};
    LearnedData learned{
        .usage = loadFile<UsageBook>(LearnedFiles::usage),
        .annotations = loadFile<AnnotationBook>(LearnedFiles::notes),
        .sheets = loadFile<SharedSheets>(LearnedFiles::menus),
        .weeks = loadFile<WeekBook>(LearnedFiles::weeks),
    };
    m_savedAnnotations = learned.annotations;
    m_savedSheets = learned.sheets;
    m_savedWeeks = learned.weeks;
    return learned;
}

void DataFolder::save(LearnedData learned) {
    if (m_folder.empty())
        return;
    // What fails is made up for by the next save.
    saveFile(LearnedFiles::usage, learned.usage);
    saveOther(LearnedFiles::notes, std::move(learned.annotations), m_savedAnnotations);
    saveOther(LearnedFiles::menus, std::move(learned.sheets), m_savedSheets);
    saveOther(LearnedFiles::weeks, std::move(learned.weeks), m_savedWeeks);
}

/// Saves `value` unless the file holds it.
template <class Value>
void DataFolder::saveOther(const char* name, Value value, std::optional<Value>& saved) {
    if (saved == value && stands(name))
        return;
    saved.reset();
    if (saveFile(name, value))
        saved = std::move(value);
}

/// Whether the file is there and is one of this program's.
bool DataFolder::stands(const char* name) const {
    std::error_code error;
    return !m_broken.contains(name) && fs::exists(m_folder / name, error);
}

void DataFolder::erase() {
    if (m_folder.empty())
        return;
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
    m_broken.clear();
    m_savedAnnotations.reset();
    m_savedSheets.reset();
    m_savedWeeks.reset();
}

template <class Value>
Value DataFolder::loadFile(const char* name) {
    const JSONFile<Value> file(m_folder / name);
    if (auto value = file.load())
        return std::move(*value);
    std::error_code error;
    if (fs::is_regular_file(file.url(), error))
        m_broken.insert(name);
    return {};
}

template <class Value>
bool DataFolder::saveFile(const char* name, const Value& value) {
    if (m_broken.contains(name) && !setAside(name))
        return false;
    m_broken.erase(name);
    return !JSONFile<Value>(m_folder / name).save(value);
}

// A link stays where it is, so that saving goes on to where it leads.
bool DataFolder::setAside(const std::string& name) const {
    const fs::path path = m_folder / name;
    const auto other = freeName(path);
    std::error_code error;
    if (!other || !fs::exists(path, error))
        return true;
    if (fs::is_symlink(path, error))
        return fs::copy_file(path, *other, error);
    fs::rename(path, *other, error);
    return !error;
}

} // namespace quillon
