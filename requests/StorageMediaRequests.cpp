#include "requests/StorageMediaRequests.h"

#include <cstdint>
#include <cstdio>

#include "front/ArgumentChecks.h"
#include "front/RequestManager.h"
#include "front/TarnLog.h"
#include "requests/Report.h"

namespace tarn {

std::shared_ptr<Request> RequestManager::proc_get_stor() {
    TARN_LOG("%s: proc_get_stor\n", "proc_get_stor");
    return std::make_shared<GetPreferredStorage>();
}

std::shared_ptr<Request> RequestManager::proc_set_preferred_storage(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_preferred_storage\n", "proc_set_preferred_storage");
    const std::string& word = opts->storage;
    // "internal" is a storage word of the command line but names no medium.
    if (word == "storage") return std::make_shared<SetPreferredStorage>(StorageMedia::STORAGE);
    if (word == "external") return std::make_shared<SetPreferredStorage>(StorageMedia::EXTERNAL);
    if (word == "data") return std::make_shared<SetPreferredStorage>(StorageMedia::DATA);
    report_missing_argument();
    return nullptr;
}

std::shared_ptr<Request> RequestManager::proc_get_log_parent_path(std::shared_ptr<Options>) {
    // The getter logs with the setter's wording.
    TARN_LOG("%s: proc_set_log_parent_path\n", "proc_get_log_parent_path");
    return std::make_shared<GetLogPathRequest>();
}

std::shared_ptr<Request> RequestManager::proc_set_log_parent_path(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_set_log_parent_path\n", "proc_set_log_parent_path");
    // The word after the command, verbatim: empty, relative or with blanks, the service judges it.
    return std::make_shared<SetLogPathRequest>(opts->cmd);
}

namespace {

// The word of a medium; nothing for a value outside the table.
const char* media_word(StorageMedia media) {
    switch (media) {
        case StorageMedia::DATA:
            return "data";
        case StorageMedia::STORAGE:
            return "storage";
        case StorageMedia::EXTERNAL:
            return "external";
    }
    return nullptr;
}

}  // namespace

int GetPreferredStorage::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    StorageMedia media = StorageMedia::DATA;
    ndk::ScopedAStatus status = mISysLogControl->getPreferredStorageMedia(&media);
    if (!status.isOk()) {
        TARN_LOG_ERRNO("%s: getPreferredStorageMedia error", "do_request");
        printf("ERROR\n");
        return 0;
    }
    if (const char* word = media_word(media)) {
        printf("%s,%s storage\n", "OK", word);
    } else {
        // The one ERROR of these commands that goes to stderr.
        fprintf(stderr, "ERROR\n");
    }
    TARN_LOG("%s: do_request, media=%d\n", "do_request", static_cast<int32_t>(media));
    return 0;
}

SetPreferredStorage::SetPreferredStorage(StorageMedia media) : media(media) {}

int SetPreferredStorage::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    int32_t result = -1;
    ndk::ScopedAStatus status = mISysLogControl->setPreferredStorageMedia(media, &result);
    if (!status.isOk()) {
        // A transport failure prints nothing.
        TARN_LOG("%s: status is not ok\n", "do_request");
        return result;
    }
    TARN_LOG("%s: setPreferredStorageMedia %d, result = %d.\n", "do_request",
             static_cast<int32_t>(media), result);
    print_result(result);
    return result;
}

int GetLogPathRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    std::string path;
    ndk::ScopedAStatus status = mISysLogControl->getCurrentParentLogPath(&path);
    if (!status.isOk()) {
        TARN_LOG_ERRNO("%s: getCurrentParentLogPath error", "do_request");
        printf("ERROR\n");
        return 0;
    }
    TARN_LOG("%s: current logpath:%s.\n", "do_request", path.c_str());
    printf("OK,logpath:%s\n", path.c_str());
    return 0;
}

SetLogPathRequest::SetLogPathRequest(const std::string& path) : path(path) {}

int SetLogPathRequest::do_request() {
    mISysLogControl = start();
    if (!mISysLogControl) return -1;

    // The current path is read for the log only; a failed read neither shows nor stops the write.
    std::string current;
    ndk::ScopedAStatus status = mISysLogControl->getCurrentParentLogPath(&current);
    if (status.isOk()) {
        TARN_LOG("%s: current logpath:%s, set logpath: %s.\n", "do_request", current.c_str(),
                 path.c_str());
    }
    int32_t result = -1;
    status = mISysLogControl->setCurrentParentLogPath(path, &result);
    if (!status.isOk()) {
        // A transport failure prints nothing.
        TARN_LOG("%s: status is not ok\n", "do_request");
        return 0;
    }
    TARN_LOG("%s: set logpath: %s, result=%d\n", "do_request", path.c_str(), result);
    print_result(result);
    return 0;
}

}  // namespace tarn
