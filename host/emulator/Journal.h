// The record of every request the emulator receives, in arrival order.
#pragma once

#include <string>

#include "host/emulator/JsonLines.h"

namespace tarnmodem {

class Journal {
  public:
    bool open(const std::string& path) { return file_.open(path); }

    // A service call: the operation name and its inputs in declaration order.
    void service_call(const std::string& op, Json args);
    // A request line on the vexilserver socket, exactly as received.
    void vexilserver_request(const std::string& line);

  private:
    JsonLineFile file_;
};

}  // namespace tarnmodem
