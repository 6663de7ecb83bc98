// Scenarios of the deck: what each act changes of sound, display, keys, files and the world.
#include <gtest/gtest.h>

#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

class Deck : public testing::TestWithParam<const char*> {};

TEST_P(Deck, DoesAsItIsWritten) { expectTranscript(std::string("deck/") + GetParam() + ".txt"); }

INSTANTIATE_TEST_SUITE_P(All, Deck,
                         testing::Values("play", "hands", "looks", "sliders", "comings", "windows", "online", "shell", "starts", "strip",
                                         "menus", "about"),
                         [](const auto& each) { return std::string(each.param); });

TEST(DeckWays, LeadOutAndBack) { expectWays("answers/ways.txt"); }

}  // namespace
}  // namespace orvanta::test
