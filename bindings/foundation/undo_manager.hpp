// NSUndoManager.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct UndoManager : objc::Kind<UndoManager, "NSUndoManager"> {
    using Kind::Kind;

    [[nodiscard]] bool canUndo() const { return send<"canUndo", bool>(); }
    [[nodiscard]] bool canRedo() const { return send<"canRedo", bool>(); }
    void undo() const { send<"undo">(); }
    void redo() const { send<"redo">(); }
    /// Whether what is registered in one turn of the run loop is undone at once; it is, at first.
    void setGroupsByEvent(bool groups) const { send<"setGroupsByEvent:">(groups); }
    void beginUndoGrouping() const { send<"beginUndoGrouping">(); }
    void endUndoGrouping() const { send<"endUndoGrouping">(); }
    /// To undo, `target`, which is not retained, will be sent `selector` with `object`, which is.
    void registerUndo(objc::Object target, SEL selector, objc::Object object) const {
        send<"registerUndoWithTarget:selector:object:">(target, selector, object);
    }
    void removeAllActions() const { send<"removeAllActions">(); }
};

} // namespace ns
