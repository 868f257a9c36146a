#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// A number of 64 bits that two different runs of bytes practically never share unless somebody
// means them to; `da` is that of what stands before.
[[nodiscard]] std::uint64_t impronta(std::span<const std::byte> byte,
                                     std::uint64_t da = 0) noexcept;
