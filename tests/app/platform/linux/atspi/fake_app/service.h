#pragma once

#include "objects.h"
#include "options.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include <systemd/sd-bus.h>

namespace quillon::fake_app {

/// Answers the calls that reach the fake application, well or badly.
class Service {
  public:
    Service(sd_bus* bus, Objects objects, const Options& options);

    /// Puts the application among those of the accessibility bus.
    bool embed();
    /// Serves until the bus is gone.
    void run();
    const char* busName() const { return m_name.c_str(); }

  private:
    static int received(sd_bus_message* call, void* self, sd_bus_error*);
    int handle(sd_bus_message* call);
    bool misbehaves(sd_bus_message* call, const Object* object);
    void note(sd_bus_message* call);
    int answer(sd_bus_message* call, Object& object);
    int answerAccessible(sd_bus_message* call, const std::string& member, Object& object);
    int answerProperty(sd_bus_message* call, const Object& object);
    int answerMatches(sd_bus_message* call, const Object& object);
    int answerPoint(sd_bus_message* call, const Object& object);
    int replyObject(sd_bus_message* call, const Object* object);
    int replyObjects(sd_bus_message* call, const std::vector<const Object*>& objects);
    int replyText(sd_bus_message* call, const std::string& text);
    int replyTextProperty(sd_bus_message* call, const std::string& text);

    sd_bus* m_bus;
    Objects m_objects;
    Options m_options;
    std::string m_name;
    std::FILE* m_log = nullptr;
    std::size_t m_menuCalls = 0;
};

} // namespace quillon::fake_app
