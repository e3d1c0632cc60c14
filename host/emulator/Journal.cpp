#include "host/emulator/Journal.h"

namespace tarnmodem {

void Journal::service_call(const std::string& op, Json args) {
    file_.write(Json{{"op", op}, {"args", std::move(args)}});
}

void Journal::vexilserver_request(const std::string& line) {
    file_.write(Json{{"op", "vexilserver"}, {"line", line}});
}

}  // namespace tarnmodem
