// Conversions of the browser's rows: images, property lists, mails and packages.
#include "tests/features/files/viewer_phone.hpp"

#include <sys/stat.h>

namespace {

using tests::Json;

class Conversion : public tests::ViewerTest {
protected:
    /// Shows the folder in both panes.
    void browse() {
        std::filesystem::create_directories(onDisk("work"));
        browser = made("UmaCollectionViewController");
        phone.message(browser, "setPath1:", {path("work")});
        phone.message(browser, "setPath2:", {path("work")});
        show(browser);
        table = phone.message(browser, "tableView1");
    }
    Json row(const std::string& name) {
        const Json names = phone.message(browser, "content1");
        const auto place = std::ranges::find(names, Json(name)) - names.begin();
        return phone.message({{"class", "NSIndexPath"}}, "indexPathForRow:inSection:", {place, 0});
    }
    void convert(const std::string& name, const std::string& extension) {
        phone.message(browser, "convertImageAtPath:tableView:targetExtension:",
                      {row(name), table, extension});
        phone.advance(1);
    }
    /// Chooses from the row's menu.
    void choose(const std::string& title, const std::string& name) {
        phone.message(table, "layoutIfNeeded");
        const Json cell = phone.message(table, "cellForRowAtIndexPath:", {row(name)});
        phone.result({{"do", "context"}, {"on", cell}, {"choose", title}});
        phone.advance(1);
    }
    std::string outcome() {
        const Json shown = phone.alert();
        return shown["title"].get<std::string>() + ": " + shown["message"].get<std::string>();
    }
    /// A picture of two pixels.
    void paint(const std::string& name) {
        write("work/" + name, "P6\n2 1\n255\n\xFF\x01\x01\x01\x01\xFF");
    }

    Json browser;
    Json table;
};

TEST_F(Conversion, MakesPngAndJpgBesideTheImage) {
    paint("a.b.JPG");
    browse();
    convert("a.b.JPG", "png");
    EXPECT_EQ(outcome(), "成功: 图片转换成功");
    phone.choose("OK");
    EXPECT_EQ(read("work/a.b.png").substr(0, 8), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(phone.message(browser, "content1").size(), 2U);
    convert("a.b.png", "jpg");
    phone.choose("OK");
    const std::string jpeg = read("work/a.b.jpg");
    EXPECT_EQ(jpeg.substr(0, 2), "\xFF\xD8");
    EXPECT_EQ(jpeg.at(jpeg.find("\xFF\xDB") + 5), 1) << "steps as small as can be";
    const Json image =
        phone.message({{"class", "UIImage"}}, "imageWithContentsOfFile:", {path("work/a.b.jpg")});
    EXPECT_EQ(phone.message(image, "size"), (Json{{"size", {2, 1}}}));
}

TEST_F(Conversion, RewritesAPngAndGivesAJpegItsOtherName) {
    paint("a.png");
    paint("b.jpeg");
    browse();
    convert("a.png", "png");
    phone.choose("OK");
    EXPECT_EQ(read("work/a.png").substr(1, 3), "PNG");
    convert("b.jpeg", "jpg");
    phone.choose("OK");
    EXPECT_EQ(phone.message(browser, "content1").size(), 3U);
}

TEST_F(Conversion, RefusesOtherFilesFormatsAndBrokenImages) {
    write("work/a.bmp", "");
    write("work/b.png", "no picture");
    browse();
    convert("a.bmp", "png");
    EXPECT_EQ(outcome(), "错误: 图片格式错误");
    phone.choose("OK");
    convert("b.png", "gif");
    EXPECT_EQ(outcome(), "错误: 转换格式错误");
    phone.choose("OK");
    convert("b.png", "jpg");
    EXPECT_EQ(outcome(), "错误: 图片转换失败");
    EXPECT_EQ(read("work/b.png"), "no picture");
    EXPECT_EQ(phone.message(browser, "content1").size(), 2U);
}

TEST_F(Conversion, CopiesPropertyListsAsXmlUnlessTheyAre) {
    write("work/a.plist", "{ key = (1, \"名\"); }");
    write("work/b.plist",
          "<?xml version=\"1.0\"?><plist version=\"1.0\"><string>a</string></plist>");
    browse();
    choose("转换为XML明文", "a.plist");
    choose("转换为XML明文", "b.plist");
    EXPECT_EQ(phone.message(browser, "content1").size(), 3U);
    const std::string xml = read("work/a-XML明文.plist");
    EXPECT_EQ(xml.substr(0, 5), "<?xml");
    EXPECT_NE(xml.find("<string>名</string>"), xml.npos);
}

TEST_F(Conversion, NeverWaitsForAPipe) {
    std::filesystem::create_directories(onDisk("work"));
    ASSERT_EQ(mkfifo(onDisk("work/a.png").c_str(), 0600), 0);
    browse();
    convert("a.png", "jpg");
    EXPECT_EQ(outcome(), "错误: 图片转换失败");
    phone.choose("OK");
    choose("转换为XML明文", "a.png");
    choose("直接发邮件附件", "a.png");
    EXPECT_EQ(phone.result({{"do", "mail"}}), nullptr);
    phone.message(browser, "tableView:didSelectRowAtIndexPath:", {table, row("a.png")});
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "ImageContentViewController");
    EXPECT_EQ(phone.message(browser, "content1"), Json{"a.png"});
}

TEST_F(Conversion, LogsWhatIsNoPropertyList) {
    write("work/a.plist", "{ broken");
    write("work/b.plist", "");
    std::filesystem::create_directories(onDisk("work/c.plist"));
    browse();
    phone.events("log");
    choose("转换为XML明文", "a.plist");
    EXPECT_EQ(phone.events("log").size(), 1U);
    choose("转换为XML明文", "b.plist");
    choose("转换为XML明文", "c.plist");
    EXPECT_EQ(phone.message(browser, "content1").size(), 3U);
    EXPECT_TRUE(phone.swallowed().empty());
}

class Mail : public Conversion {
protected:
    Mail() {
        write("work/名.txt", "content");
        browse();
    }
    void compose() { choose("直接发邮件附件", "名.txt"); }
    Json mail(const std::string& end = "") {
        Json request{{"do", "mail"}};
        if (!end.empty()) {
            request["choose"] = end;
        }
        const Json result = phone.result(request);
        phone.advance(1);
        return result;
    }
};

TEST_F(Mail, HoldsTheFileAndAPlaceholder) {
    EXPECT_EQ(mail(), nullptr);
    compose();
    Json composed = mail();
    EXPECT_EQ(composed["to"], Json{"接收对象"});
    EXPECT_EQ(composed["subject"], "发送新邮件");
    EXPECT_EQ(composed["html"], true);
    EXPECT_FALSE(composed["body"].get<std::string>().empty());
    EXPECT_EQ(composed["attachments"],
              (Json{{{"name", "名.txt"}, {"type", "application/octet-stream"}, {"size", 7}}}));
}

TEST_F(Mail, TellsHowItEndedAndStaysOpenUnlessItIsOver) {
    struct End {
        const char* choice;
        const char* message;
        bool staysOpen;
    };
    for (const End& end :
         {End{"cancel", "邮件已取消", false}, End{"save", "邮件已保存", true},
          End{"send", "邮件发送成功", false}, End{"fail", "邮件发送失败: ", true}}) {
        if (mail().is_null()) {
            compose();
        }
        mail(end.choice);
        EXPECT_EQ(phone.alert()["title"], "邮件发送结果");
        EXPECT_EQ(phone.alert()["message"].get<std::string>().find(end.message), 0U) << end.choice;
        phone.choose("好的");
        EXPECT_EQ(!mail().is_null(), end.staysOpen) << end.choice;
    }
}

TEST_F(Mail, WritesAFileOfWhatIsSent) {
    compose();
    phone.events("mail");
    mail("send");
    const auto sent = phone.events("mail");
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0]["attachments"], Json{"名.txt"});
    const std::string file = read("Library/Mail/Sent/1.eml");
    EXPECT_NE(file.find("Y29udGVudA=="), file.npos);
    EXPECT_EQ(sent[0]["file"], "/var/mobile/Library/Mail/Sent/1.eml");
}

TEST_F(Mail, IsNotOfferedWithoutAnAccount) {
    phone.result({{"do", "mail"}, {"available", false}});
    compose();
    EXPECT_EQ(mail(), nullptr);
    EXPECT_TRUE(phone.alert().is_null());
    EXPECT_NE(phone.error({{"do", "mail"}, {"choose", "send"}}), "");
    EXPECT_NE(phone.error({{"do", "mail"}, {"choose", "burn"}}), "");
}

class Package : public Conversion {
protected:
    /// Packs with the machine's own tools what the shell script makes in a folder of its own.
    void pack(const std::string& script) {
        browse();
        const std::string command = "cd " + onDisk("work").string() + " && mkdir in && cd in && " +
                                    script +
                                    " && echo 2.0 >debian-binary && ar r ../a.deb debian-binary "
                                    "data.tar.xz 2>/dev/null && cd .. && rm -r in";
        ASSERT_EQ(std::system(command.c_str()), 0); // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    }
    void extract() {
        std::filesystem::create_directories(onDisk("out/in"));
        phone.message(browser, "extractDeb:toPath:", {path("work/a.deb"), path("out/in")});
    }
    std::vector<std::string> entries(const std::string& name) {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(onDisk(name))) {
            found.push_back(entry.path().lexically_relative(onDisk(name)).string());
        }
        std::ranges::sort(found);
        return found;
    }
};

TEST_F(Package, UnpacksThePayloadAloneAndLeavesNothingElse) {
    pack("mkdir -p usr && echo a >usr/a && tar -cJf data.tar.xz usr");
    extract();
    EXPECT_EQ(entries("out"), (std::vector<std::string>{"in", "in/usr", "in/usr/a"}));
    EXPECT_EQ(read("out/in/usr/a"), "a\n");
    EXPECT_EQ(entries("work"), (std::vector<std::string>{"a.deb"}));
}

TEST_F(Package, WritesNothingOutsideOfTheFolder) {
    pack("echo a >a && tar -cJPf data.tar.xz --transform 's,^a$,../../evil,' a");
    extract();
    EXPECT_EQ(entries("out"), (std::vector<std::string>{"in"}));
    EXPECT_FALSE(std::filesystem::exists(onDisk("evil")));
}

TEST_F(Package, TakesAbsoluteNamesAsRelativeOnes) {
    pack("echo a >a && tar -cJPf data.tar.xz --transform 's,^a$,/var/mobile/evil,' a");
    extract();
    EXPECT_FALSE(std::filesystem::exists(onDisk("evil")));
    EXPECT_EQ(read("out/in/var/mobile/evil"), "a\n");
}

TEST_F(Package, IsSilentAboutWhatIsNone) {
    browse();
    write("work/a.deb", "no package");
    extract();
    EXPECT_EQ(entries("out"), (std::vector<std::string>{"in"}));
    EXPECT_TRUE(phone.alert().is_null());
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
