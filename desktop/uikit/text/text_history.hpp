// What has been done to a text, so that it can be undone.
#pragma once

#include "bindings/foundation/attributed_string.hpp"
#include "bindings/foundation/range.hpp"
#include "bindings/foundation/undo_manager.hpp"

#include "desktop/class.hpp"

#include <vector>

namespace desktop {

struct TextEditKind : objc::Kind<TextEditKind, "_UITextEdit"> {
    using Kind::Kind;
};

/// What takes an edit back: the text that goes in place of a range.
class TextEdit : public PlatformClass<TextEdit, TextEditKind> {
public:
    static std::vector<objc::MethodRow> methods() { return {}; }

    ns::Range range;
    objc::Strong<ns::AttributedString> text;
};

/// Keeps the edits of one text in an undo manager of its own. What is typed without a pause for
/// anything else is undone as a whole. Main thread.
class TextHistory {
public:
    /// For the application, which may undo too.
    [[nodiscard]] ns::UndoManager manager();
    /// `former`, or nothing where it is nil, has been replaced by so many units. To take it back,
    /// `view` will be sent `_takeBack:` with a TextEdit; what is added then can be done again.
    void add(objc::Object view, unsigned long place, ns::AttributedString former,
             unsigned long length);
    /// What is typed from now on is undone by itself.
    void pause() { typed_ = nullptr; }
    /// The text has been changed by others: nothing of it fits any more.
    void forget();

private:
    bool addToTyped(unsigned long place, unsigned long length);

    objc::Strong<ns::UndoManager> manager_;
    objc::Strong<TextEditKind> typed_;
};

} // namespace desktop
