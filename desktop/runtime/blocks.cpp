// Blocks on the stack and on the heap: objects that are called, copied, counted and released like
// any other.
#include "bindings/objc/block.hpp"

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>

/// The class itself lies here, where the block ABI looks for it.
void* _NSConcreteStackBlock[32];

namespace {

using objc::detail::BlockHeader;

// A heap block is laid out by the block ABI, behind the count of its owners; the root class's own
// counting must never see it.
struct HeapPrefix {
    std::atomic<long> owners;
    std::max_align_t alignment;
};

HeapPrefix& prefix(id block) { return *(reinterpret_cast<HeapPrefix*>(block) - 1); }

id retain(id block, SEL) {
    prefix(block).owners.fetch_add(1, std::memory_order_relaxed);
    return block;
}

void release(id block, SEL) {
    if (prefix(block).owners.fetch_sub(1, std::memory_order_acq_rel) != 1) {
        return;
    }
    const auto* header = reinterpret_cast<BlockHeader*>(block);
    if ((header->flags & objc::detail::blockHasCopyDispose) != 0) {
        header->descriptor->dispose(block);
    }
    std::free(&prefix(block)); // NOLINT(cppcoreguidelines-no-malloc)
}

unsigned long retainCount(id block, SEL) {
    return static_cast<unsigned long>(prefix(block).owners.load(std::memory_order_relaxed));
}

id copyWithZone(id block, SEL name, void*) { return retain(block, name); }

Class heapBlockClass() {
    static const Class made = [] {
        const Class cls = objc_allocateClassPair(objc_getClass("NSObject"), "NSBlock", 0);
        const auto add = [cls](const char* name, auto function, const char* types) {
            class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
        };
        add("retain", &retain, "@@:");
        add("release", &release, "v@:");
        add("retainCount", &retainCount, "Q@:");
        add("copyWithZone:", &copyWithZone, "@@:^v");
        objc_registerClassPair(cls);
        return cls;
    }();
    return made;
}

// How a compiler of Objective-C hands classes to the runtime: the ABI of GNU libobjc.
struct ClassLayout {
    const void* metaclass; ///< of a metaclass: the name of the root class
    const char* superclass;
    const char* name;
    long version;
    unsigned long info;
    long instanceSize;
    std::array<void*, 7> filledIn;
};
struct Symbols {
    unsigned long selectorCount;
    void* selectors;
    unsigned short classCount;
    unsigned short categoryCount;
    std::array<void*, 2> classesAndEnd;
};
struct Module {
    unsigned long abiVersion;
    unsigned long size;
    const char* name;
    Symbols* symbols;
};
extern "C" void __objc_exec_class(Module* module);

/// A block on the stack belongs to its maker: nobody else counts it.
id stay(id block, SEL) { return block; }
void leave(id, SEL) {}
id copyOfStackBlock(id block, SEL, void*) { return static_cast<id>(_Block_copy(block)); }

void addStackBlockMethods(Class cls) {
    const auto add = [cls](const char* name, auto function, const char* types) {
        class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
    };
    add("retain", &stay, "@@:");
    add("autorelease", &stay, "@@:");
    add("release", &leave, "v@:");
    add("copyWithZone:", &copyOfStackBlock, "@@:^v");
}

/// Before any of our code can make a block.
__attribute__((constructor)) void makeStackBlockClass() {
    constexpr unsigned long abiVersion = 8;
    constexpr unsigned long isClass = 1;
    constexpr unsigned long isMetaclass = 2;
    static const char* const name = "__NSStackBlock__";
    static ClassLayout metaclass{"NSObject",  "NSBlock",           name, 0,
                                 isMetaclass, sizeof(ClassLayout), {}};
    static_assert(sizeof(ClassLayout) <= sizeof(_NSConcreteStackBlock));
    heapBlockClass(); // its superclass, which has to be there first
    auto* cls = new (static_cast<void*>(_NSConcreteStackBlock))
        ClassLayout{&metaclass, "NSBlock", name, 0, isClass, sizeof(BlockHeader), {}};
    static Symbols symbols{0, nullptr, 1, 0, {cls, nullptr}};
    static Module module{abiVersion, sizeof(Module), name, &symbols};
    __objc_exec_class(&module);
    addStackBlockMethods(objc_getClass(name));
}

} // namespace

void* _Block_copy(const void* block) {
    if (block == nullptr) {
        return nullptr;
    }
    const auto* header = static_cast<const BlockHeader*>(block);
    if (header->isa != static_cast<void*>(_NSConcreteStackBlock)) {
        return retain(const_cast<id>(static_cast<const objc_object*>(block)), nullptr);
    }
    void* memory = std::malloc(sizeof(HeapPrefix) + header->descriptor->size); // NOLINT
    if (memory == nullptr) {
        return nullptr;
    }
    auto* place = new (memory) HeapPrefix{1, {}};
    auto* heap = reinterpret_cast<BlockHeader*>(place + 1);
    std::memcpy(static_cast<void*>(heap), block, header->descriptor->size);
    heap->isa = heapBlockClass();
    if ((header->flags & objc::detail::blockHasCopyDispose) != 0) {
        header->descriptor->copy(heap, block);
    }
    return heap;
}

extern "C" void _Block_release(const void* block) {
    if (block != nullptr) {
        release(const_cast<id>(static_cast<const objc_object*>(block)), nullptr);
    }
}
