// Which names belong into the list.
#include "library/crashlogs/report_name.hpp"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using namespace wentra::crashlogs;

struct Case {
    std::string_view name;
    bool isReport;
    bool isDocument;
};

const Case cases[]{
    {"a.ips", true, true},   {"b.IPS", false, false},
    {"c.txt", false, true},  {"Analytics-2024.ips.ca.synced", true, false},
    {"d.jpeg", false, true}, {"d.JPG", false, false},
    {"d.png", false, true},  {"e.json", false, true},
    {"ips", false, false},   {".ips", false, false},
    {"f.", false, false},    {"", false, false},
};

TEST(ReportName, TellsWhereTheFileBelongs) {
    for (const Case& each : cases) {
        EXPECT_EQ(isListed(each.name, Shown::reports), each.isReport) << each.name;
        EXPECT_EQ(isListed(each.name, Shown::documents), each.isDocument) << each.name;
    }
}

} // namespace
