// The editing of text, for the views that edit it: text, selection, composition, caret.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"
#include "bindings/uikit/text_input.hpp"
#include "bindings/uikit/touch.hpp"
#include "bindings/uikit/view.hpp"
#include "desktop/drawing/text_flow.hpp"
#include "desktop/uikit/text/text_history.hpp"
#include "desktop/uikit/text/text_movement.hpp"
#include "desktop/uikit/text/text_selection_view.hpp"
#include "desktop/uikit/text/text_storage.hpp"
#include "desktop/uikit/values/attributed_text.hpp"

#include <optional>

namespace desktop {

/// What UITextView and UITextField have in common. A class that has this as a second base gets the
/// methods of UITextInput, of the editing actions and of the keyboard's traits from
/// `textInputMethods`. Ranges are in UTF-16 units; those that reach beyond the text are cut off.
/// Main thread.
///
/// There are two ways for text to come in. Messages such as `insertText:` are the application's and
/// ask nobody; what a person does (`type`, `erase`, `compose`, paste) asks the delegate first.
class TextInput : protected TextSource {
public:
    static constexpr objc::Boundary border = objc::Boundary::propagates;
    /// The editing of a text view or text field.
    static TextInput& of(objc::Object view);
    /// Null when the object is neither.
    static TextInput* find(objc::Object object);

    TextInput(const TextInput&) = delete;
    TextInput& operator=(const TextInput&) = delete;
    ~TextInput() override;

    void type(ns::String text);
    /// Erases the selection; without one, what lies between the caret and where the movement would
    /// take it.
    void erase(TextMovement to = TextMovement::left);
    /// Takes the caret there; or extends the selection to there, at its loose end.
    void move(TextMovement movement, bool extends);
    /// Shows text that is still being composed, in place of what was composed so far.
    void compose(ns::String text, ns::Range selected);
    [[nodiscard]] virtual bool isEditable() const = 0;
    /// Return on the keyboard.
    virtual void pressReturn() = 0;

    /// Where the range lies, all of its lines together, in the view's coordinates.
    [[nodiscard]] CGRect boundingRect(ns::Range range);
    [[nodiscard]] CGPoint textOrigin() const { return textArea().origin; }
    [[nodiscard]] ns::Range selection() const { return selection_; }

protected:
    TextInput();

    static std::vector<objc::MethodRow> textInputMethods();

    [[nodiscard]] virtual ui::View view() const = 0;
    /// Where the text flows, in the view's coordinates: the first line's top left corner, and the
    /// width. The height has no meaning.
    [[nodiscard]] virtual CGRect textArea() const = 0;
    /// Of the font where the application sets none, in points.
    [[nodiscard]] virtual double defaultFontSize() const = 0;
    /// Text as it may stand in this view.
    [[nodiscard]] virtual ns::String acceptable(ns::String text) const { return text; }
    /// Whether the delegate allows the change.
    [[nodiscard]] virtual bool mayChange(ns::Range range, ns::String text) = 0;
    virtual void tellChange() = 0;
    virtual void tellSelectionChange() = 0;
    [[nodiscard]] virtual bool mayBegin() = 0;
    virtual void tellBegin() = 0;
    [[nodiscard]] virtual bool mayEnd() = 0;
    virtual void tellEnd() = 0;
    /// Scrolls so that the caret is seen.
    virtual void reveal(CGRect caret) = 0;
    [[nodiscard]] virtual bool isSelectable() const { return true; }
    [[nodiscard]] virtual bool isSecret() const { return false; }

    // The text as the application knows it.
    [[nodiscard]] ns::String text() const;
    /// Replaces all; the caret goes to the end, the delegate is not told. Nil is the empty text.
    void setText(ns::String text);
    /// The same.
    void setAttributedText(ns::AttributedString text);
    /// Of all of the text; nil is the platform's own.
    void setFont(ui::Font font);
    /// The same.
    void setTextColor(ui::Color color);
    /// How text looks that has no attributes of its own.
    [[nodiscard]] TextRun plainLook() const;
    [[nodiscard]] ui::TextStorage storage() const { return storage_; }
    /// The text in lines, as wide as the text area is now.
    TextFlow& flow();
    /// Sets the text anew: its look has changed.
    void resetFlow() { flow_.reset(); }
    void setSingleLine() { flow_.setSingleLine(); }

    void select(ns::Range range);
    /// How text looks that is written now.
    [[nodiscard]] ns::Dictionary typingAttributes() const;
    void setTypingAttributes(ns::Dictionary attributes) { typingAttributes_ = attributes; }
    /// The end of the selection that keys move; the caret, when nothing is selected.
    [[nodiscard]] unsigned long looseEnd() const;
    /// To be called in layout: scrolls to the caret after an edit.
    void revealCaret();
    /// It is scrolled elsewhere.
    void forgetCaret() { caretIsToBeShown_ = false; }
    /// To be called in layout and when the view's size or offset has changed.
    void placeSelection();
    void addRecognizers();
    /// A place in the text as a place in the view.
    [[nodiscard]] CGRect fromFlow(const Rectangle& rect) const;

    // TextSource
    [[nodiscard]] std::size_t length() const override { return storage_.length(); }
    [[nodiscard]] std::u16string units(Stretch stretch) const override;
    [[nodiscard]] std::vector<TextRun> runs(Stretch stretch) const override;

private:
    [[nodiscard]] ns::AttributedString attributedText() const;
    [[nodiscard]] ui::Font font() const { return font_; }
    [[nodiscard]] ui::Color textColor() const { return textColor_; }
    void addAttribute(ns::String name, objc::Object value);
    void traitsChanged(objc::Object) { resetFlow(); } // it holds colours

    [[nodiscard]] ns::Range clamped(ns::Range range) const;
    [[nodiscard]] ns::String textIn(ns::Range range) const;
    [[nodiscard]] ns::Range composedBefore(unsigned long unit) const;
    [[nodiscard]] ns::Range composedAfter(unsigned long unit) const;
    [[nodiscard]] ns::Range replacedByTyping() const { return marked_.value_or(selection_); }
    [[nodiscard]] std::u16string plainUnits(ns::Range range) const;
    void write(ns::Range range, ns::String text);
    void replace(ns::Range range, ns::AttributedString text);
    void remember(ns::Range range, unsigned long length);
    void takeBack(TextEditKind edit);
    [[nodiscard]] ns::AttributedString formerText(ns::Range range) const;
    [[nodiscard]] ns::UndoManager undoManager() { return history_.manager(); }
    void mark(ns::Range range);
    void edited(ns::Range former, unsigned long length);
    [[nodiscard]] unsigned long destination(TextMovement movement, unsigned long from);
    [[nodiscard]] unsigned long lineEnd(unsigned long unit);
    /// To which a caret keeps that goes up and down from there.
    [[nodiscard]] double columnAt(unsigned long unit);
    /// Of the selection, for keys: the one that stays, and the one that moves.
    struct Ends {
        unsigned long anchor;
        unsigned long loose;
    };
    /// When the selection was not made by keys, the end on the side of the movement is the loose
    /// one.
    [[nodiscard]] Ends ends(TextMovement movement, bool extends) const;
    [[nodiscard]] ns::Range erasedBy(TextMovement movement);
    void eraseWithoutAsking(ns::Range range);
    void moveCaret(unsigned long unit) { select({unit, 0}); }
    void showCaret();
    [[nodiscard]] unsigned long unitAt(CGPoint point);

    // UIResponder
    bool becomeFirstResponder();
    bool resignFirstResponder();

    // UITextInput
    void insertText(ns::String text);
    void deleteBackward();
    [[nodiscard]] bool hasText() const { return length() > 0; }
    [[nodiscard]] ns::String textInRange(ui::TextRange range) const;
    void replaceRange(ui::TextRange range, ns::String text);
    [[nodiscard]] ui::TextRange selectedTextRange() const;
    void setSelectedTextRange(ui::TextRange range);
    [[nodiscard]] ui::TextRange markedTextRange() const;
    void setMarkedText(ns::String text, ns::Range selected);
    void unmarkText();
    [[nodiscard]] ui::TextPosition beginningOfDocument() const;
    [[nodiscard]] ui::TextPosition endOfDocument() const;
    [[nodiscard]] ui::TextRange rangeBetween(ui::TextPosition from, ui::TextPosition to) const;
    [[nodiscard]] ui::TextPosition positionByOffset(ui::TextPosition from, long offset) const;
    [[nodiscard]] ui::TextPosition positionInDirection(ui::TextPosition from, long direction,
                                                       long offset);
    [[nodiscard]] long compare(ui::TextPosition one, ui::TextPosition other) const;
    [[nodiscard]] long offsetBetween(ui::TextPosition from, ui::TextPosition to) const;
    [[nodiscard]] CGRect caretRect(ui::TextPosition position);
    [[nodiscard]] CGRect firstRect(ui::TextRange range);
    [[nodiscard]] ui::TextPosition closestPosition(CGPoint point);
    [[nodiscard]] ui::TextPosition closestPositionWithin(CGPoint point, ui::TextRange range);
    [[nodiscard]] ui::TextRange characterRangeAt(CGPoint point);

    // The editing actions
    [[nodiscard]] bool canPerformAction(SEL action, objc::Object sender) const;
    void cut(objc::Object sender);
    void copy(objc::Object sender);
    void paste(objc::Object sender);
    void selectWord(objc::Object sender);
    void selectAll(objc::Object sender);

    // Fingers
    [[nodiscard]] bool receives(ui::GestureRecognizer recognizer, ui::Touch touch) const;
    void tapped(ui::GestureRecognizer tap);
    void doubleTapped(ui::GestureRecognizer tap);
    void pressed(ui::GestureRecognizer press);
    bool focus();
    void showMenu();

    objc::Strong<ui::TextStorage> storage_ = ui::TextStorage::make();
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
    TextFlow flow_{*this};
    ns::Range selection_;
    /// The end of the selection that stays when keys extend it.
    std::optional<unsigned long> anchor_;
    /// Where the caret came from that goes up and down, in the flow's points.
    std::optional<double> column_;
    bool caretIsToBeShown_ = false;
    std::optional<ns::Range> marked_;
    /// What the text that is being composed has replaced; nil: nothing.
    objc::Strong<ns::AttributedString> replacedByMarked_;
    TextHistory history_;
    bool isWriting_ = false;
    objc::Copied<ns::Dictionary> typingAttributes_;
    objc::Strong<TextSelectionViewKind> selectionView_;
    objc::Strong<ui::View> inputView_;
    objc::Strong<ui::View> inputAccessoryView_;
    objc::Weak<objc::Object> inputDelegate_;
    objc::Copied<ns::Dictionary> markedTextStyle_;
    objc::Copied<ns::String> textContentType_;
    // Traits of the keyboard, kept for the application; the platform's numbers.
    long keyboardType_ = 0;
    long keyboardAppearance_ = 0;
    long returnKeyType_ = 0;
    long autocapitalizationType_ = 2; // sentences
    long autocorrectionType_ = 0;
    long spellCheckingType_ = 0;
    long smartQuotesType_ = 0;
    long smartDashesType_ = 0;
    bool enablesReturnKeyAutomatically_ = false;
};

} // namespace desktop
