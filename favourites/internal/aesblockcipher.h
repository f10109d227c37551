#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// The AES block cipher (FIPS-197) under one key. Ciphering a block leaves the object as it is, so that
/// several threads may share one.
class AesBlockCipher
{
public:
    static constexpr std::size_t blockSize = 16;
    using Block = std::array<std::uint8_t, blockSize>;

    /// `key` holds 16, 24 or 32 bytes, which take 10, 12 or 14 rounds.
    explicit AesBlockCipher(std::span<const std::uint8_t> key);

    void encrypt(Block &block) const;
    void decrypt(Block &block) const;

private:
    static constexpr std::size_t maximumRounds = 14;

    void addRoundKey(Block &block, std::size_t round) const;

    std::size_t m_rounds;
    std::array<std::uint8_t, (maximumRounds + 1) *blockSize> m_roundKeys = {};
};
