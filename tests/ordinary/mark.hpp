// What a callout leaves behind where a test asks which lanes went to one: a NaN of a payload that nothing else has.
#pragma once

#include <cstdint>

namespace tarn::test {
inline constexpr std::uint64_t mark = 0x7FF8'0BAD'7FC0'0BAD;
}
