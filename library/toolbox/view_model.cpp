// The view model's birth. The views that it will own are not there yet.
#include "library/toolbox/view_model.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/objc/peer.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

constexpr std::int64_t delayInNanoseconds = 300'000'000;

class OwnViewModel : public objc::Peer<OwnViewModel, ViewModel> {
public:
    static auto methods() {
        return std::array{objc::method<"updateView", &OwnViewModel::updateView>()};
    }

private:
    void updateView() {}
};

} // namespace

void registerViewModel() { OwnViewModel::registerClass(); }

void scheduleViewModel() {
    dispatch::after(delayInNanoseconds, dispatch::mainQueue(), [] {
        static objc::Strong<ViewModel>* only = nullptr; // lives as long as the process
        only = new objc::Strong(ViewModel::make());
        only->updateView();
    });
}

} // namespace wentra::toolbox
