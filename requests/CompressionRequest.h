#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "setcomp <subsys> <compression>" and "getcomp <subsys>": LZ4 compression of the modem's or the
// wcn's stored logs, one field of the co-processor's settings record.
class CompressionRequest : public Request {
  public:
    enum CompressionCmdType : int32_t {
        CMD_SET_NONE = 0,
        CMD_SET_LZ4 = 1,
        CMD_QUERY = 2,
    };

    CompressionRequest(const std::string& subsys, CompressionCmdType cmd_type);
    int do_request() override;

  private:
    void query_compress(SubsystemType type);
    void set_compress(SubsystemType type, CompressionCmdType cmd);

    std::string subsys_;
    CompressionCmdType cmd_type_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
