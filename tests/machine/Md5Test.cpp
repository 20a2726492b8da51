#include "machine/Md5.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {
namespace {

std::string Hex(std::string_view text)
{
    std::string hex;
    for (const unsigned byte : Md5Of(text)) {
        hex += "0123456789abcdef"[byte / 16];
        hex += "0123456789abcdef"[byte % 16];
    }
    return hex;
}

struct Vector {
    std::string Text;
    std::string Digest;
};

// The test suite in the appendix of RFC 1321.
TEST(Md5Test, TheVectorsOfTheRfcComeOut)
{
    const Vector vectors[] = {
        {"", "d41d8cd98f00b204e9800998ecf8427e"},
        {"a", "0cc175b9c0f1b6a831c399e269772661"},
        {"abc", "900150983cd24fb0d6963f7d28e17f72"},
        {"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
        {"abcdefghijklmnopqrstuvwxyz", "c3fcd3d76192e4007dfb496cca67e13b"},
        {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789", "d174ab98d277d9f5a5611c2c9f419d9f"},
        {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
         "57edf4a22be3c955ac49da2e2107b67a"},
    };
    for (const Vector& vector : vectors)
        EXPECT_EQ(Hex(vector.Text), vector.Digest) << vector.Text;
}

// One byte less than a block with its length, exactly that, one more, and a full block: each padded differently.
TEST(Md5Test, TextsAroundTheEndOfABlockComeOut)
{
    const Vector vectors[] = {
        {std::string(55, 'x'), "04364420e25c512fd958a70738aa8f72"},
        {std::string(56, 'x'), "668a72d5ba17f08e62dabcafad6db14b"},
        {std::string(57, 'x'), "693037871c4a9d3d8685018905cb530a"},
        {std::string(63, 'x'), "7dc2ca208106a2f703567bdff99d8981"},
        {std::string(64, 'x'), "c1bb4f81d892b2d57947682aeb252456"},
        {std::string(65, 'x'), "1bc932052302d074bdec39795fe00cf6"},
        {std::string(119, 'x'), "ab347a5f68c8a443cfcddc633f12c24f"},
        {std::string(120, 'x'), "fb98667f98096de92620b64f46e1c5b5"},
        {std::string(128, 'x'), "d69cb61a6ee87200676eb0d4b90edbcb"},
    };
    for (const Vector& vector : vectors)
        EXPECT_EQ(Hex(vector.Text), vector.Digest) << vector.Text.size();
}

} // namespace
} // namespace dravik
