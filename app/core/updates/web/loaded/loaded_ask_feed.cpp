#include "loaded_ask_feed.h"

#include "ask_feed_entry.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <QLibrary>

namespace quillon {

AskFeed loadedAskFeed(const QString& file) {
    return [file](const FeedRequest& request, std::stop_token stop) {
        FeedAnswer answer;
        QLibrary library(file);
        if (auto* const ask = reinterpret_cast<AskFeedEntry*>(library.resolve(askFeedEntryName)))
            ask(request, stop, answer);
        else
            qCWarning(logUpdates).noquote() << library.errorString();
        return answer;
    };
}

} // namespace quillon
