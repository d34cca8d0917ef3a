#include "tray/TrayProtocol.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace lindrel {
namespace {

std::string Field(const std::string& tip) {
    const auto field = TipField(tip);
    return {field.begin(), field.end()};
}

TEST(TrayProtocolTest, EachMouseMessageHasItsEvent) {
    EXPECT_EQ(TrayMouseOf(512), (TrayMouse{TrayEvent::MouseMove, 0}));
    EXPECT_EQ(TrayMouseOf(513), (TrayMouse{TrayEvent::MouseDown, 1}));
    EXPECT_EQ(TrayMouseOf(514), (TrayMouse{TrayEvent::MouseUp, 1}));
    EXPECT_EQ(TrayMouseOf(515), (TrayMouse{TrayEvent::DblClick, 0}));
    EXPECT_EQ(TrayMouseOf(516), (TrayMouse{TrayEvent::MouseDown, 2}));
    EXPECT_EQ(TrayMouseOf(517), (TrayMouse{TrayEvent::MouseUp, 2}));
    EXPECT_EQ(TrayMouseOf(518), (TrayMouse{TrayEvent::DblClick, 0}));
}

TEST(TrayProtocolTest, EveryOtherNumberIsNoEvent) {
    for (std::uint64_t message = 0; message <= 0x1FFFF; ++message) {
        if (message >= 512 && message <= 518) continue;
        ASSERT_EQ(TrayMouseOf(message), TrayMouse{}) << message;
    }
    // All bits of the parameter count, not just the lower ones.
    EXPECT_EQ(TrayMouseOf((20ull << 16) | 513), TrayMouse{});
    EXPECT_EQ(TrayMouseOf((1ull << 32) | 513), TrayMouse{});
}

TEST(TrayProtocolTest, ATipIsFollowedByItsNulAndBlanks) {
    EXPECT_EQ(Field("Lindrel"), std::string("Lindrel") + '\0' + std::string(56, ' '));
    EXPECT_EQ(Field(""), std::string(1, '\0') + std::string(63, ' '));
    EXPECT_EQ(Field(std::string(62, 'x')), std::string(62, 'x') + '\0' + ' ');
    EXPECT_EQ(Field(std::string(63, 'x')), std::string(63, 'x') + '\0');
}

TEST(TrayProtocolTest, ATipThatIsTooLongIsCutTo64Characters) {
    const std::string characters = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ.-+*";
    EXPECT_EQ(Field(characters.substr(0, 64)), characters.substr(0, 64));
    EXPECT_EQ(Field(characters.substr(0, 65)), characters.substr(0, 64));
    EXPECT_EQ(Field(std::string(5000, 'x')), std::string(64, 'x'));
}

TEST(TrayProtocolTest, IdentifiersGoFrom1To65535) {
    EXPECT_EQ(TrayIdentifier(0.0), 1u);
    EXPECT_EQ(TrayIdentifier(0.5), 32768u);
    EXPECT_EQ(TrayIdentifier(std::nextafter(1.0, 0.0)), 65535u);
    EXPECT_EQ(TrayIdentifier(std::numeric_limits<double>::min()), 1u);
}

}  // namespace
}  // namespace lindrel
