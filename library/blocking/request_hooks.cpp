// Requests at the platform's entry points. Nothing is stopped yet: calls pass through.
#include "library/blocking/request_hooks.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"
#include "library/paths/root_path.hpp"

#include <array>
#include <string>

namespace wentra::blocking {
namespace {

std::string& preferencePath() {
    static std::string path;
    return path;
}

using objc::Next;
using objc::Object;

Object fromString(Next<Object(ns::String)> next, Object, ns::String address) {
    return next(address);
}

Object fromRequest(Next<Object(Object)> next, Object, Object request) { return next(request); }

Object fromTwo(Next<Object(Object, Object)> next, Object, Object request, Object other) {
    return next(request, other);
}

Object withHandler(Next<Object(Object, objc::Block<void(Object, Object, Object)>)> next, Object,
                   Object request, objc::Block<void(Object, Object, Object)> handler) {
    return next(request, handler);
}

void setUrl(Next<void(Object)> next, Object, Object url) { next(url); }

bool canInit(Next<bool(Object)> next, Object, Object request) { return next(request); }

} // namespace

void resolvePreferencePath() { preferencePath() = paths::preferencePath(); }

std::span<const objc::Change> requestHooks() {
    static constexpr std::array changes{
        objc::classHook<"NSURL", "URLWithString:", &fromString>(),
        objc::hook<"NSURL", "initWithString:", &fromString>(),
        objc::whereThereIsOne(objc::classHook<"NSURLSession", "dataTaskWithURL:", &fromRequest>()),
        objc::hook<"NSURLSession", "dataTaskWithRequest:completionHandler:", &withHandler>(),
        objc::hook<"NSURLSession", "dataTaskWithRequest:", &fromRequest>(),
        objc::classHook<"NSURLConnection", "connectionWithRequest:delegate:", &fromTwo>(),
        objc::hook<"WKWebView", "loadRequest:", &fromRequest>(),
        objc::whereThereIsOne(objc::hook<"NSURLRequest", "setURL:", &setUrl>()),
        objc::classHook<"NSURLProtocol", "canInitWithRequest:", &canInit>(),
        objc::classHook<"NSURLProtocol", "canonicalRequestForRequest:", &fromRequest>(),
    };
    return changes;
}

} // namespace wentra::blocking
