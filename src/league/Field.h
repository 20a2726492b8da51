#pragma once

#include "league/Failure.h"

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace dravik {

// A number as it stands in the files: little-endian, unaligned. It reads as a 64-bit integer, so no expression on
// fields wraps; assigning a value that does not fit fails with number 6.
template <std::integral T>
class Field {
public:
    constexpr Field() = default;
    constexpr Field(long long value) { *this = value; } // NOLINT: a plain number is as good as a field
    // A float has to be rounded by the rule at hand before it is stored.
    Field(std::floating_point auto) = delete;

    constexpr operator long long() const // NOLINT: a field reads as a plain number
    {
        std::make_unsigned_t<T> raw = 0;
        for (std::size_t i = sizeof(T); i-- > 0;)
            raw = static_cast<std::make_unsigned_t<T>>(static_cast<std::uint64_t>(raw) << 8U | bytes[i]);
        return static_cast<T>(raw);
    }

    constexpr Field& operator=(long long value)
    {
        if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
            Fail(failure::Overflow);
        auto raw = static_cast<std::uint64_t>(value);
        for (auto& byte : bytes) {
            byte = static_cast<unsigned char>(raw & 0xFFU);
            raw >>= 8U;
        }
        return *this;
    }

    Field& operator=(std::floating_point auto) = delete;

    constexpr Field& operator+=(long long value) { return *this = *this + value; }
    constexpr Field& operator-=(long long value) { return *this = *this - value; }
    Field& operator+=(std::floating_point auto) = delete;
    Field& operator-=(std::floating_point auto) = delete;
    constexpr Field& operator++() { return *this += 1; }

private:
    std::array<unsigned char, sizeof(T)> bytes{};
};

using Byte = Field<std::uint8_t>;
using Int16 = Field<std::int16_t>;
using Int32 = Field<std::int32_t>;

static_assert(sizeof(Byte) == 1 && sizeof(Int16) == 2 && sizeof(Int32) == 4);
static_assert(std::is_trivially_copyable_v<Int32> && alignof(Int32) == 1);

// A 64-bit IEEE 754 float, little-endian, unaligned.
class Float64 {
public:
    constexpr Float64() = default;
    constexpr Float64(double value) { *this = value; } // NOLINT: a plain number is as good as a field

    constexpr operator double() const // NOLINT: a field reads as a plain number
    {
        std::uint64_t raw = 0;
        for (std::size_t i = bytes.size(); i-- > 0;)
            raw = raw << 8U | bytes[i];
        return std::bit_cast<double>(raw);
    }

    constexpr Float64& operator=(double value)
    {
        auto raw = std::bit_cast<std::uint64_t>(value);
        for (auto& byte : bytes) {
            byte = static_cast<unsigned char>(raw & 0xFFU);
            raw >>= 8U;
        }
        return *this;
    }

private:
    std::array<unsigned char, 8> bytes{};
};

// A 16-bit word of which only -1 is True. `Word` is for the few rules that test the raw word ("not 0", "is 0").
class Boolean {
public:
    constexpr Boolean() = default;
    constexpr Boolean(std::same_as<bool> auto value) { *this = value; } // NOLINT: a truth value is as good as a field

    constexpr explicit operator bool() const { return word == -1; }
    // Takes a truth value only: what a number would mean here, the raw word or a yes, is for the caller to say.
    constexpr Boolean& operator=(std::same_as<bool> auto value)
    {
        word = value ? -1 : 0;
        return *this;
    }

    [[nodiscard]] constexpr long long Word() const { return word; }
    constexpr void SetWord(long long value) { word = value; }
    void SetWord(std::floating_point auto) = delete;

private:
    Int16 word;
};

// A text of N characters of the single-byte code page, padded with blanks on the right. A field that was never
// written is all zero and reads as empty.
template <std::size_t N>
class Text {
public:
    constexpr Text() = default;
    constexpr Text(std::string_view text) { *this = text; }            // NOLINT: a plain text is as good as a field
    constexpr Text(const char* text) : Text(std::string_view(text)) {} // NOLINT: likewise

    // Stores `text` (a literal, a string or a view) padded with blanks to the width; what is longer is cut. A template, so
    // that assigning {} stays what it is elsewhere: the text becomes one that was never written.
    template <std::convertible_to<std::string_view> T>
    constexpr Text& operator=(const T& text)
    {
        const std::string_view view = text;
        for (std::size_t i = 0; i < N; ++i)
            characters[i] = i < view.size() ? view[i] : ' ';
        return *this;
    }

    // All N bytes as they stand.
    [[nodiscard]] std::string Raw() const { return {characters.data(), N}; }

    // The text without the blanks (and zero bytes) at both ends.
    [[nodiscard]] std::string Trimmed() const
    {
        using namespace std::string_view_literals;
        const std::string_view all(characters.data(), N);
        const auto first = all.find_first_not_of(" \0"sv);
        if (first == std::string_view::npos)
            return {};
        return std::string(all.substr(first, all.find_last_not_of(" \0"sv) - first + 1));
    }

private:
    std::array<char, N> characters{};
};

// A table of one dimension with the indices First to Last. Every access is checked and fails with number 9, so no
// number in a file can reach outside.
template <class T, long long First, long long Last>
class Row {
public:
    static constexpr long long first = First;
    static constexpr long long last = Last;

    constexpr T& operator[](long long index) { return elements[Checked(index)]; }
    constexpr const T& operator[](long long index) const { return elements[Checked(index)]; }

    static constexpr bool Has(long long index) { return index >= First && index <= Last; }

    constexpr auto begin() { return elements.begin(); }
    constexpr auto end() { return elements.end(); }
    constexpr auto begin() const { return elements.begin(); }
    constexpr auto end() const { return elements.end(); }

private:
    static constexpr std::size_t Checked(long long index)
    {
        if (!Has(index))
            Fail(failure::OutOfRange);
        return static_cast<std::size_t>(index - First);
    }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> elements{};
};

// A table of 16-bit words with two indices from 1, the first running fastest: (number, place). Checked like a Row.
template <long long Numbers, long long Places>
class Grid {
public:
    constexpr Int16& operator()(long long number, long long place) { return elements[Index(number, place)]; }
    constexpr const Int16& operator()(long long number, long long place) const
    {
        return elements[Index(number, place)];
    }

private:
    static constexpr long long Index(long long number, long long place)
    {
        if (number < 1 || number > Numbers || place < 1 || place > Places)
            Fail(failure::OutOfRange);
        return (number - 1) + (place - 1) * Numbers;
    }

    Row<Int16, 0, Numbers * Places - 1> elements;
};

} // namespace dravik
