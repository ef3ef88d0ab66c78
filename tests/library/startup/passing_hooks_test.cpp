// Hooks that only pass calls on, each put before a method of the test's own that keeps what
// arrives.
#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "library/blocking/request_hooks.hpp"
#include "library/common/face.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace wentra {
namespace {

using namespace ns::literals;

/// A value that is not like the one of another position.
template <class T>
T sample(std::size_t position);
template <>
id sample<id>(std::size_t position) {
    return (position == 0 ? u"first"_ns : position == 1 ? u"second"_ns : u"answer"_ns).raw();
}
template <>
SEL sample<SEL>(std::size_t) {
    return sel_registerName("paste:");
}
template <>
CGRect sample<CGRect>(std::size_t) {
    return {{1, 2}, {3, 4}};
}
template <>
bool sample<bool>(std::size_t) {
    return true;
}

/// A method that keeps what it is called with.
template <class Result, class... Arguments>
struct Recorder {
    using Method = Result (*)(id, SEL, Arguments...);
    static inline std::vector<std::tuple<id, Arguments...>> calls;
    static inline bool refuses = false; ///< answers zero

    static Result method(id self, SEL, Arguments... arguments) {
        calls.push_back({self, arguments...});
        if constexpr (!std::is_void_v<Result>) {
            return refuses ? Result{} : sample<Result>(2);
        }
    }
};

/// The row for a fresh class that has the method.
objc::Change onFreshClass(objc::Change row, IMP method) {
    static std::vector<std::string> names;
    names.reserve(200); // the runtime keeps the names where they are
    names.push_back("PassedOn" + std::to_string(names.size()));
    row.className = names.back().c_str();
    const Class cls = objc_allocateClassPair(objc_lookUpClass("NSObject"), row.className, 0);
    const bool isOfType = row.side == objc::Side::type;
    class_addMethod(isOfType ? object_getClass(objc::object(cls)) : cls,
                    sel_registerName(row.selector), method, row.types);
    objc_registerClassPair(cls);
    return row;
}

id receiverOf(const objc::Change& row) {
    const id cls = objc::object(objc_lookUpClass(row.className));
    return row.side == objc::Side::type ? cls : objc::send<"new", objc::Object>(cls).raw();
}

/// Calls the hooked method once, which must reach the former one as it is and bring its answer.
template <class Result, class... Arguments, std::size_t... Positions>
void expectCallThrough(const objc::Change& row, std::index_sequence<Positions...>) {
    using Former = Recorder<Result, Arguments...>;
    Former::calls.clear();
    const id self = receiverOf(row);
    const SEL name = sel_registerName(row.selector);
    const auto call = reinterpret_cast<typename Former::Method>(
        class_getMethodImplementation(object_getClass(self), name));
    const std::tuple<id, Arguments...> sent{self, sample<Arguments>(Positions)...};
    if constexpr (std::is_void_v<Result>) {
        call(self, name, sample<Arguments>(Positions)...);
    } else {
        EXPECT_EQ(call(self, name, sample<Arguments>(Positions)...),
                  Former::refuses ? Result{} : sample<Result>(2));
    }
    ASSERT_EQ(Former::calls.size(), 1U);
    EXPECT_EQ(Former::calls[0], sent);
}

template <class Result, class... Arguments>
void expectPassing(const objc::Change& row) {
    using Former = Recorder<Result, Arguments...>;
    const IMP former = *row.former;
    const objc::Change own = onFreshClass(row, reinterpret_cast<IMP>(&Former::method));
    ASSERT_EQ(objc::install(own), objc::Outcome::installed);
    for (const bool refuses : {false, true}) {
        Former::refuses = refuses;
        expectCallThrough<Result, Arguments...>(own, std::index_sequence_for<Arguments...>());
    }
    *row.former = former; // the slot belongs to the row's own class
}

using Check = void (*)(const objc::Change&);

/// By the methods' types.
const std::map<std::string, Check>& checks() {
    static const std::map<std::string, Check> known{
        {"v@:", &expectPassing<void>},
        {"B@:", &expectPassing<bool>},
        {"v@:@", &expectPassing<void, id>},
        {"B@:@", &expectPassing<bool, id>},
        {"@@:@", &expectPassing<id, id>},
        {"@@:@@", &expectPassing<id, id, id>},
        {"@@:@@?", &expectPassing<id, id, id>},
        {"B@::@", &expectPassing<bool, SEL, id>},
        {"@@:{CGRect={CGPoint=dd}{CGSize=dd}}", &expectPassing<id, CGRect>},
    };
    return known;
}

/// An addition has nothing to call, and the hooks on protocols answer by themselves.
bool callsThrough(const objc::Change& row) {
    return row.how == objc::Change::How::hook && std::string_view(row.className) != "NSURLProtocol";
}

void expectAllPass(Table table) {
    const objc::Pool pool;
    for (const objc::Change& row : table()) {
        if (!callsThrough(row)) {
            continue;
        }
        const testing::ScopedTrace trace(__FILE__, __LINE__, row.description());
        ASSERT_TRUE(checks().contains(row.types)) << row.types;
        checks().at(row.types)(row);
    }
}

TEST(PassingHooks, RequestsThatNobodyBlocksAreMadeAsTheyWereAskedFor) {
    expectAllPass(&blocking::requestHooks);
}

} // namespace
} // namespace wentra
