#include <gtest/gtest.h>

#include <climits>

#include "service/Request.h"

namespace tarn {
namespace {

TEST(RequestWordsTest, SubsystemTypeOfWord) {
    const struct {
        const char* word;
        int type;
    } cases[] = {
        {"modem", 1},  {"wcn", 2},  {"pmsh", 3},  {"pm", 3},    {"sensor", 4},
        {"agdsp", 5},  {"gnss", 6}, {"all", 0},   {"MODEM", 0}, {"Pm", 0},
        {"modem ", 0}, {"mode", 0}, {"pmshx", 0}, {"", 0},      {"storage", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(static_cast<int>(Request::get_subsys_type(c.word)), c.type) << c.word;
    }
    EXPECT_EQ(static_cast<int>(Request::get_subsys_type(nullptr)), 0);
}

TEST(RequestWordsTest, LogDestinationOfWord) {
    const struct {
        const char* word;
        int result;
        int dest;  // the value dest holds afterwards; it starts at -7
    } cases[] = {
        {"off", 0, 0},   {"stor", 0, 1},    {"usb", 0, 2},     {"wifi", 0, 3},
        {"OFF", -1, -7}, {"Stor", -1, -7},  {"", -1, -7},      {"storage", -1, -7},
        {"on", -1, -7},  {"wifi ", -1, -7}, {nullptr, -1, -7},
    };
    for (const auto& c : cases) {
        LogDestination dest = static_cast<LogDestination>(-7);
        EXPECT_EQ(Request::get_logdest_type(c.word, dest), c.result) << (c.word ? c.word : "null");
        EXPECT_EQ(static_cast<int>(dest), c.dest) << (c.word ? c.word : "null");
    }
}

TEST(RequestWordsTest, NameOfLogDestination) {
    const struct {
        int value;
        const char* name;
    } cases[] = {
        {0, "off"},  {1, "stor"},       {2, "usb"},   {3, "wifi"},       {4, "wifi"},
        {7, "wifi"}, {INT_MAX, "wifi"}, {-1, "wifi"}, {INT_MIN, "wifi"},
    };
    for (const auto& c : cases) {
        EXPECT_STREQ(Request::logdest_type_to_name(static_cast<LogDestination>(c.value)), c.name)
            << c.value;
    }
}

}  // namespace
}  // namespace tarn
