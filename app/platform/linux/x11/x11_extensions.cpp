#include "x11_extensions.h"

#include "x11_reply.h"
#include "xkb_header.h"

#include <xcb/res.h>
#include <xcb/shape.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

namespace quillon {

namespace {

const xcb_query_extension_reply_t* present(xcb_connection_t* connection, xcb_extension_t* extension) {
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(connection, extension);
    return reply != nullptr && reply->present != 0 ? reply : nullptr;
}

/// Raw events come under other clients' grabs since 2.1 and with 2.2 touch does too.
constexpr X11Version neededXinput{2, 2};
/// Process ids of clients.
constexpr X11Version neededRes{1, 2};

void queryXinput(xcb_connection_t* connection, X11Extensions& result) {
    const auto* extension = present(connection, &xcb_input_id);
    if (extension == nullptr)
        return;
    const auto cookie = xcb_input_xi_query_version(
        connection, static_cast<std::uint16_t>(neededXinput.major),
        static_cast<std::uint16_t>(neededXinput.minor));
    const X11Reply<xcb_input_xi_query_version_reply_t> reply(
        xcb_input_xi_query_version_reply(connection, cookie, nullptr));
    if (!reply)
        return;
    result.xinputVersion = X11Version{reply->major_version, reply->minor_version};
    if (*result.xinputVersion >= neededXinput)
        result.xinputOpcode = extension->major_opcode;
}

void queryXkb(xcb_connection_t* connection, X11Extensions& result) {
    const auto* extension = present(connection, &xcb_xkb_id);
    if (extension == nullptr)
        return;
    const X11Reply<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    if (reply && reply->supported != 0)
        result.xkbFirstEvent = extension->first_event;
}

void queryXfixes(xcb_connection_t* connection, X11Extensions& result) {
    const auto* extension = present(connection, &xcb_xfixes_id);
    if (extension == nullptr)
        return;
    const X11Reply<xcb_xfixes_query_version_reply_t> reply(xcb_xfixes_query_version_reply(
        connection, xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    if (reply)
        result.xfixesFirstEvent = extension->first_event;
}

bool hasClientPids(xcb_connection_t* connection) {
    if (present(connection, &xcb_res_id) == nullptr)
        return false;
    const X11Reply<xcb_res_query_version_reply_t> reply(xcb_res_query_version_reply(
        connection,
        xcb_res_query_version(
            connection, static_cast<std::uint8_t>(neededRes.major),
            static_cast<std::uint8_t>(neededRes.minor)),
        nullptr));
    return reply && X11Version{reply->server_major, reply->server_minor} >= neededRes;
}

} // namespace

X11Extensions queryExtensions(xcb_connection_t* connection) {
    for (xcb_extension_t* extension :
         {&xcb_input_id, &xcb_xkb_id, &xcb_xfixes_id, &xcb_res_id, &xcb_shape_id})
        xcb_prefetch_extension_data(connection, extension);
    X11Extensions result;
    queryXinput(connection, result);
    queryXkb(connection, result);
    queryXfixes(connection, result);
    result.shape = present(connection, &xcb_shape_id) != nullptr;
    result.clientPids = hasClientPids(connection);
    return result;
}

} // namespace quillon
