// Commands that talk to objects and look at views.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"
#include "desktop/host/hooked_methods.hpp"
#include "desktop/host/message.hpp"
#include "desktop/host/view_node.hpp"
#include "desktop/host/view_search.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/uikit/uikit.hpp"

namespace desktop::host {
namespace {

Json methodArguments(const Json& request) {
    const Json* arguments = argument(request, "args");
    if (arguments != nullptr && !arguments->is_array()) {
        throw RequestError("\"args\" must be a list");
    }
    return arguments != nullptr ? *arguments : Json::array();
}

ObjectForm form(const Json& request) {
    return flagArgument(request, "handle") ? ObjectForm::handle : ObjectForm::value;
}

} // namespace

Json send(Session& session, const Json& request) {
    const Json& to = anyArgument(request, "to");
    const std::string& selector = stringArgument(request, "selector");
    if (const auto allocated = session.values.numberOfAllocated(to)) {
        return initialise(session.values, *allocated, selector, methodArguments(request),
                          form(request));
    }
    const objc::Object receiver = session.values.toObject(to);
    if (!receiver) {
        throw RequestError("\"to\" must be an object or a class, not null");
    }
    return sendMessage(session.values, receiver, selector, methodArguments(request), form(request));
}

Json make(Session& session, const Json& request) {
    const Class cls = session.values.toClass({{"class", stringArgument(request, "class")}});
    return session.values.toJson(makeObject(session.values, cls,
                                            stringArgument(request, "selector"),
                                            methodArguments(request)),
                                 form(request));
}

Json tree(Session& session, const Json& request) {
    uikit::layoutWindows();
    if (const Json* of = argument(request, "of"); of != nullptr) {
        return viewTree(session.values, session.values.toKind<ui::View>(*of));
    }
    Json nodes = Json::array();
    for (const ui::Window window : ui::Application::sharedApplication().windows()) {
        nodes.push_back(viewTree(session.values, window));
    }
    return nodes;
}

Json find(Session& session, const Json& request) {
    return findNodes(session.values, anyArgument(request, "where"));
}

Json at(Session& session, const Json& request) {
    const CGPoint point = pointArgument(request, "point");
    uikit::layoutWindows();
    const ui::View view = viewSeenAt(point);
    if (!view) {
        return nullptr;
    }
    Json node = viewNode(session.values, view);
    node["hooks"] = hookedMethods(object_getClass(view.raw()));
    return node;
}

} // namespace desktop::host
