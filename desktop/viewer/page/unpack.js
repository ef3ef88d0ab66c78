// @ts-check
// Unpacks an LZ4 block: stretches of bytes, each followed by a copy of bytes that came before.

/** So few are copied one by one, which is quicker than asking the browser to. */
const few = 32;

/**
 * @param {Uint8Array} packed
 * @param {number} size how many bytes come out
 */
export function unpack(packed, size) {
    const bytes = new Uint8Array(size);
    let from = 0;
    let to = 0;
    const length = (/** @type {number} */ short) => {
        let sum = short;
        for (let more = short === 15 ? 255 : 0; more === 255;) {
            more = packed[from++];
            sum += more;
        }
        return sum;
    };
    while (from < packed.length) {
        const token = packed[from++];
        const literals = length(token >> 4);
        copy(packed, from, bytes, to, literals);
        from += literals;
        to += literals;
        if (from < packed.length) {
            const distance = packed[from] | (packed[from + 1] << 8);
            from += 2;
            const count = length(token & 15) + 4;
            repeat(bytes, to, distance, count);
            to += count;
        }
    }
    return bytes;
}

/**
 * @param {Uint8Array} source
 * @param {number} from
 * @param {Uint8Array} target
 * @param {number} to
 * @param {number} count
 */
function copy(source, from, target, to, count) {
    if (count >= few) {
        target.set(source.subarray(from, from + count), to);
        return;
    }
    for (const end = to + count; to < end;) {
        target[to++] = source[from++];
    }
}

/**
 * Copies so many bytes from that distance before; what is copied may be copied again.
 * @param {Uint8Array} bytes
 * @param {number} to
 * @param {number} distance
 * @param {number} count
 */
function repeat(bytes, to, distance, count) {
    const start = to - distance;
    const end = to + count;
    if (count < few) {
        copy(bytes, start, bytes, to, count);
        return;
    }
    for (let at = to; at < end;) { // twice as many each time
        const stop = start + Math.min(at - start, end - at);
        bytes.copyWithin(at, start, stop);
        at += stop - start;
    }
}
