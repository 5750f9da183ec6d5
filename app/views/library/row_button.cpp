#include "row_button.h"

#include "library_texts.h"

namespace quillon {

Symbol symbolOf(RowButton button, const LibraryRow& row) {
    const bool set = isSet(button, row);
    switch (button) {
    case RowButton::pin: return set ? Symbol::pinFill : Symbol::pin;
    case RowButton::note: return set ? Symbol::noteText : Symbol::noteTextBadgePlus;
    case RowButton::mute: return set ? Symbol::bellSlash : Symbol::bell;
    }
    Q_UNREACHABLE();
}

bool isSet(RowButton button, const LibraryRow& row) {
    switch (button) {
    case RowButton::pin: return row.pinned;
    case RowButton::note: return !row.note.isEmpty();
    case RowButton::mute: return row.muted;
    }
    Q_UNREACHABLE();
}

QString helpOf(RowButton button, const LibraryRow& row) {
    switch (button) {
    case RowButton::pin: return row.pinned ? LibraryTexts::unpinHelp() : LibraryTexts::pinHelp();
    case RowButton::note: return LibraryTexts::noteHelp();
    case RowButton::mute: return LibraryTexts::nudgeHelp();
    }
    Q_UNREACHABLE();
}

QString nameOf(RowButton button, const LibraryRow& row) {
    switch (button) {
    case RowButton::pin: return row.pinned ? LibraryTexts::unpin(row.text) : LibraryTexts::pin(row.text);
    case RowButton::note: return LibraryTexts::noteFor(row.text);
    case RowButton::mute:
        return row.muted ? LibraryTexts::nudgesOn(row.text) : LibraryTexts::nudgesOff(row.text);
    }
    Q_UNREACHABLE();
}

} // namespace quillon
