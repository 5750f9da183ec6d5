#include <quillon/app/core/updates/web/ask_feed.h>
#include <quillon/app/core/updates/web/loaded/ask_feed_entry.h>

#include <QtGlobal>

#include <type_traits>

extern "C" Q_DECL_EXPORT void quillonAskFeed(
    const quillon::FeedRequest& request, const std::stop_token& stop, quillon::FeedAnswer& answer) {
    static_assert(std::is_same_v<decltype(quillonAskFeed), quillon::AskFeedEntry>);
    answer = quillon::askFeed(request, stop);
}
