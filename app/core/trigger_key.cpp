#include "trigger_key.h"

namespace quillon {

std::string_view rawValue(TriggerKey key) {
    switch (key) {
    case TriggerKey::command: return "command";
    case TriggerKey::option: return "option";
    case TriggerKey::control: return "control";
    }
    return "command";
}

TriggerKey triggerKeyFromRawValue(std::string_view text) {
    for (const TriggerKey key : allTriggerKeys)
        if (rawValue(key) == text)
            return key;
    return TriggerKey::command;
}

Modifiers modifier(TriggerKey key) {
    switch (key) {
    case TriggerKey::command: return Modifiers::command;
    case TriggerKey::option: return Modifiers::option;
    case TriggerKey::control: return Modifiers::control;
    }
    return Modifiers::command;
}

std::string glyph(TriggerKey key) {
    return modifier(key).glyphs();
}

} // namespace quillon
