// Writing the files, each with its date.
#include "desktop/host/apps/file_tree.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/foundation/file_dates.hpp"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/stat.h>

namespace desktop::host {
namespace {

using std::filesystem::path;

struct TextFile {
    const char* name;
    std::string_view bytes;
};

constexpr std::string_view list = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>CFBundleName</key><string>Notes</string></dict></plist>
)";
constexpr std::string_view emptyArchive("PK\5\6\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 22);
constexpr std::string_view emptyPackage = "!<arch>\n";

constexpr std::array documents{
    TextFile{"readme", "这里是文件管理器的示例。\n"},
    TextFile{"说明.txt", "左边和右边各是一个文件夹。\n长按空白处打开菜单。\n"},
    TextFile{"Info.plist", list},
    TextFile{"settings.json", "{\"language\": \"zh-Hans\"}\n"},
    TextFile{"index.html", "<!DOCTYPE html><title>你好</title>\n"},
    TextFile{"Crash-2023-06-01.ips", "{\"procName\" : \"SpringBoard\"}\n"},
    TextFile{"备份.zip", emptyArchive},
    TextFile{"com.example.tool_1.0.deb", emptyPackage},
    TextFile{"Example.ipa", emptyArchive},
    TextFile{"手册.pdf", "%PDF-1.4\n%%EOF\n"},
    TextFile{"未知.rmvb", "?"},
    TextFile{"一个名字很长很长的文件，长到一行写不下，两行也写不下，三行还是写不下.txt",
             "长名字\n"},
    TextFile{"笔记/周一.txt", "爬山\n"},
    TextFile{"笔记/周二.txt", "看书\n"},
    TextFile{".hidden", ""},
};

/// From one file to the next, so that they have an order: an hour.
constexpr long step = 3600;
constexpr long firstDate = 1'685'606'400; // the first of June 2023

void date(const path& file, long number) {
    const timespec time{firstDate + step * number, 0};
    const std::array times{time, time};
    utimensat(AT_FDCWD, file.c_str(), times.data(), AT_SYMLINK_NOFOLLOW);
    foundation::setCreationDate(file, static_cast<double>(time.tv_sec));
}

void paint(const path& file, Size size, const Colour& colour) {
    Canvas canvas(size, 1);
    canvas.fill({0, 0, size.width, size.height}, colour);
    constexpr Colour sun{1, 0.85, 0.2, 1};
    const double side = size.height / 3;
    canvas.fill({side / 2, side / 2, side, side}, sun, side / 2);
    canvas.snapshot().savePng(file);
}

void writeDocuments(const path& folder) {
    long number = 0;
    for (const TextFile& file : documents) {
        const path target = folder / file.name;
        std::filesystem::create_directories(target.parent_path());
        std::ofstream(target, std::ios::binary) << file.bytes;
        date(target, number++);
    }
    date(folder / "笔记", number);
}

void writeMedia(const path& folder) {
    const path roll = folder / "DCIM/100APPLE";
    std::filesystem::create_directories(roll);
    paint(roll / "IMG_0001.PNG", {400, 300}, {0.3, 0.6, 0.9, 1});
    paint(roll / "IMG_0002.PNG", {300, 400}, {0.5, 0.75, 0.5, 1});
    paint(folder / "壁纸.png", {390, 844}, {0.25, 0.3, 0.55, 1});
    std::filesystem::create_directory_symlink("DCIM/100APPLE", folder / "相机胶卷");
    std::ofstream(folder / "铃声.wav", std::ios::binary)
        << std::string_view("RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1F\0\0\x80\x3E\0\0\2\0"
                            "\x10\0data\0\0\0\0",
                            44);
    long number = 0;
    for (const char* name : {"DCIM", "壁纸.png", "相机胶卷", "铃声.wav"}) {
        date(folder / name, number++);
    }
}

} // namespace

void makeFileTree(const path& root) {
    const auto makeMissing = [&](const char* folder, void (*write)(const path&)) {
        const path place = root / path(folder).relative_path();
        if (!std::filesystem::exists(place)) {
            write(place);
        }
    };
    makeMissing(documentsFolder, &writeDocuments);
    makeMissing(mediaFolder, &writeMedia);
}

} // namespace desktop::host
