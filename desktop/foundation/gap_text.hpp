// A text that is edited from one end to the other.
#pragma once

#include <unicode/rep.h>
#include <unicode/unistr.h>

#include <string>
#include <string_view>

namespace desktop::foundation {

/// UTF-16 for ICU to edit in place, with a gap where the last edit was: what an edit costs depends
/// on how far it is from the one before, and not on the length of the text. Nowhere are half
/// surrogates refused.
class GapText : public icu::Replaceable {
public:
    explicit GapText(std::u16string_view text) : after_(text.rbegin(), text.rend()) {}

    [[nodiscard]] std::u16string text() const;

    void extractBetween(std::int32_t start, std::int32_t limit,
                        icu::UnicodeString& target) const override;
    void handleReplaceBetween(std::int32_t start, std::int32_t limit,
                              const icu::UnicodeString& text) override;
    void copy(std::int32_t start, std::int32_t limit, std::int32_t place) override;
    [[nodiscard]] UBool hasMetaData() const override { return false; }

protected:
    [[nodiscard]] std::int32_t getLength() const override;
    [[nodiscard]] char16_t getCharAt(std::int32_t place) const override;
    [[nodiscard]] UChar32 getChar32At(std::int32_t place) const override;

private:
    void moveGapTo(std::size_t place);

    std::u16string before_;
    std::u16string after_; ///< backwards
};

} // namespace desktop::foundation
