// Checking a request, translating its lines, and failing on demand.
#include "desktop/services/translation/translation.hpp"

#include "bindings/commoncrypto/digest.hpp"
#include "desktop/services/query.hpp"
#include "desktop/services/translation/dictionary.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <sstream>

namespace desktop::services::translation {
namespace {

using Json = nlohmann::ordered_json;
using Query = std::map<std::string, std::string>;

constexpr double late = 2; // seconds
constexpr int internalError = 500;
constexpr int notFound = 404;

/// Characters beyond ASCII travel as escapes, as the service sends them.
std::string written(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

Answer failure(const char* code, const char* message) {
    Answer answer;
    answer.body = written({{"error_code", code}, {"error_msg", message}});
    return answer;
}

bool isComplete(const Query& query) {
    constexpr std::array required{"q", "from", "to", "appid", "salt", "sign"};
    return std::ranges::all_of(required, [&query](const char* name) {
        const auto found = query.find(name);
        return found != query.end() && !found->second.empty();
    });
}

const char* codeOf(Language language) { return language == Language::chinese ? "zh" : "en"; }

/// "auto" is the language that the text is not in.
Language targetOf(const Query& query, Language source) {
    const std::string& to = query.at("to");
    const bool toChinese = to == "auto" ? source == Language::english : to == "zh";
    return toChinese ? Language::chinese : Language::english;
}

Answer translation(const Query& query) {
    const std::string& text = query.at("q");
    const Language source = languageOf(text);
    const Language target = targetOf(query, source);
    Json results = Json::array();
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        results.push_back({{"src", line}, {"dst", translated(line, target)}});
    }
    Answer answer;
    answer.body = written(
        {{"from", codeOf(source)}, {"to", codeOf(target)}, {"trans_result", std::move(results)}});
    return answer;
}

Answer answerTo(const Query& query) {
    if (!isComplete(query)) {
        return failure("54000", "PARAM_FROM_TO_OR_Q_EMPTY");
    }
    if (query.at("appid") != accountId) {
        return failure("52003", "UNAUTHORIZED USER");
    }
    if (query.at("sign") != signatureOf(accountId, query.at("q"), query.at("salt"), accountKey)) {
        return failure("54001", "Invalid Sign");
    }
    const std::string& to = query.at("to");
    if (to != "auto" && to != "zh" && to != "en") {
        return failure("58001", "INVALID_TO_PARAM");
    }
    return translation(query);
}

/// The right answer, spoilt as the text demands.
Answer onDemand(std::string_view text, Answer answer) {
    if (text.starts_with("!error")) {
        return failure("54003", "Invalid Access Limit");
    }
    if (text.starts_with("!json")) {
        answer.body.resize(answer.body.size() / 2);
    } else if (text.starts_with("!500")) {
        answer.status = internalError;
        answer.contentType = "text/html";
        answer.body = "<html><body>Internal Server Error</body></html>";
    } else if (text.starts_with("!late")) {
        answer.delay = late;
    }
    answer.dropped = text.starts_with("!drop");
    return answer;
}

} // namespace

std::string signatureOf(std::string_view id, std::string_view text, std::string_view salt,
                        std::string_view key) {
    std::string signature;
    for (const unsigned char byte :
         cc::sha256(std::string(id).append(text).append(salt).append(key))) {
        constexpr std::string_view digits = "0123456789abcdef";
        signature += digits[byte >> 4U];
        signature += digits[byte & 0xFU];
    }
    return signature;
}

Answer answerTo(std::string_view target) {
    if (pathOf(target) != "/api/trans/vip/translate") {
        Answer answer;
        answer.status = notFound;
        answer.contentType = "text/plain";
        return answer;
    }
    const Query query = queryOf(target);
    const auto text = query.find("q");
    return onDemand(text == query.end() ? std::string_view() : text->second, answerTo(query));
}

} // namespace desktop::services::translation
