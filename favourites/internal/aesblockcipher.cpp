#include "favourites/internal/aesblockcipher.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace {

using Byte = std::uint8_t;
using Block = AesBlockCipher::Block;
using ByteTable = std::array<Byte, 256>;

constexpr std::size_t wordSize = 4; // of the key expansion, and the height of a block's columns

/// The product in the field of 256 elements with the polynomial x^8 + x^4 + x^3 + x + 1.
constexpr Byte product(Byte a, Byte b)
{
    unsigned shifted = a;
    unsigned sum = 0;
    for (unsigned rest = b; rest != 0; rest >>= 1U) {
        if ((rest & 1U) != 0)
            sum ^= shifted;
        shifted <<= 1U;
        if (shifted > 0xFF)
            shifted ^= 0x11BU;
    }
    return static_cast<Byte>(sum);
}

constexpr ByteTable makeProducts(Byte factor)
{
    ByteTable table = {};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = product(static_cast<Byte>(i), factor);
    return table;
}

/// The substitution of a byte: its inverse in the field, then an affine map of the bits.
constexpr ByteTable makeSubstitution()
{
    constexpr Byte zeroSubstitute = 0x63; // zero has no inverse
    ByteTable table = {};
    table[0] = zeroSubstitute;
    // The powers of 3 are all elements but zero; 0xF6 is the inverse of 3, so its powers are their inverses.
    Byte element = 1;
    Byte inverse = 1;
    do {
        element = product(element, 3);
        inverse = product(inverse, 0xF6);
        table[element] = static_cast<Byte>(inverse ^ std::rotl(inverse, 1) ^ std::rotl(inverse, 2) ^
                                           std::rotl(inverse, 3) ^ std::rotl(inverse, 4) ^ zeroSubstitute);
    } while (element != 1);
    return table;
}

constexpr ByteTable makeInverse(const ByteTable &table)
{
    ByteTable inverse = {};
    for (std::size_t i = 0; i < table.size(); ++i)
        inverse[table[i]] = static_cast<Byte>(i);
    return inverse;
}

constexpr ByteTable substitution = makeSubstitution();
constexpr ByteTable inverseSubstitution = makeInverse(substitution);
static_assert(substitution[0x53] == 0xED && inverseSubstitution[0xED] == 0x53);

// Products with the coefficients of the column mix and of its inverse.
constexpr ByteTable times1 = makeProducts(1);
constexpr ByteTable times2 = makeProducts(2);
constexpr ByteTable times3 = makeProducts(3);
constexpr ByteTable times9 = makeProducts(9);
constexpr ByteTable times11 = makeProducts(11);
constexpr ByteTable times13 = makeProducts(13);
constexpr ByteTable times14 = makeProducts(14);

// A block is stored column by column: row r of column c is byte r + 4c.

void substituteAndShiftRows(Block &block)
{
    const Block from = block;
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] = substitution[from[(i + wordSize * (i % wordSize)) % block.size()]];
}

void substituteAndShiftRowsBack(Block &block)
{
    const Block from = block;
    for (std::size_t i = 0; i < block.size(); ++i)
        block[(i + wordSize * (i % wordSize)) % block.size()] = inverseSubstitution[from[i]];
}

/// Multiplies each column by the circulant matrix whose first row the four tables stand for.
void mixColumns(Block &block, const ByteTable &first, const ByteTable &second, const ByteTable &third,
                const ByteTable &fourth)
{
    const Block from = block;
    for (std::size_t i = 0; i < block.size(); ++i) {
        const std::size_t column = i - i % wordSize;
        const auto below = [&](std::size_t distance) {
            return from[column + (i + distance) % wordSize];
        };
        block[i] = static_cast<Byte>(first[below(0)] ^ second[below(1)] ^ third[below(2)] ^ fourth[below(3)]);
    }
}

} // namespace

AesBlockCipher::AesBlockCipher(std::span<const std::uint8_t> key) : m_rounds(key.size() / wordSize + 6)
{
    assert(key.size() == 16 || key.size() == 24 || key.size() == 32);
    constexpr std::size_t longKeyWords = 6; // keys of more words get one substitution more
    const std::size_t keyWords = key.size() / wordSize;
    const std::size_t words = (m_rounds + 1) * blockSize / wordSize;

    std::copy(key.begin(), key.end(), m_roundKeys.begin());
    Byte roundConstant = 1;
    for (std::size_t number = keyWords; number < words; ++number) {
        std::array<Byte, wordSize> word = {};
        std::copy_n(m_roundKeys.begin() + (number - 1) * wordSize, wordSize, word.begin());
        const bool beginsKey = number % keyWords == 0;
        if (beginsKey)
            std::rotate(word.begin(), word.begin() + 1, word.end());
        if (beginsKey || (keyWords > longKeyWords && number % keyWords == wordSize)) {
            for (Byte &byte : word)
                byte = substitution[byte];
        }
        if (beginsKey) {
            word[0] ^= roundConstant;
            roundConstant = times2[roundConstant];
        }
        for (std::size_t i = 0; i < wordSize; ++i)
            m_roundKeys[number * wordSize + i] = m_roundKeys[(number - keyWords) * wordSize + i] ^ word[i];
    }
}

void AesBlockCipher::encrypt(Block &block) const
{
    addRoundKey(block, 0);
    for (std::size_t round = 1; round < m_rounds; ++round) {
        substituteAndShiftRows(block);
        mixColumns(block, times2, times3, times1, times1);
        addRoundKey(block, round);
    }
    substituteAndShiftRows(block);
    addRoundKey(block, m_rounds);
}

void AesBlockCipher::decrypt(Block &block) const
{
    addRoundKey(block, m_rounds);
    for (std::size_t round = m_rounds - 1; round > 0; --round) {
        substituteAndShiftRowsBack(block);
        addRoundKey(block, round);
        mixColumns(block, times14, times11, times13, times9);
    }
    substituteAndShiftRowsBack(block);
    addRoundKey(block, 0);
}

void AesBlockCipher::addRoundKey(Block &block, std::size_t round) const
{
    for (std::size_t i = 0; i < block.size(); ++i)
        block[i] ^= m_roundKeys[round * blockSize + i];
}
