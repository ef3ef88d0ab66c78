// Blocks: made from lambdas, and called when the platform hands us one.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/encoding.hpp"
#include "bindings/objc/kind.hpp"

#include <concepts>
#include <new>
#include <utility>

extern "C" {
/// The class of a block that still lives on its maker's stack.
extern void* _NSConcreteStackBlock[32];
/// Moves a stack block to the heap (the result is owned by the caller), or retains a heap block.
void* _Block_copy(const void* block);
}

namespace objc {
namespace detail {

// The layout that the block ABI fixes.
struct BlockDescriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void* to, const void* from);
    void (*dispose)(const void* block);
    const char* signature;
};
struct BlockHeader {
    void* isa;
    int flags;
    int reserved;
    void (*invoke)();
    const BlockDescriptor* descriptor;
};
inline constexpr int blockHasCopyDispose = 1 << 25;
inline constexpr int blockHasSignature = 1 << 30;

template <class Body, class Signature>
struct BlockLiteral;
template <class Body, class R, class... A>
struct BlockLiteral<Body, R(A...)> {
    BlockHeader header;
    Body body;

    static Passed<R> invoke(BlockLiteral* block, Passed<A>... arguments) {
        return contained("block",
                         [&]() -> Passed<R> { return block->body(received<A>(arguments)...); });
    }
    static void copy(void* to, const void* from) {
        new (&static_cast<BlockLiteral*>(to)->body)
            Body(static_cast<const BlockLiteral*>(from)->body);
    }
    static void dispose(const void* block) {
        static_cast<const BlockLiteral*>(block)->body.~Body();
    }
    static constexpr auto signature =
        join(encodingOf<Lent<R>>(), Literal("@?"), encodingOf<Lent<A>>()...);
};

} // namespace detail

/// A borrowed block: an object, and callable from C++ with its exact type.
template <class Signature>
class Block;
template <class R, class... A>
class Block<R(A...)> : public Object {
public:
    static constexpr auto encoding = Literal("@?");

    /// The lambda as a block, autoreleased. An exception that leaves the lambda is reported and
    /// ends there: a block is entered from the platform.
    template <class Body>
    requires std::invocable<Body&, A...>
    static Block from(Body body) {
        using Block_ = detail::BlockLiteral<Body, R(A...)>;
        static constexpr detail::BlockDescriptor descriptor{
            0, sizeof(Block_), &Block_::copy, &Block_::dispose, Block_::signature.data()};
        const Block_ onStack{{static_cast<void*>(_NSConcreteStackBlock),
                              detail::blockHasCopyDispose | detail::blockHasSignature, 0,
                              reinterpret_cast<void (*)()>(&Block_::invoke), &descriptor},
                             std::move(body)};
        return wrap<Object>(static_cast<id>(_Block_copy(&onStack)))
            .template send<"autorelease", Block>();
    }

    /// Calls the block, which must not be nil.
    R operator()(A... arguments) const {
        auto* header = reinterpret_cast<detail::BlockHeader*>(raw());
        auto call = reinterpret_cast<Passed<R> (*)(void*, Passed<A>...)>(header->invoke);
        if constexpr (std::is_void_v<R>) {
            call(header, arguments...);
        } else {
            return received<R>(call(header, arguments...));
        }
    }
};

} // namespace objc
