#pragma once

#include <memory>
#include <string>

#include "service/Request.h"

namespace tarn {

// "state <subsys>": whether a co-processor's log is on, and where it goes.
class QueryStateRequest : public Request {
  public:
    explicit QueryStateRequest(const std::string& subsys);
    int do_request() override;

  private:
    // The plain on/off answer: "OK,<word>:ON." or "OK,<word>:OFF.".
    void parse_result(const char* subsys, bool on);

    void query_modem(const char* word);
    void query_wcn(const char* word);
    void query_agdsp(const char* word);

    std::string subsys_;
    std::shared_ptr<ISysLogControl> mISysLogControl;
};

}  // namespace tarn
