// What passes through the hooks on requests.
#include "library/blocking/request_hooks.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/foundation/url_connection.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace wentra::blocking {
namespace {

using namespace ns::literals;

objc::Object asked;
objc::Object told;

objc::Object note(objc::Next<objc::Object(objc::Object, objc::Object)>, objc::Object,
                  objc::Object request, objc::Object delegate) {
    asked = request;
    told = delegate;
    return u"connection"_ns;
}

TEST(RequestHooks, AConnectionIsMadeOfItsRequestAndItsDelegate) {
    const objc::Pool pool;
    objc::install(objc::classHook<"NSURLConnection", "connectionWithRequest:delegate:", &note>());
    for (const objc::Change& change : requestHooks()) {
        objc::install(change);
    }
    const auto connection =
        ns::UrlConnection::sendClass<"connectionWithRequest:delegate:", objc::Object>(
            u"request"_ns, u"delegate"_ns);
    EXPECT_TRUE(connection && connection.isEqual(u"connection"_ns));
    EXPECT_TRUE(asked && asked.isEqual(u"request"_ns));
    EXPECT_TRUE(told && told.isEqual(u"delegate"_ns));
}

} // namespace
} // namespace wentra::blocking
