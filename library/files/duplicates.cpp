// Walks a tree for the sizes of its files.
#include "library/files/duplicates.hpp"

#include "library/common/text_encoding.hpp"
#include "library/files/file_path.hpp"
#include "library/files/folder.hpp"

#include <algorithm>
#include <utility>

namespace wentra::files {
namespace {

struct SizedFile {
    std::uint64_t size;
    std::string path;
};
using Files = std::vector<SizedFile>;

/// What an entry is, as far as it matters here.
enum class Entry { file, folder, other };

/// Asks only where the folder does not tell, and for a file's size.
Entry ask(const Folder& folder, const dirent& entry, struct stat& status) {
    if (entry.d_type == DT_DIR) {
        return Entry::folder;
    }
    if ((entry.d_type != DT_REG && entry.d_type != DT_UNKNOWN) ||
        !folder.ask(entry.d_name, status)) {
        return Entry::other;
    }
    return S_ISREG(status.st_mode)   ? Entry::file
           : S_ISDIR(status.st_mode) ? Entry::folder
                                     : Entry::other;
}

/// Adds the folder's own files; the paths of the folders in it.
std::vector<std::string> collectFiles(const std::string& path, const Folder& folder, Files& files) {
    std::vector<std::string> folders;
    struct stat status {};
    while (const dirent* entry = folder.next()) {
        const Entry kind = ask(folder, *entry, status);
        if (kind == Entry::file) {
            files.push_back(
                {static_cast<std::uint64_t>(status.st_size), joined(path, entry->d_name)});
        } else if (kind == Entry::folder) {
            folders.push_back(joined(path, entry->d_name));
        }
    }
    return folders;
}

/// Each folder is closed before the next one is opened: however deep a tree is, one file is open.
// NOLINTNEXTLINE(misc-no-recursion): paths end at PATH_MAX, and the depth with them.
void collect(const std::vector<std::string>& folders, Files& files) {
    constexpr bool followsLinks = false;
    for (const std::string& path : folders) {
        collect(collectFiles(path, Folder(path, followsLinks), files), files);
    }
}

/// Where the files of each size are, in the order in which they were found.
std::vector<std::size_t> placesBySize(const Files& files) {
    std::vector<std::pair<std::uint64_t, std::size_t>> order;
    order.reserve(files.size());
    for (const SizedFile& file : files) {
        order.emplace_back(file.size, order.size());
    }
    std::ranges::sort(order);
    std::vector<std::size_t> places(order.size());
    std::ranges::transform(order, places.begin(), [](const auto& each) { return each.second; });
    return places;
}

std::size_t lengthOfName(const std::string& path) { return textOfPath(lastComponent(path)).size(); }

void append(std::u16string& text, std::uint64_t number) {
    text.append(utf16FromUtf8(std::to_string(number)));
}

} // namespace

std::vector<SizeGroup> groupedBySize(const std::string& folder) {
    Files files;
    collect(collectFiles(folder, Folder(folder), files), files);
    std::vector<SizeGroup> groups;
    for (const std::size_t place : placesBySize(files)) {
        SizedFile& file = files[place];
        if (groups.empty() || groups.back().size != file.size) {
            groups.push_back({file.size, {}});
        }
        groups.back().paths.push_back(std::move(file.path));
    }
    return groups;
}

const std::string& keeper(const std::vector<std::string>& paths, Keeps keeps) {
    return keeps == Keeps::longestName ? *std::ranges::max_element(paths, {}, &lengthOfName)
                                       : *std::ranges::min_element(paths, {}, &lengthOfName);
}

std::u16string duplicateReport(const std::vector<SizeGroup>& groups) {
    std::u16string list;
    std::uint64_t count = 0;
    for (std::size_t index = 0; index < groups.size(); ++index) {
        append(list.append(u"\n文件组"), index + 1);
        append(list.append(u" (大小："), groups[index].size);
        list.append(u" 字节):\n");
        for (const std::string& path : groups[index].paths) {
            list.append(textOfPath(path)).append(u"\n");
        }
        list.append(u"\n");
        count += groups[index].paths.size();
    }
    std::u16string report = u"找到";
    append(report, count);
    return report.append(u"个重复文件。\n").append(list);
}

} // namespace wentra::files
