#pragma once

#include <quillon/app/cli/output.h>
#include <quillon/kit/records/json_file.h>

#include <filesystem>
#include <optional>
#include <utility>

namespace quillon {

/// What the file holds, nothing when there is none. Says why when it cannot be made out; absent then.
template <class Value>
std::optional<Value> loadLearned(const std::filesystem::path& file, Output& output) {
    auto loaded = JSONFile<Value>(file).tryLoad();
    const LoadFailure* const failure = loaded.failure();
    if (!failure)
        return std::move(loaded).value();
    if (failure->kind == LoadFailure::Kind::absent)
        return Value{};
    output.say(TerminalText::of(file.string()) + ": " + TerminalText::of(failure->message()));
    return std::nullopt;
}

} // namespace quillon
