#include "desktop_entries.h"

#include "process_facts.h"

#include <quillon/kit/base/ascii.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

/// Ids and window classes are compared as ASCII, whatever the language.
std::string folded(std::string_view text) {
    std::string result = ascii::toLower(text);
    std::ranges::replace(result, ' ', '-');
    return result;
}

std::string_view lastPart(std::string_view id) {
    const auto dot = id.rfind('.');
    return dot == std::string_view::npos ? id : id.substr(dot + 1);
}

/// Java's toolkit gives the name of its own class as every window's instance.
bool isToolkitName(std::string_view instance) {
    return instance.starts_with("sun-awt-");
}

AppIdentity identityOf(const DesktopEntry& entry) {
    return {entry.id, entry.name.empty() ? entry.id : entry.name};
}

/// Whether an entry is hidden from menus and starts another program than the one that runs. What runs in a
/// sandbox is started by the sandbox's program.
bool isForAnotherProgram(const DesktopEntry& entry, const ProcessFacts& process) {
    const bool isSandboxed = !process.flatpakID.empty() || !process.snapEntryID.empty();
    return !entry.isShown && !isSandboxed && !process.executable.empty()
           && entry.executable != process.executable;
}

std::string programName(const WindowFacts& window, const ProcessFacts& process) {
    if (!process.executable.empty())
        return process.executable;
    if (!window.instance.empty() && !isToolkitName(window.instance))
        return window.instance;
    return window.className;
}

} // namespace

DesktopEntries::DesktopEntries(std::vector<DesktopEntry> entries) {
    for (DesktopEntry& entry : entries) {
        if (entry.id.empty() || m_byID.contains(entry.id))
            continue;
        const std::size_t index = m_entries.size();
        m_byID.emplace(entry.id, index);
        m_byFoldedID.emplace(folded(entry.id), index);
        m_byLastPart.emplace(folded(lastPart(entry.id)), index);
        if (!entry.startupWMClass.empty()) {
            m_byClass.emplace(entry.startupWMClass, index);
            m_byFoldedClass.emplace(folded(entry.startupWMClass), index);
        }
        if (!entry.executable.empty() && !isInterpreter(entry.executable))
            m_byExecutable.emplace(entry.executable, index);
        m_entries.push_back(std::move(entry));
    }
}

const DesktopEntry* DesktopEntries::byID(std::string_view id) const {
    const auto found = m_byID.find(id);
    return found == m_byID.end() ? nullptr : &m_entries[found->second];
}

/// Of several that match: the one whose program runs, then one that is shown in menus, then the shortest id
/// (an application before its variants), then by the alphabet, so that the answer is always the same.
const DesktopEntry*
DesktopEntries::best(const Index& index, std::string_view key, const ProcessFacts& process) const {
    const auto [begin, end] = index.equal_range(key);
    const auto rank = [&](const Index::value_type& match) {
        const DesktopEntry& entry = m_entries[match.second];
        const bool runs = !process.executable.empty() && entry.executable == process.executable;
        return std::tuple(!runs, !entry.isShown, entry.id.size(), std::string_view(entry.id));
    };
    const auto found = std::ranges::min_element(begin, end, {}, rank);
    return found == end ? nullptr : &m_entries[found->second];
}

/// The instance comes first: a browser's windows share its class and differ in the instance for each of the
/// applications that it runs.
const DesktopEntry* DesktopEntries::byClass(const WindowFacts& window, const ProcessFacts& process) const {
    for (const std::string& name : {window.instance, window.className}) {
        if (const auto* entry = name.empty() ? nullptr : best(m_byClass, name, process))
            return entry;
    }
    for (const std::string& name : {window.instance, window.className}) {
        if (const auto* entry = name.empty() ? nullptr : best(m_byFoldedClass, folded(name), process))
            return entry;
    }
    for (const std::string& name : {window.instance, window.className}) {
        if (const auto* entry = name.empty() ? nullptr : byNameOfID(name, process))
            return entry;
    }
    return nullptr;
}

const DesktopEntry* DesktopEntries::byNameOfID(std::string_view name, const ProcessFacts& process) const {
    if (const auto* entry = byID(name))
        return entry;
    if (const auto* entry = best(m_byFoldedID, folded(name), process))
        return entry;
    return best(m_byLastPart, folded(name), process);
}

const DesktopEntry* DesktopEntries::byProcess(const ProcessFacts& process) const {
    if (const auto* entry = byID(process.flatpakID))
        return entry;
    if (const auto* entry = byID(process.snapEntryID))
        return entry;
    if (const auto* entry = byID(process.controlGroupID); entry != nullptr && !entry->isTerminal)
        return entry;
    if (process.executable.empty())
        return nullptr;
    if (const auto* entry = best(m_byExecutable, process.executable, process))
        return entry;
    return best(m_byFoldedID, folded(process.executable), process);
}

const DesktopEntry* DesktopEntries::byWindow(const WindowFacts& window, const ProcessFacts& process) const {
    if (const auto* entry = byClass(window, process))
        return entry;
    return byID(window.gtkApplicationID);
}

const DesktopEntry* DesktopEntries::find(const WindowFacts& window, const ProcessFacts& process) const {
    const DesktopEntry* claimed = byWindow(window, process);
    if (claimed == nullptr)
        return byProcess(process);
    if (!isForAnotherProgram(*claimed, process))
        return claimed;
    const DesktopEntry* running = best(m_byExecutable, process.executable, process);
    return running != nullptr ? running : claimed;
}

AppIdentity DesktopEntries::identifyOwned(const AppIdentity& own, std::span<const AppIdentity> owners) const {
    if (byID(own.bundleID) != nullptr)
        return own;
    const auto installed = std::ranges::find_if(
        owners, [this](const AppIdentity& owner) { return byID(owner.bundleID) != nullptr; });
    return installed == owners.end() ? own : *installed;
}

AppIdentity DesktopEntries::identify(const WindowFacts& window, const ProcessFacts& process) const {
    if (const DesktopEntry* entry = find(window, process))
        return identityOf(*entry);
    const std::string program = programName(window, process);
    const std::string& shown = program.empty() ? window.gtkApplicationID : program;
    for (const std::string& id : {process.flatpakID, window.gtkApplicationID}) {
        if (!id.empty())
            return {id, window.className.empty() ? shown : window.className};
    }
    return {program, program};
}

} // namespace quillon
