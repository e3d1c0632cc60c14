#pragma once

#include <android/log.h>
#include <errno.h>
#include <string.h>

// Every line of the tool goes to the Android log at error priority under one tag. The format
// begins with "%s: " and the first argument names the function that writes the line.
#define TARN_LOG_TAG "VEXILCTL"

#define TARN_LOG(fmt, ...) __android_log_print(ANDROID_LOG_ERROR, TARN_LOG_TAG, fmt, __VA_ARGS__)

// A failure line: fmt is given without its ending, which becomes " [errno(text)]\n".
#define TARN_LOG_ERRNO(fmt, ...)                                                             \
    do {                                                                                     \
        int tarn_saved_errno_ = errno;                                                       \
        __android_log_print(ANDROID_LOG_ERROR, TARN_LOG_TAG, fmt " [%d(%s)]\n", __VA_ARGS__, \
                            tarn_saved_errno_, strerror(tarn_saved_errno_));                 \
    } while (0)
