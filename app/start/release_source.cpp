#include "release_source.h"

#ifdef QUILLON_FEED_FROM_ENVIRONMENT
#include <QtGlobal>
#endif

namespace quillon {

ReleaseSource releaseSource() {
    ReleaseSource source{.feedAddress = QUILLON_FEED_URL, .version = QUILLON_VERSION};
#ifdef QUILLON_FEED_FROM_ENVIRONMENT
    if (qEnvironmentVariableIsSet("QUILLON_FEED_URL"))
        source.feedAddress = qEnvironmentVariable("QUILLON_FEED_URL").toStdString();
#endif
    return source;
}

} // namespace quillon
