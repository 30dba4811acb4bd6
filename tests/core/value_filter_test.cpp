#include "core/value_filter.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {
QString u(const char *s) { return QString::fromUtf8(s); }
} // namespace

TEST(ValueFilter, JudgesTheLastCharacterAlone)
{
    const char *cases[][2] = {
        // {typed, what stays; nullptr: the text stands}
        {"", nullptr},
        {"12", nullptr},
        {"12,", "12."},
        {"1.2.", nullptr},
        {"12x", "12"},
        {"a", ""},
        {"a1", nullptr}, // a paste is judged by its last character only
        {"Importante ", "Importante"}, // the blank PopImport adds is what goes
        {"/", ""},
        {":", ""},
        {"0", nullptr},
        {"9", nullptr}, // the edges of the digits
        {"5€", "5"},
        {"1\xF0\x9F\x98\x80", "1"}, // a character outside the basic plane goes whole
    };
    for (const auto &c : cases)
        EXPECT_EQ(filtraValore(u(c[0])).value_or(u("<stands>")), u(c[1] ? c[1] : "<stands>")) << c[0];
}
