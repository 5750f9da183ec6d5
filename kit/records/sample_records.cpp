#include "sample_records.h"

namespace quillon::SampleMenus {

const UsageRecords& usage() {
    static const UsageRecords records{
        {"File › Duplicate", {.clicked = 14, .typed = 1, .practiceRight = 1, .practiceWrong = 2}},
        {"File › Export…", {.clicked = 9}},
        {"Object › Group", {.clicked = 7, .typed = 2, .practiceWrong = 1}},
        {"Object › Arrange › Bring to Front", {.clicked = 6}},
        {"View › Show Layers", {.clicked = 4, .typed = 3}},
        {"Edit › Paste in Place", {.clicked = 3}},
        {"File › Save", {.typed = 41, .practiceRight = 3}},
        {"Edit › Undo", {.typed = 63}},
        {"Edit › Copy", {.clicked = 1, .typed = 38}},
    };
    return records;
}

const Annotations& annotations() {
    static const Annotations stored{
        {"File › Duplicate", {.pinned = true, .note = "Makes a copy next to the original"}},
        {"Object › Group", {.pinned = true}},
        {"Edit › Paste in Place", {.pinned = true, .note = "Same spot as the copied shape"}},
        {"View › Zoom to Fit", {.note = "Handy before exporting"}},
    };
    return stored;
}

} // namespace quillon::SampleMenus
