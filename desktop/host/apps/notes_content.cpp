// The built-in texts, and texts from a file.
#include "desktop/host/apps/notes_content.hpp"

#include "desktop/host/json.hpp"
#include "desktop/host/options.hpp"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <initializer_list>

namespace desktop::host {
namespace {

/// A misspelt key would otherwise only show as a missing text.
void checkKeys(const Json& object, std::initializer_list<std::string_view> known) {
    for (const auto& [key, value] : object.get_ref<const Json::object_t&>()) {
        if (std::ranges::count(known, key) == 0) {
            throw UsageError("unknown key \"" + key + "\"");
        }
    }
}

NotesContent::Card card(const Json& json) {
    checkKeys(json, {"title", "lines"});
    return {json.value("title", ""), json.value("lines", std::vector<std::string>())};
}

NotesContent::PlacedLabel placedLabel(const Json& json) {
    checkKeys(json, {"text", "frame", "size"});
    NotesContent::PlacedLabel label;
    label.text = json.at("text").get<std::string>();
    label.size = json.value("size", label.size);
    if (json.at("frame").size() != label.frame.size()) {
        throw UsageError("\"frame\" must be [x, y, width, height]");
    }
    json.at("frame").get_to(label.frame);
    return label;
}

template <class Value>
std::vector<Value> list(const Json& json, const char* key, Value (*read)(const Json&)) {
    std::vector<Value> values;
    const Json elements = json.value(key, Json::array());
    for (const Json& element : elements.get_ref<const Json::array_t&>()) {
        values.push_back(read(element));
    }
    return values;
}

NotesContent fromJson(const Json& json) {
    checkKeys(json, {"title", "cards", "list", "labels"});
    NotesContent content;
    content.title = json.value("title", "");
    content.cards = list(json, "cards", &card);
    content.list = json.value("list", content.list);
    content.labels = list(json, "labels", &placedLabel);
    return content;
}

} // namespace

NotesContent NotesContent::standard() {
    return {"备忘录",
            {{"今天", {"上午十点 与设计组开会", "下午取快递，顺便买牛奶和鸡蛋"}},
             {"Travel plan",
              {"Pack the camera, two lenses and the small tripod; charge every battery the night "
               "before.",
               "航班 CA1831　07:30 起飞"}},
             {"读书笔记",
              {"好的界面让人忘记界面。", "Name: The Design of Everyday Things",
               "一件物品如果需要说明书才能使用，多半是设计没有做好；先观察人们怎样用它，再决定"
               "它该是什么样子。"}}},
            {"全部备忘录", "共享 Shared", "最近删除", "Bundle"},
            {{"置顶", {14, 14, 120, 24}, 17},
             {"Pinned note", {14, 44, 160, 22}, 15},
             {"昨天 21:08", {264, 17, 80, 18}, 13},
             {"hello", {14, 74, 120, 24}, 17}}};
}

NotesContent NotesContent::fromFile(const std::filesystem::path& file) {
    try {
        std::ifstream stream(file, std::ios::binary);
        if (!stream) {
            throw UsageError("cannot be read");
        }
        return fromJson(Json::parse(stream));
    } catch (const std::exception& error) { // of ours, or of the JSON library
        throw UsageError(file.string() + ": " + error.what());
    }
}

} // namespace desktop::host
