#include "requests/StorageSizeRequests.h"

#include <cstdio>
#include <string>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/RecordEdit.h"
#include "requests/Report.h"
#include "requests/StorageReport.h"

namespace tarn {

namespace {

// INTERNAL for "internal", EXTERNAL for "external"; false for any other word, the empty one too.
template <typename MediaType>
bool media_of(const std::string& word, MediaType& media) {
    if (word == "internal") {
        media = MediaType::INTERNAL;
    } else if (word == "external") {
        media = MediaType::EXTERNAL;
    } else {
        return false;
    }
    return true;
}

}  // namespace

std::shared_ptr<Request> RequestManager::proc_get_cp_max_size(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_cp_max_size\n", "proc_get_cp_max_size");
    const std::string& subsys = require_subsystem(*opts);
    GetCpMaxSize::MediaType media;
    if (!media_of(opts->storage, media)) {
        report_missing_argument();
        return nullptr;
    }
    return std::make_shared<GetCpMaxSize>(subsys, media);
}

std::shared_ptr<Request> RequestManager::proc_set_cp_max_size(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_cp_max_size\n", "proc_set_cp_max_size");
    const std::string& subsys = require_subsystem(*opts);
    SetCpMaxSize::MediaType media;
    if (!media_of(opts->storage, media)) {
        report_missing_argument();
        return nullptr;
    }
    // Cut to 32 bits; a missing size arrives as 0 and goes to the daemon as 0.
    return std::make_shared<SetCpMaxSize>(subsys, media, static_cast<uint32_t>(opts->number));
}

std::shared_ptr<Request> RequestManager::proc_get_log_file_size(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_get_log_file_size\n", "proc_get_log_file_size");
    return std::make_shared<GetLogFileSize>(require_subsystem(*opts));
}

std::shared_ptr<Request> RequestManager::proc_set_file_size(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_file_size\n", "proc_set_file_size");
    const std::string& subsys = require_subsystem(*opts);
    return std::make_shared<SetLogFileSize>(subsys, static_cast<uint32_t>(opts->number));
}

namespace {

using StorageParamEdit = RecordEdit<SubsystemStorageParam, SubsystemType>;

// The front the four requests share once start() has run: the word must name a subsystem, whose
// storage parameters are then read. Every named subsystem goes to the service; it decides which
// ones it supports. Returns -1 without a service or for an unknown word, 0 after a refused read
// (reported, nothing written), otherwise what `on_read` returns.
template <typename OnRead>
int with_storage_param(ISysLogControl* service, const std::string& subsys, OnRead on_read) {
    if (service == nullptr) return -1;
    const char* word = subsys.c_str();
    const SubsystemType type = Request::get_subsys_type(word);
    if (type == SubsystemType{0}) {
        report_invalid_response(word);
        return -1;
    }
    StorageParamEdit param = subsystem_storage_param(*service, type);
    if (!read_or_report(param, "getSubsystemStorageParam", word)) return 0;
    return on_read(param, word);
}

// A getter's answer, e.g. "OK,512 MB".
void report_size(const char* word, int32_t size, int32_t result) {
    printf("%s,%d MB\n", "OK", size);
    TARN_LOG("%s: do_request %s succ, file size=%d, result = %d.\n", "do_request", word, size,
             result);
}

}  // namespace

GetCpMaxSize::GetCpMaxSize(const std::string& subsys, MediaType media)
    : subsys(subsys), media(media) {}

int GetCpMaxSize::do_request() {
    mISysLogControl = start();
    return with_storage_param(mISysLogControl.get(), subsys,
                              [this](StorageParamEdit& param, const char* word) {
                                  if (media == INTERNAL) {
                                      report_size(word, param.record.internalMaxSize, param.result);
                                  } else if (media == EXTERNAL) {
                                      report_size(word, param.record.externalMaxSize, param.result);
                                  }
                                  return 0;
                              });
}

SetCpMaxSize::SetCpMaxSize(const std::string& subsys, MediaType media, uint32_t size)
    : subsys(subsys), media(media), size(size) {}

int SetCpMaxSize::do_request() {
    mISysLogControl = start();
    return with_storage_param(
        mISysLogControl.get(), subsys, [this](StorageParamEdit& param, const char* word) {
            SubsystemStorageParam& record = param.record;
            // The "ext"/"int" labels of these lines are crossed with respect to the medium.
            if (media == INTERNAL) {
                TARN_LOG("%s: getSubsystemStorageParam %s, ext file size=%d, result = %d.\n",
                         "do_request", word, record.internalMaxSize, 0);
                record.internalMaxSize = static_cast<int32_t>(size);
            } else if (media == EXTERNAL) {
                TARN_LOG("%s: getSubsystemStorageParam %s, int file size=%d, result = %d.\n",
                         "do_request", word, record.externalMaxSize, 0);
                record.externalMaxSize = static_cast<int32_t>(size);
            }
            // Only the result decides; the status of the write is not looked at.
            const int32_t result = param.write();
            TARN_LOG("%s: setSubsystemStorageParam %s, result = %d.\n", "do_request", word, result);
            print_result(result);
            return 0;
        });
}

GetLogFileSize::GetLogFileSize(const std::string& subsys) : subsys(subsys) {}

int GetLogFileSize::do_request() {
    mISysLogControl = start();
    return with_storage_param(mISysLogControl.get(), subsys,
                              [](StorageParamEdit& param, const char* word) {
                                  report_size(word, param.record.logFileSize, param.result);
                                  return 0;
                              });
}

SetLogFileSize::SetLogFileSize(const std::string& subsys, uint32_t size)
    : subsys(subsys), size(size) {}

int SetLogFileSize::do_request() {
    mISysLogControl = start();
    return with_storage_param(
        mISysLogControl.get(), subsys, [this](StorageParamEdit& param, const char* word) {
            SubsystemStorageParam& record = param.record;
            TARN_LOG("%s: getSubsystemStorageParam %s succ, file size=%d, result = %d.\n",
                     "do_request", word, record.logFileSize, 0);
            record.logFileSize = static_cast<int32_t>(size);
            // Only the result decides; the status of the write is not looked at.
            const int32_t result = param.write();
            TARN_LOG("%s: setSubsystemStorageParam %s:%d, result = %d.\n", "do_request", word,
                     record.logFileSize, result);
            print_result(result);
            return 0;
        });
}

}  // namespace tarn
