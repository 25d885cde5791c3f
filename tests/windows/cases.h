/* The file between the two platforms: what the program on Linux writes and the one on Windows reads. A header, then
 * for each export its description and its calls. A vector takes whole blocks of 16 bytes everywhere. */
#ifndef TARN_TESTS_WINDOWS_CASES_H
#define TARN_TESTS_WINDOWS_CASES_H

#include <stdint.h>

enum { cases_magic = 0x4E524154, most_arguments = 3, name_bytes = 48 };

typedef struct cases_header {
    uint32_t magic, exports;
} cases_header;

/* Where a vector travels. In xmm registers it takes as many as it has blocks. */
enum { nowhere, in_vectors, in_integer, in_slot };
typedef struct cases_place {
    uint8_t where, first, by_reference, unused;
} cases_place;

/* `lanes` is the bytes that a width has lanes for, `stored` those that a second result is written with, `real` the
 * bytes of a floating-point lane, or 0. */
typedef struct cases_vector {
    cases_place place;
    uint16_t blocks, lanes, stored, real;
} cases_vector;

/* Of a pair the result has both vectors, one after the other, and `second` stands for none. A call is the blocks of
 * the arguments, of the result and of the second result, and one that begins with what the call raises; `ordinary` is
 * one without special lanes. Flags: `raises_alike` where no compiler may raise more than another. */
typedef struct cases_export {
    char name[name_bytes];
    uint32_t arguments, pair, calls, ordinary, raises_alike, unused;
    cases_vector argument[most_arguments], result, second;
} cases_export;

#endif
