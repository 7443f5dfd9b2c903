#include "common/core/status_text.h"

#include "support/double_byte.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

TEST(StatusText, CompactIsShort_HasTheLastCause_AndCutsNoCharacter) {
    std::vector<qv::StatusRecord> chain(7, {7, false, "Error", " a\r\n b\t", "\n"});
    std::string strLong = "x";
    for (int i = 0; i < 200; ++i) {
        strLong += "\x83\x5C";
    }
    chain[1].text = "";
    chain[2].text = strLong;
    chain[6].text = "last";
    EXPECT_EQ(
        qv::CompactStatus(chain, "Me", DoubleByte()),
        "Me: a b\nCause: Error 7\nCause: " + strLong.substr(0, 299) + "...\n(3 more)\nCause: last");
}

}  // namespace
