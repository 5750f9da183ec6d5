#pragma once

#include "test_client.h"
#include "x_server.h"
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/x11/x11_connection.h>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

namespace quillon {

/// A server for the tests of one suite, and a connection and another client for each of them.
class X11Fixture : public testing::Test {
  protected:
    static void SetUpTestSuite() { s_server = std::make_unique<XServer>(); }
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override {
        ASSERT_FALSE(s_server->display().empty());
        x11 = X11Connection::open(s_server->display(), patience);
        ASSERT_NE(x11, nullptr);
        client = std::make_unique<TestClient>(s_server->display());
    }

    /// Handles every event that the server has sent so far.
    void settle() {
        client->sync();
        x11->reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus(x11->xcb()));
        QCoreApplication::processEvents();
    }

    /// The number of requests that `x11` has made, this question included.
    unsigned requestsSoFar() { return xcb_no_operation(x11->xcb()).sequence; }

    static const std::string& x11Display() { return s_server->display(); }

    /// Answers are to be exact here even when the machine is busy.
    std::chrono::milliseconds patience = std::chrono::seconds(10);
    std::shared_ptr<X11Connection> x11;
    std::unique_ptr<TestClient> client;

  private:
    static inline std::unique_ptr<XServer> s_server;
};

} // namespace quillon
