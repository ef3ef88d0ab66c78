// A phone running an application with the library loaded, as people and scripts use it.
#pragma once

#include "tests/support/host_process.hpp"
#include "tests/support/host_program.hpp"

#include <string>
#include <vector>

namespace tests {

using Json = nlohmann::json;

/// A phone running an application with the library loaded.
class Phone : public support::HostProcess {
public:
    explicit Phone(std::vector<std::string> options = {"--app", "plain"})
        : HostProcess(hostProgram(), withAutomation(std::move(options))) {}

    Json make(const std::string& cls, const std::vector<double>& frame = {10, 20, 100, 30}) {
        return message(message({{"class", cls}}, "alloc"), "initWithFrame:", {{{"rect", frame}}});
    }
    void saveRules(const std::string& text) {
        const Json editor = make("UITextView");
        message(editor, "setText:", {text});
        message(editor, "saveRulesFromTextView:", {editor});
    }
    void turnOn(const std::vector<std::string>& switches) {
        Json values = Json::object();
        for (const std::string& key : switches) {
            values[key] = true;
        }
        result({{"do", "preferences"}, {"set", values}});
    }
    /// The label after it was given the text.
    Json shown(const Json& label, const Json& text) {
        message(label, "setText:", {text});
        return result({{"do", "tree"}, {"of", label}});
    }
    /// A fresh label's node after it was given the text.
    Json label(const Json& text, const std::string& cls = "UILabel") {
        return shown(make(cls), text);
    }
    /// The events of that kind since the last question about any.
    std::vector<Json> events(const std::string& kind) {
        std::vector<Json> found;
        for (const Json& event : result({{"do", "events"}})) {
            if (event["kind"] == kind) {
                found.push_back(event);
            }
        }
        return found;
    }
    std::vector<Json> swallowed() { return events("exception"); }

    void set(const Json& preferences) { result({{"do", "preferences"}, {"set", preferences}}); }
    void advance(double seconds) { result({{"do", "advance"}, {"seconds", seconds}}); }
    /// Lets what runs on other threads come back until the condition holds; whether it does.
    template <class Condition>
    bool until(Condition condition) {
        constexpr int mostTurns = 3000;
        constexpr double turn = 0.01;
        for (int turns = 0; turns < mostTurns && !condition(); ++turns) {
            error({{"do", "wait"}, {"for", {{"event", "none"}}}, {"seconds", turn}});
            advance(turn);
        }
        return condition();
    }
    Json node(const Json& view) { return result({{"do", "tree"}, {"of", view}}); }
    Json window() { return result({{"do", "tree"}})[0]; }
    Json find(const Json& where) { return result({{"do", "find"}, {"where", where}}); }
    Json pasteboard() { return result({{"do", "pasteboard"}}); }
    /// The front alert; null when there is none.
    Json alert() { return result({{"do", "alert"}}); }
    /// The titles of its actions.
    std::vector<std::string> alertActions() {
        std::vector<std::string> titles;
        const Json shown = alert();
        for (const Json& action : shown["actions"]) {
            titles.push_back(action["title"]);
        }
        return titles;
    }
    /// Fills the front alert's fields and taps that action; the alert is gone then.
    void choose(const std::string& title, const std::vector<std::string>& fields = {}) {
        Json request{{"do", "alert"}, {"choose", title}};
        if (!fields.empty()) {
            request["fields"] = fields;
        }
        result(request);
        advance(1);
    }
    void copy(const Json& text) { result({{"do", "pasteboard"}, {"set", text}}); }
    void slide(const Json& path) { result({{"do", "slide"}, {"path", path}}); }
    void tap(const Json& place, int taps = 1) {
        result({{"do", "tap"}, {place.is_array() ? "at" : "on", place}, {"taps", taps}});
        advance(0.4); // until no further tap can follow
    }
    void press(const Json& place, double seconds) {
        result({{"do", "press"}, {place.is_array() ? "at" : "on", place}, {"seconds", seconds}});
    }

private:
    static std::vector<std::string> withAutomation(std::vector<std::string> options) {
        options.emplace_back("--automation");
        return options;
    }
};

} // namespace tests
