// A mail as a file.
#include "desktop/messageui/mail_message.hpp"

#include <gtest/gtest.h>

namespace {

using namespace desktop::mail;

bool holds(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

TEST(MailMessage, HasHeadersBodyAndAttachments) {
    const Message message{{"a@example.com", "接收对象"},
                          "发送",
                          "<p>你好</p>",
                          true,
                          {{"名 \".txt", "text/plain", "content"}}};
    const std::string file = fileOf(message, "Mon, 01 Jan 2024 00:00:00 +0000");
    EXPECT_TRUE(holds(file, "Date: Mon, 01 Jan 2024 00:00:00 +0000\r\n"));
    EXPECT_TRUE(holds(file, "To: a@example.com,\r\n =?UTF-8?B?5o6l5pS25a+56LGh?= <>\r\n"));
    EXPECT_TRUE(holds(file, "Subject: =?UTF-8?B?5Y+R6YCB?=\r\n"));
    EXPECT_TRUE(holds(file, "Content-Type: text/html; charset=utf-8\r\n"
                            "Content-Transfer-Encoding: base64\r\n\r\nPHA+5L2g5aW9PC9wPg==\r\n"));
    EXPECT_TRUE(holds(file, "Content-Type: text/plain\r\nContent-Disposition: attachment;\r\n"
                            " filename*=utf-8''%E5%90%8D%20%22.txt\r\n"));
    EXPECT_TRUE(holds(file, "\r\n\r\nY29udGVudA==\r\n------wentra-part--\r\n"));
}

TEST(MailMessage, LetsNoTextAddHeaders) {
    const Message message{
        {"a@b\r\nBcc: x@y"}, "a\r\nBcc: x@y", "", false, {{"n\r\nBcc: x", "t/x\r\nBcc: x", ""}}};
    EXPECT_FALSE(holds(fileOf(message, ""), "\nBcc"));
    EXPECT_TRUE(holds(fileOf(message, ""), "Content-Type: application/octet-stream\r\n"));
}

TEST(MailMessage, BreaksLongTextsIntoLinesAndWords) {
    std::string subject;
    for (int character = 0; character < 100; ++character) {
        subject += "名";
    }
    const std::string bytes(1000, '\xFF');
    const std::string file = fileOf({{}, subject, "", false, {{"a", "", bytes}}}, "");
    for (std::size_t start = 0; start < file.size(); start = file.find("\r\n", start) + 2) {
        EXPECT_LE(file.find("\r\n", start) - start, 76U + 9U) << file.substr(start, 90);
    }
    EXPECT_FALSE(holds(file, "To: "));
}

} // namespace
