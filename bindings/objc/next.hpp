// What a replacement calls through to, and what is known of that call when the replacement fails.
#pragma once

#include "bindings/objc/send.hpp"

namespace objc {
namespace detail {

/// How far a replacement's call of the former implementation got.
enum class Progress : unsigned char { notCalled, running, answered };

/// The method that was there before, for one message.
struct FormerCall {
    IMP implementation;
    id self;
    SEL name;
    Progress progress = Progress::notCalled;

    /// Inside a `catch` block: lets what the former implementation threw go on, and reports
    /// everything else as swallowed in the method of that class.
    void swallow(const char* className) const;
};

/// The same with its answer.
template <class R>
struct Call : FormerCall {
    R answered{};
    [[nodiscard]] R answer() const { return answered; }
};
template <>
struct Call<void> : FormerCall {
    static void answer() {}
};

} // namespace detail

/// What was there before the replacement, ready to be called with the method's arguments. Calling
/// it is up to the replacement; whatever it throws belongs to the host and passes through. When the
/// replacement throws after it, the host gets what it answered last.
template <class Signature>
class Next;
template <class R, class... A>
class Next<R(A...)> {
public:
    explicit Next(detail::Call<R>& call) : call_(&call) {}

    R operator()(A... arguments) const {
        call_->progress = detail::Progress::running;
        if constexpr (std::is_void_v<R>) {
            invoke<R, A...>(call_->implementation, call_->self, call_->name, arguments...);
        } else {
            call_->answered =
                invoke<R, A...>(call_->implementation, call_->self, call_->name, arguments...);
        }
        call_->progress = detail::Progress::answered;
        return call_->answer();
    }

private:
    detail::Call<R>* call_;
};

} // namespace objc
