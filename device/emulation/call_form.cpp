// Giving arguments their places, as both sides do.
#include "device/emulation/call_form.hpp"

#include "device/emulation/value_shape.hpp"

#include <span>

namespace emulation {
namespace {

constexpr unsigned registerCount = 8; // of each sort
constexpr std::size_t wordSize = 8;

Widening wideningOf(const ValueShape& shape) {
    switch (shape.kind) {
    case 'B':
    case 'C':
        return Widening::unsignedByte;
    case 'c':
        return Widening::signedByte;
    case 'S':
        return Widening::unsignedHalf;
    case 's':
        return Widening::signedHalf;
    default:
        return Widening::none;
    }
}

class Places {
public:
    explicit Places(CallForm& form) : form_(&form) {}

    void add(const ValueShape& shape) {
        constexpr unsigned mostFloats = 4;
        if (shape.floats > 0 && shape.floats <= mostFloats) {
            place(floating_, shape.floats, shape);
        } else {
            addGeneral(shape);
        }
    }

private:
    void addGeneral(const ValueShape& shape) {
        const std::size_t words = (shape.size + wordSize - 1) / wordSize;
        const unsigned first = general_;
        // A larger aggregate is passed by its address.
        if (!place(general_, words > 2 ? 1 : static_cast<unsigned>(words),
                   words > 2 ? ValueShape{wordSize, wordSize} : shape)) {
            return;
        }
        if (const Widening widening = wideningOf(shape); widening != Widening::none) {
            form_->narrowArguments.push_back({first, widening});
        }
    }

    /// Whether there are registers left. Once one argument was put on the stack, none is put into
    /// registers of that sort again.
    bool place(unsigned& used, unsigned count, const ValueShape& shape) {
        if (used + count <= registerCount) {
            used += count;
            return true;
        }
        used = registerCount;
        form_->stackSize += (shape.size + wordSize - 1) / wordSize * wordSize;
        form_->isPackedOnStack = form_->isPackedOnStack || shape.size % wordSize != 0;
        return false;
    }

    CallForm* form_;
    unsigned general_ = 0;
    unsigned floating_ = 0;
};

} // namespace

CallForm callForm(std::string_view types) {
    const std::vector<ValueShape> shapes = shapesOf(types);
    CallForm form;
    if (shapes.empty()) {
        return form;
    }
    form.result = wideningOf(shapes.front());
    Places places(form);
    for (const ValueShape& shape : std::span(shapes).subspan(1)) {
        places.add(shape);
    }
    return form;
}

} // namespace emulation
