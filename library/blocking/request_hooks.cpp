// Requests at the platform's entry points: what is blocked, and how it fails there.
#include "library/blocking/request_hooks.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/url_request.hpp"
#include "bindings/objc/block.hpp"
#include "library/blocking/block_rules.hpp"
#include "library/paths/root_path.hpp"
#include "library/preferences/preferences.hpp"

#include <array>
#include <string>

namespace wentra::blocking {
namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;
using preferences::Preferences;

std::string& preferencePath() {
    static auto* path = new std::string; // outlives the last hooked call
    return *path;
}

Preferences readPreferences() { return Preferences::readFile(preferencePath()); }

/// Nil is blocked nowhere.
bool blocks(EntryPoint point, ns::String text) {
    return text && blockRules(readPreferences())->blocks(point, text.utf16());
}

// Applications may hand over anything in place of a request or an URL: that is nobody's address.

ns::Url urlOf(Object request) { return Object(request.as<ns::UrlRequest>().url()).as<ns::Url>(); }
ns::String addressOf(Object request) { return urlOf(request).absoluteString(); }
ns::String hostOf(Object request) { return urlOf(request).host(); }

/// No URL at all, as the platform makes of an empty text.
ns::Url nowhere() { return ns::Url::withString(u""_ns); }

/// A host that never exists.
ns::Url placeholder() { return ns::Url::withString(u"https://blocked.invalid"_ns); }

ns::MutableUrlRequest redirected(Object request, ns::Url url) {
    const auto copy = request.as<ns::UrlRequest>().mutableCopy();
    copy.setUrl(url);
    return copy;
}

Object newUrl(Next<Object(ns::String)> next, Object, ns::String address) {
    const Preferences preferences = readPreferences();
    if (!preferences.on(preferences::keys.blockRequests)) {
        return next(address);
    }
    const Object url = next(address);
    const bool isBlocked =
        blockRules(preferences)
            ->blocks(EntryPoint::newUrl, Object(address).as<ns::String>().utf16());
    return isBlocked ? nullptr : url;
}

Object initialisedUrl(Next<Object(ns::String)> next, Object, ns::String address) {
    const bool isBlocked = blocks(EntryPoint::initialisedUrl, Object(address).as<ns::String>());
    return next(isBlocked ? u"about:blank"_ns : address);
}

Object dataTaskOfSessionClass(Next<Object(Object)> next, Object, Object url) {
    const ns::String address = url.as<ns::Url>().absoluteString();
    if (!address) {
        return next(url);
    }
    const bool isBlocked = blocks(EntryPoint::dataTaskOfSessionClass, address);
    return next(isBlocked ? nowhere() : ns::Url::withString(address));
}

Object handledDataTask(Next<Object(Object, objc::Block<void(Object, Object, Object)>)> next, Object,
                       Object request, objc::Block<void(Object, Object, Object)> handler) {
    const ns::String address = addressOf(request);
    if (!blocks(EntryPoint::handledDataTask, address)) {
        return next(request, handler);
    }
    ns::log("屏蔽的URL: " + address.utf8());
    return nullptr;
}

Object dataTask(Next<Object(Object)> next, Object, Object request) {
    const bool isBlocked = blocks(EntryPoint::dataTask, hostOf(request));
    return next(isBlocked ? Object(ns::UrlRequest::withUrl(nowhere())) : request);
}

Object connection(Next<Object(Object, Object)> next, Object, Object request, Object delegate) {
    const bool isBlocked = blocks(EntryPoint::connection, hostOf(request));
    return next(isBlocked ? Object(redirected(request, placeholder())) : request, delegate);
}

Object webLoad(Next<Object(Object)> next, Object, Object request) {
    return blocks(EntryPoint::webView, hostOf(request)) ? Object() : next(request);
}

void setUrl(Next<void(Object)> next, Object, Object url) {
    const bool isBlocked = blocks(EntryPoint::urlOfRequest, url.as<ns::Url>().host());
    next(isBlocked ? Object(ns::Url::withString(u"0"_ns)) : url);
}

/// What is blocked is for a protocol that loads nothing.
bool canInit(Next<bool(Object)>, Object, Object request) {
    return blocks(EntryPoint::protocol, addressOf(request));
}

Object canonicalRequest(Next<Object(Object)>, Object, Object request) {
    return redirected(request, nowhere());
}

} // namespace

void resolvePreferencePath() { preferencePath() = paths::preferencePath(); }

std::span<const objc::Change> requestHooks() {
    static constexpr std::array changes{
        objc::classHook<"NSURL", "URLWithString:", &newUrl>(),
        objc::hook<"NSURL", "initWithString:", &initialisedUrl>(),
        objc::whereThereIsOne(
            objc::classHook<"NSURLSession", "dataTaskWithURL:", &dataTaskOfSessionClass>()),
        objc::hook<"NSURLSession", "dataTaskWithRequest:completionHandler:", &handledDataTask>(),
        objc::hook<"NSURLSession", "dataTaskWithRequest:", &dataTask>(),
        objc::classHook<"NSURLConnection", "connectionWithRequest:delegate:", &connection>(),
        objc::hook<"WKWebView", "loadRequest:", &webLoad>(),
        objc::whereThereIsOne(objc::hook<"NSURLRequest", "setURL:", &setUrl>()),
        objc::classHook<"NSURLProtocol", "canInitWithRequest:", &canInit>(),
        objc::classHook<"NSURLProtocol", "canonicalRequestForRequest:", &canonicalRequest>(),
    };
    return changes;
}

} // namespace wentra::blocking
